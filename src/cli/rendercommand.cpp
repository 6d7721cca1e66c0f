#include "arguments.h"
#include "commands.h"
#include "consoleuserinterface.h"
#include "editor.h"
#include "projectfile.h"
#include "projectmodel.h"
#include "rendersurface.h"

#include <QGuiApplication>
#include <QImageWriter>
#include <QSaveFile>
#include <cstdio>
#include <memory>
#include <ostream>

namespace orvelin::cli {

const char* const kRenderUsage =
    "  orvelin-cli render PROJECT [--state UP|OVER|DOWN] [--no-background] -o FILE.png\n"
    "      Loads the project file PROJECT and writes a PNG image of its applet area\n"
    "      painted as the design window paints it: the background, then every button\n"
    "      in the state given (UP when --state is left out), hidden ones included.\n"
    "      --no-background paints the surface with the applet background switched\n"
    "      off, like the design window's check box. Needs no display. An existing\n"
    "      FILE.png is replaced only once the new image is completely written.\n";

namespace {

/// Fonts and image readers need a QGuiApplication; without a display, the offscreen
/// platform gives one. A platform the caller chose is kept.
std::unique_ptr<QGuiApplication> startGui() {
    if (QCoreApplication::instance())
        return nullptr;
    // Qt's own notes about the session (no runtime folder, no display settings) would
    // mix with the messages a script reads on stderr; only a fatal error gets through.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    static int argc = 1;
    static char name[] = "orvelin-cli";
    static char* argv[] = {name, nullptr};
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int runRender(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    (void)out;
    const std::optional<Arguments> parsed = parseCommandLine({"render",
                                                              kRenderUsage,
                                                              1,
                                                              "give exactly one project file",
                                                              {"--state", "-o", "--output"},
                                                              {"--no-background"}},
                                                             args, err);
    if (!parsed)
        return kExitUsage;
    std::optional<std::string> output = parsed->value("-o");
    if (!output)
        output = parsed->value("--output");
    if (!output || output->empty())
        return usageError(err, "render", "name the image to write with -o FILE.png", kRenderUsage);
    const std::string state = parsed->value("--state").value_or("UP");
    ButtonState known = ButtonState::UP;
    if (!stateFromName(state, known))
        return usageError(err, "render", "--state is UP, OVER or DOWN, not \"" + state + "\"",
                          kRenderUsage);

    const std::unique_ptr<QGuiApplication> app = startGui();

    ConsoleUserInterface ui(err);
    ProjectModel model;
    if (!showLoadResult(LoadProject(model, parsed->positional.front(), &ui), ui))
        return kExitFailed;
    model.CurrentState = known;

    RenderOptions options;
    options.noBackGround = parsed->has("--no-background");
    options.ui = &ui;
    const QImage surface = renderSurface(model, known, options);

    const QString path = QString::fromStdString(*output);
    QSaveFile file(path);
    QImageWriter writer(&file, "png");
    if (!file.open(QIODevice::WriteOnly) ||
        !writer.write(surface.convertToFormat(QImage::Format_RGB32)) || !file.commit()) {
        const QString reason = writer.error() != QImageWriter::UnknownError ? writer.errorString()
                                                                            : file.errorString();
        err << "orvelin-cli render: could not write " << *output << ": " << reason.toStdString()
            << '\n';
        return kExitFailed;
    }
    return kExitOk;
}

} // namespace orvelin::cli
