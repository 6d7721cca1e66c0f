#include "arguments.h"
#include "commands.h"
#include "consoleuserinterface.h"
#include "htmlgenerator.h"
#include "projectfile.h"
#include "projectmodel.h"
#include "publishing.h"

#include <optional>
#include <ostream>

namespace orvelin::cli {

const char* const kHtmlUsage =
    "  orvelin-cli html PROJECT [--applet-name TEXT]\n"
    "      Loads the project file PROJECT and writes its applet code (the HTML\n"
    "      fragment with the <applet> tag) to stdout, byte for byte as the designer\n"
    "      builds it, with CR LF line ends. --applet-name TEXT names the applet as\n"
    "      typing TEXT into the designer's applet-name box does (blanks and\n"
    "      punctuation become \"_\"); without it the name comes from the project\n"
    "      file's name.\n";

const char* const kPageUsage =
    "  orvelin-cli page PROJECT [--applet-name TEXT]\n"
    "      Writes the whole page that the designer's \"Test in Browser\" and \"Build\n"
    "      Applet\" write to stdout: the applet code inside <Html>, <Body> (which\n"
    "      calls InitJSCaller() when a button links to JavaScript) and <Center>.\n"
    "      A page with characters beyond ASCII starts with a UTF-8 byte-order mark.\n";

const char* const kBuildUsage =
    "  orvelin-cli build PROJECT OUT.html [--applet-name TEXT]\n"
    "      Does what the designer's \"Build Applet\" does: writes the page as\n"
    "      OUT.html and copies beside it the applet files (Orvel1b6.class and\n"
    "      Orvel1b6.jar from the program folder) and every image and sound of the\n"
    "      project under the names the applet code gives them. Each message the\n"
    "      designer would show goes to stderr; the build goes on and stops where\n"
    "      the designer's does (missing applet files stop it after the page is\n"
    "      written). Exit status 1 when any message was shown.\n";

namespace {

/// A project loaded from the command line and its applet code.
struct LoadedCode {
    ProjectModel model;
    GeneratedHtml html;
    std::vector<std::string> positional;
};

/**
 * Reads "PROJECT [OTHER...] [--applet-name TEXT]" with `count` positional words, loads
 * the project and generates its code. Gives the exit status when the command must
 * end here.
 */
std::optional<int> loadCode(const char* command, const char* usage, std::size_t count,
                            const std::vector<std::string>& args, std::ostream& err,
                            ConsoleUserInterface& ui, LoadedCode& loaded) {
    const Arguments parsed = ParseArguments(args, {"--applet-name"});
    if (parsed.error.empty() && parsed.positional.size() != count)
        err << "orvelin-cli " << command
            << (count == 1 ? ": give exactly one project file\n"
                           : ": give the project file and the page to write\n");
    if (!parsed.error.empty())
        err << "orvelin-cli " << command << ": " << parsed.error << '\n';
    if (!parsed.error.empty() || parsed.positional.size() != count) {
        err << "Usage:\n" << usage;
        return kExitUsage;
    }
    if (!LoadProject(loaded.model, parsed.positional.front(), ui))
        return kExitFailed;
    if (const auto name = parsed.value("--applet-name"))
        SetAppletNameFromBox(loaded.model, *name);
    loaded.html = MakeHTML(loaded.model, &ui);
    loaded.positional = parsed.positional;
    return std::nullopt;
}

int writeOut(const std::string& text, const char* command, std::ostream& out, std::ostream& err) {
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    if (!out) {
        err << "orvelin-cli " << command << ": could not write to stdout\n";
        return kExitFailed;
    }
    return kExitOk;
}

} // namespace

int RunHtml(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    ConsoleUserInterface ui(err);
    LoadedCode loaded;
    if (const auto status = loadCode("html", kHtmlUsage, 1, args, err, ui, loaded))
        return *status;
    return writeOut(loaded.html.text, "html", out, err);
}

int RunPage(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    ConsoleUserInterface ui(err);
    LoadedCode loaded;
    if (const auto status = loadCode("page", kPageUsage, 1, args, err, ui, loaded))
        return *status;
    return writeOut(PageText(loaded.html.text, loaded.html.usesJavaScript), "page", out, err);
}

int RunBuild(const std::vector<std::string>& args, std::ostream& /*out*/, std::ostream& err) {
    ConsoleUserInterface ui(err);
    LoadedCode loaded;
    if (const auto status = loadCode("build", kBuildUsage, 2, args, err, ui, loaded))
        return *status;
    BuildPage(loaded.model, {loaded.html.text, loaded.html.usesJavaScript}, loaded.positional[1],
              ui);
    return ui.messageCount() == 0 ? kExitOk : kExitFailed;
}

} // namespace orvelin::cli
