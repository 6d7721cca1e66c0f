// orvelin-cli: the designer's outputs without its windows, for scripts and tests.
#include "arguments.h"
#include "commands.h"
#include "programfolder.h"

#include <iostream>
#include <string>
#include <vector>

namespace {

using namespace orvelin::cli;

void printHelp(std::ostream& out) {
    out << "Usage: orvelin-cli COMMAND [ARGUMENTS] [--program-dir DIR]\n"
           "\n"
           "Commands:\n"
        << kHtmlUsage << '\n'
        << kPageUsage << '\n'
        << kBuildUsage << '\n'
        << kResaveUsage << '\n'
#ifdef ORVELIN_CLI_RENDER
        << kRenderUsage << '\n'
#endif
        << kLanguageTemplateUsage << '\n'
        << kLanguageCheckUsage << '\n'
        << "  orvelin-cli help    (also --help, -h)\n"
           "      Shows this text.\n"
           "\n"
           "Option of every command:\n"
           "  --program-dir DIR\n"
           "      Uses DIR as the program folder (where Orvel.ini, the HTML5 player\n"
           "      and the applet files are found) in place of $ORVELIN_PROGRAM_DIR and the folder\n"
           "      the program was installed in.\n"
           "\n"
           "Messages the designer would show in a message box go to stderr.\n"
           "\n"
           "Exit status:\n"
           "  0  done\n"
           "  1  a project could not be loaded or saved (or an image not rendered); the\n"
           "     reason is on stderr and nothing is written to stdout; for build, any\n"
           "     message shown (a file not copied, the page not written)\n"
           "     (a language file that language-check finds a problem in)\n"
           "  2  wrong command line; a usage text is on stderr\n";
}

int usageError(const std::string& problem) {
    std::cerr << "orvelin-cli: " << problem << "\n\n";
    printHelp(std::cerr);
    return kExitUsage;
}

} // namespace

int main(int argc, char** argv) {
    std::vector<std::string> words(argv + 1, argv + argc);

    std::string problem;
    const auto programDir = extractOption(words, "--program-dir", problem);
    if (!problem.empty())
        return usageError(problem);
    if (programDir && programDir->empty())
        return usageError("--program-dir needs a folder");

    // Looked for only by the commands that read the program's files.
    const auto programFolder = [&] { return orvelin::findProgramFolder(programDir.value_or("")); };

    if (words.empty())
        return usageError("no command given");
    const std::string command = words.front();
    const std::vector<std::string> args(words.begin() + 1, words.end());

    if (command == "help" || command == "--help" || command == "-h") {
        printHelp(std::cout);
        return kExitOk;
    }
    if (command == "html")
        return runHtml(args, programFolder(), std::cout, std::cerr);
    if (command == "page")
        return runPage(args, programFolder(), std::cout, std::cerr);
    if (command == "build")
        return runBuild(args, programFolder(), std::cout, std::cerr);
    if (command == "resave")
        return runResave(args, std::cout, std::cerr);
    if (command == "language-template")
        return runLanguageTemplate(args, std::cout, std::cerr);
    if (command == "language-check")
        return runLanguageCheck(args, std::cout, std::cerr);
#ifdef ORVELIN_CLI_RENDER
    // Rendering needs the painting library; the build defines ORVELIN_CLI_RENDER
    // only when it is there (rendercommand.cpp).
    if (command == "render")
        return runRender(args, std::cout, std::cerr);
#endif
    return usageError("unknown command \"" + command + "\"");
}
