// The yardstick for the designer's start-up time: the smallest Qt Widgets program
// that shows a main window, timed to the same point (window exposed, event loop
// idle) by the same probe.
#include "startupprobe.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setObjectName(QStringLiteral("bareWindow"));
    window.setWindowTitle(QStringLiteral("Bare window"));
    window.setCentralWidget(new QLabel(QStringLiteral("Bare window"), &window));
    window.resize(400, 300);
    window.show();

    orvelin::StartupProbe probe;
    probe.watch(&window);
    probe.applyEnvironment();
    probe.start();
    return QApplication::exec();
}
