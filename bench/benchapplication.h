#pragma once

#include <QApplication>
#include <QTemporaryDir>

namespace orvelin {

/**
 * The one QApplication of a widget benchmark, offscreen unless a platform is chosen, with
 * settings in a folder of its own, never the user's. Never destroyed: tearing it down
 * among the exit handlers crashes in Qt's own statics.
 */
inline QApplication& BenchApplication() {
    static int argc = 1;
    static char name[] = "orvelin_bench";
    static char* argv[] = {name, nullptr};
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toUtf8());
    static QApplication* app = new QApplication(argc, argv);
    return *app;
}

} // namespace orvelin
