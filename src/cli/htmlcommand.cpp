#include "arguments.h"
#include "commands.h"
#include "consoleuserinterface.h"
#include "htmlgenerator.h"
#include "projectfile.h"
#include "projectmodel.h"

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

int RunHtml(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    const Arguments parsed = ParseArguments(args, {"--applet-name"});
    if (parsed.error.empty() && parsed.positional.size() != 1)
        err << "orvelin-cli html: give exactly one project file\n";
    if (!parsed.error.empty())
        err << "orvelin-cli html: " << parsed.error << '\n';
    if (!parsed.error.empty() || parsed.positional.size() != 1) {
        err << "Usage:\n" << kHtmlUsage;
        return kExitUsage;
    }

    ConsoleUserInterface ui(err);
    ProjectModel model;
    if (!LoadProject(model, parsed.positional.front(), ui))
        return kExitFailed;
    if (const auto name = parsed.value("--applet-name"))
        SetAppletNameFromBox(model, *name);

    const GeneratedHtml html = MakeHTML(model, &ui);
    out.write(html.text.data(), static_cast<std::streamsize>(html.text.size()));
    out.flush();
    if (!out) {
        err << "orvelin-cli html: could not write the applet code\n";
        return kExitFailed;
    }
    return kExitOk;
}

} // namespace orvelin::cli
