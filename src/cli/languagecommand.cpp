#include "arguments.h"
#include "commands.h"
#include "languagefiles.h"

#include <ostream>

namespace orvelin::cli {

const char* const kLanguageTemplateUsage =
    "  orvelin-cli language-template\n"
    "      Writes the program's English texts to stdout as a language file: the\n"
    "      main block, then every window's section. A translation starts from it.\n";

const char* const kLanguageCheckUsage =
    "  orvelin-cli language-check FILE\n"
    "      Lists every position of the language file FILE (part, number, window and\n"
    "      control or message, the English text, the file's text), then what the\n"
    "      program would read wrongly: a section too short or missing, a header it\n"
    "      will not recognise, lines it ignores. Exit status 1 when it reports one.\n";

int runLanguageTemplate(const std::vector<std::string>& args, std::ostream& out,
                        std::ostream& err) {
    if (!parseCommandLine({"language-template",
                           kLanguageTemplateUsage,
                           0,
                           "takes no file: it writes to stdout",
                           {}},
                          args, err))
        return kExitUsage;
    out << languageTemplate();
    return kExitOk;
}

int runLanguageCheck(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    const std::optional<Arguments> parsed = parseCommandLine(
        {"language-check", kLanguageCheckUsage, 1, "give the language file to check", {}}, args,
        err);
    if (!parsed)
        return kExitUsage;
    const std::string& path = parsed->positional[0];
    const auto lines = readLanguageLines(path);
    if (!lines) {
        err << "orvelin-cli language-check: cannot read " << path << '\n';
        return kExitFailed;
    }
    const LanguageReport report = checkLanguageFile(*lines);
    out << report.listing;
    if (report.problems.empty()) {
        out << "\nComplete: every text is given.\n";
        return kExitOk;
    }
    out << '\n'
        << report.problems.size() << (report.problems.size() == 1 ? " problem" : " problems")
        << ":\n";
    for (const std::string& problem : report.problems)
        out << "  " << problem << '\n';
    return kExitFailed;
}

} // namespace orvelin::cli
