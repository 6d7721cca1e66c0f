// orvelin [PROJECT]: the designer. The one optional argument is a project path,
// possibly in double quotes. --help and --version answer without a display.
//
// ORVELIN_QUIT_AFTER_STARTUP=1 ends the program as soon as its windows are shown
// and idle (start-up timing, the smoke test); ORVELIN_REPORT_WINDOWS=1 names each
// shown window on stderr; ORVELIN_SCREENSHOT_DIR=DIR saves a picture of each window
// there once idle.
#include "appicon.h"
#include "designer.h"
#include "desktopsetup.h"
#include "frmdesign.h"
#include "frmmain.h"
#include "mainmenus.h"
#include "projectmodel.h"
#include "qtdesktoptools.h"
#include "startupprobe.h"

#include <QApplication>
#include <QDir>
#include <QStringList>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// The program is given one command line, as its Windows forebear was: arguments a
// shell split at blanks belong to the same path.
QString CommandLine(const QStringList& arguments) {
    return arguments.mid(1).join(QLatin1Char(' '));
}

void saveScreenshots(orvelin::Designer& designer, const QString& folder) {
    QDir().mkpath(folder);
    const QDir dir(folder);
    designer.mainWindow().grab().save(dir.filePath(QStringLiteral("frmmain.png")));
    designer.designWindow().grab().save(dir.filePath(QStringLiteral("frmdesign.png")));
}

// Answers --help and --version; false for anything else (a project path).
bool answerWithoutDisplay(int argc, char** argv) {
    if (argc != 2)
        return false;
    if (std::strcmp(argv[1], "--version") == 0) {
        std::printf("Orvelin %s\n", orvelin::kVersionText);
        return true;
    }
    if (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0) {
        std::printf("Usage: orvelin [PROJECT]\n"
                    "Opens the Orvelin designer, with the project file PROJECT (.orv) when "
                    "given.\n"
                    "  --help     shows this text\n"
                    "  --version  shows the version\n"
                    "The headless tool for the same files is orvelin-cli (orvelin-cli --help).\n");
        return true;
    }
    return false;
}

QtMessageHandler g_defaultHandler = nullptr;

// While the application connects to the display, Qt's complaints about a missing one
// (and its abort) become one sentence that says what to do.
void displayMessageHandler(QtMsgType type, const QMessageLogContext& context,
                           const QString& message) {
    if (type != QtFatalMsg && !QByteArray(context.category).startsWith("qt.qpa")) {
        if (g_defaultHandler != nullptr)
            g_defaultHandler(type, context, message);
        else
            std::fprintf(stderr, "%s\n", qPrintable(message));
        return;
    }
    if (type != QtFatalMsg)
        return;
    const QByteArray display = qgetenv("DISPLAY");
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    if (display.isEmpty() && wayland.isEmpty())
        std::fputs("orvelin: no display is set (neither DISPLAY nor WAYLAND_DISPLAY), so the "
                   "designer cannot open its windows; start it from a desktop session, or "
                   "under a virtual display: xvfb-run -a orvelin [PROJECT]\n",
                   stderr);
    else
        std::fprintf(stderr,
                     "orvelin: the display \"%s\" cannot be opened, so the designer cannot "
                     "open its windows; check that the display is running and that you may "
                     "use it, or start Orvelin under a virtual display: xvfb-run -a orvelin "
                     "[PROJECT]\n",
                     (display.isEmpty() ? wayland : display).constData());
    std::_Exit(1);
}

} // namespace

int main(int argc, char** argv) {
    if (answerWithoutDisplay(argc, argv))
        return 0;
    g_defaultHandler = qInstallMessageHandler(displayMessageHandler);
    QApplication app(argc, argv);
    qInstallMessageHandler(g_defaultHandler);
    QApplication::setWindowIcon(orvelin::AppIcon());
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

    orvelin::QSettingsBackend settingsStore;
    orvelin::Settings settings(settingsStore);
    orvelin::QtUserInterface ui(&designer.mainWindow());
    orvelin::QtDesktopTools tools;
    orvelin::DesktopSetup desktop(settings, ui, tools, designer.programFolder(),
                                  &designer.mainWindow());
    QObject::connect(&designer.mainWindow().menus(), &orvelin::MainMenus::associateRequested,
                     &desktop, &orvelin::DesktopSetup::associateNow);
    // The prompts come once the windows are up; a timed start-up run has none.
    if (!orvelin::StartupProbe::quitAfterStartupRequested())
        QObject::connect(&probe, &orvelin::StartupProbe::idle, &desktop,
                         &orvelin::DesktopSetup::offerAtStartup);

    const QString screenshots = qEnvironmentVariable("ORVELIN_SCREENSHOT_DIR");
    if (!screenshots.isEmpty())
        QObject::connect(&probe, &orvelin::StartupProbe::idle, &designer,
                         [&designer, screenshots] { saveScreenshots(designer, screenshots); });
    probe.start();
    return QApplication::exec();
}
