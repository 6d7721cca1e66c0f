// orvelin [PROJECT]: the designer. The one optional argument is a project path,
// possibly in double quotes.
//
// ORVELIN_QUIT_AFTER_STARTUP=1 ends the program as soon as its windows are shown
// and idle (start-up timing, the smoke test); ORVELIN_REPORT_WINDOWS=1 names each
// shown window on stderr; ORVELIN_SCREENSHOT_DIR=DIR saves a picture of each window
// there once idle.
#include "designer.h"
#include "frmdesign.h"
#include "frmmain.h"
#include "startupprobe.h"

#include <QApplication>
#include <QDir>
#include <QStringList>

namespace {

// The program is given one command line, as its Windows forebear was: arguments a
// shell split at blanks belong to the same path.
QString CommandLine(const QStringList& arguments) {
    return arguments.mid(1).join(QLatin1Char(' '));
}

void SaveScreenshots(orvelin::Designer& designer, const QString& folder) {
    QDir().mkpath(folder);
    const QDir dir(folder);
    designer.mainWindow().grab().save(dir.filePath(QStringLiteral("frmmain.png")));
    designer.designWindow().grab().save(dir.filePath(QStringLiteral("frmdesign.png")));
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Orvelin"));
    QApplication::setApplicationName(QStringLiteral("Orvelin"));
    // The design window only hides when closed; the main editor's close path ends
    // the program.
    QApplication::setQuitOnLastWindowClosed(false);

    orvelin::Designer designer;
    orvelin::StartupProbe probe;
    probe.watch(&designer.mainWindow());
    probe.watch(&designer.designWindow());
    probe.applyEnvironment();
    if (designer.start(CommandLine(QApplication::arguments())) == orvelin::StartupResult::Quit)
        return 0;

    const QString screenshots = qEnvironmentVariable("ORVELIN_SCREENSHOT_DIR");
    if (!screenshots.isEmpty())
        QObject::connect(&probe, &orvelin::StartupProbe::idle, &designer,
                         [&designer, screenshots] { SaveScreenshots(designer, screenshots); });
    probe.start();
    return QApplication::exec();
}
