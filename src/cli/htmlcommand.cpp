#include "arguments.h"
#include "commands.h"
#include "consoleuserinterface.h"
#include "editor.h"
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
    "  orvelin-cli page PROJECT [--applet-name TEXT] [--no-player]\n"
    "      Writes the whole page that the designer's \"Test in Browser\" and \"Build\n"
    "      Applet\" write to stdout: the applet code inside <Html>, <Body> (which\n"
    "      calls InitJSCaller() when a button links to JavaScript) and <Center>,\n"
    "      then the line <script src=\"orvelin-player.js\"></script> that plays the\n"
    "      buttons in today's browsers. --no-player leaves that line out: the plain\n"
    "      applet page. A page with characters beyond ASCII starts with a UTF-8\n"
    "      byte-order mark.\n";

const char* const kBuildUsage =
    "  orvelin-cli build PROJECT OUT.html [--applet-name TEXT] [--no-player]\n"
    "      Does what the designer's \"Build Applet\" does: writes the page as\n"
    "      OUT.html and copies beside it the HTML5 player (orvelin-player.js), the\n"
    "      applet files the program folder holds (Orvel1b6.class, Orvel1b6.jar) and\n"
    "      every image and sound of the project under the names the applet code\n"
    "      gives them. Without the player in the program folder nothing is written.\n"
    "      --no-player builds the plain applet page, which needs the applet files:\n"
    "      missing ones stop the build after the page is written. Each message the\n"
    "      designer would show goes to stderr; the build goes on and stops where\n"
    "      the designer's does. Exit status 1 when any message was shown.\n";

namespace {

/// A project loaded from the command line and its applet code.
struct LoadedCode {
    ProjectModel model;
    GeneratedHtml html;
    std::vector<std::string> positional;
    bool withPlayer = false;
};

/**
 * Reads "PROJECT [OTHER...] [--applet-name TEXT]" with `count` positional words (and
 * "--no-player" for the commands that write a page), loads the project and generates
 * its code. Gives the exit status when the command must end here.
 */
std::optional<int> loadCode(const char* command, const char* usage, std::size_t count,
                            bool writesPage, const std::vector<std::string>& args,
                            const std::string& programFolder, std::ostream& err,
                            ConsoleUserInterface& ui, LoadedCode& loaded) {
    const std::optional<Arguments> parsed = parseCommandLine(
        {command,
         usage,
         count,
         count == 1 ? "give exactly one project file"
                    : "give the project file and the page to write",
         {"--applet-name"},
         writesPage ? std::set<std::string>{"--no-player"} : std::set<std::string>{}},
        args, err);
    if (!parsed)
        return kExitUsage;
    if (!showLoadResult(LoadProject(loaded.model, parsed->positional.front(), &ui), ui))
        return kExitFailed;
    if (const auto name = parsed->value("--applet-name"))
        setAppletNameFromBox(loaded.model, *name);
    const std::string& name = nameTheApplet(loaded.model);
    loaded.html = MakeHTML(loaded.model, name, GetJSCaller(name, programFolder));
    loaded.positional = parsed->positional;
    loaded.withPlayer = writesPage && !parsed->has("--no-player");
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

int runHtml(const std::vector<std::string>& args, const std::string& programFolder,
            std::ostream& out, std::ostream& err) {
    ConsoleUserInterface ui(err);
    LoadedCode loaded;
    if (const auto status =
            loadCode("html", kHtmlUsage, 1, false, args, programFolder, err, ui, loaded))
        return *status;
    return writeOut(loaded.html.text, "html", out, err);
}

int runPage(const std::vector<std::string>& args, const std::string& programFolder,
            std::ostream& out, std::ostream& err) {
    ConsoleUserInterface ui(err);
    LoadedCode loaded;
    if (const auto status =
            loadCode("page", kPageUsage, 1, true, args, programFolder, err, ui, loaded))
        return *status;
    return writeOut(pageText(loaded.html.text, loaded.html.usesJavaScript, loaded.withPlayer),
                    "page", out, err);
}

int runBuild(const std::vector<std::string>& args, const std::string& programFolder,
             std::ostream& /*out*/, std::ostream& err) {
    ConsoleUserInterface ui(err);
    LoadedCode loaded;
    if (const auto status =
            loadCode("build", kBuildUsage, 2, true, args, programFolder, err, ui, loaded))
        return *status;
    buildPage(loaded.model, {loaded.html.text, loaded.html.usesJavaScript, loaded.withPlayer},
              loaded.positional[1], ui, programFolder);
    return ui.messageCount() == 0 ? kExitOk : kExitFailed;
}

} // namespace orvelin::cli
