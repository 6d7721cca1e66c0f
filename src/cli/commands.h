#pragma once

#include "arguments.h"

#include <iosfwd>
#include <optional>
#include <set>
#include <string>
#include <vector>

/**
 * The commands of orvelin-cli. Each takes the words that follow its name (with
 * --program-dir already taken out by the dispatcher) and returns the exit status:
 * 0 done, 1 a load, save or render error (nothing written to `out`), 2 a wrong command
 * line (a usage text on `err`). Texts the designer would show in a message box go to
 * `err`.
 */
namespace orvelin::cli {

inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;

int runHtml(const std::vector<std::string>& args, const std::string& programFolder,
            std::ostream& out, std::ostream& err);
int runPage(const std::vector<std::string>& args, const std::string& programFolder,
            std::ostream& out, std::ostream& err);
int runBuild(const std::vector<std::string>& args, const std::string& programFolder,
             std::ostream& out, std::ostream& err);
int runResave(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int runLanguageTemplate(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int runLanguageCheck(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
#ifdef ORVELIN_CLI_RENDER
int runRender(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
#endif

/// Writes "orvelin-cli COMMAND: PROBLEM" and the command's usage text to `err`; gives
/// the exit status of a wrong command line.
int usageError(std::ostream& err, const char* command, const std::string& problem,
               const char* usage);

/// What a command accepts: its options and how many positional words it needs, with
/// the text that asks for them when the count is wrong.
struct CommandLine {
    const char* command;
    const char* usage;
    std::size_t positionalCount;
    const char* positionalProblem;
    std::set<std::string> valueOptions;
    std::set<std::string> flagOptions = {};
};

/// `args` read as `line` describes; none, after a UsageError, when they do not fit.
std::optional<Arguments> parseCommandLine(const CommandLine& line,
                                          const std::vector<std::string>& args, std::ostream& err);

/// One paragraph per command for --help and usage errors.
extern const char* const kHtmlUsage;
extern const char* const kPageUsage;
extern const char* const kBuildUsage;
extern const char* const kResaveUsage;
extern const char* const kRenderUsage;
extern const char* const kLanguageTemplateUsage;
extern const char* const kLanguageCheckUsage;

} // namespace orvelin::cli
