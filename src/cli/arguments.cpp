#include "arguments.h"

#include "commands.h"

#include <ostream>

namespace orvelin::cli {

std::optional<std::string> Arguments::value(const std::string& name) const {
    const auto it = values.find(name);
    if (it == values.end())
        return std::nullopt;
    return it->second;
}

Arguments parseArguments(const std::vector<std::string>& words,
                         const std::set<std::string>& valueOptions,
                         const std::set<std::string>& flagOptions) {
    Arguments parsed;
    bool optionsEnded = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (optionsEnded || word.size() < 2 || word[0] != '-') {
            parsed.positional.push_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        const std::size_t equals = word.find('=');
        const std::string name = word.substr(0, equals);
        if (valueOptions.count(name)) {
            if (equals != std::string::npos) {
                parsed.values[name] = word.substr(equals + 1);
            } else if (i + 1 < words.size()) {
                parsed.values[name] = words[++i];
            } else {
                parsed.error = name + " needs a value";
                return parsed;
            }
        } else if (flagOptions.count(word)) {
            parsed.flags.insert(word);
        } else {
            parsed.error = "unknown option " + word;
            return parsed;
        }
    }
    return parsed;
}

std::optional<std::string> extractOption(std::vector<std::string>& words, const std::string& name,
                                         std::string& error) {
    std::optional<std::string> found;
    std::vector<std::string> rest;
    rest.reserve(words.size());
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--") {
            rest.insert(rest.end(), words.begin() + static_cast<std::ptrdiff_t>(i), words.end());
            break;
        }
        if (word == name) {
            if (i + 1 >= words.size()) {
                error = name + " needs a value";
                return std::nullopt;
            }
            found = words[++i];
        } else if (word.rfind(name + "=", 0) == 0) {
            found = word.substr(name.size() + 1);
        } else {
            rest.push_back(word);
        }
    }
    words = std::move(rest);
    return found;
}

int usageError(std::ostream& err, const char* command, const std::string& problem,
               const char* usage) {
    err << "orvelin-cli " << command << ": " << problem << "\nUsage:\n" << usage;
    return kExitUsage;
}

std::optional<Arguments> parseCommandLine(const CommandLine& line,
                                          const std::vector<std::string>& args, std::ostream& err) {
    Arguments parsed = parseArguments(args, line.valueOptions, line.flagOptions);
    if (!parsed.error.empty()) {
        usageError(err, line.command, parsed.error, line.usage);
        return std::nullopt;
    }
    if (parsed.positional.size() != line.positionalCount) {
        usageError(err, line.command, line.positionalProblem, line.usage);
        return std::nullopt;
    }
    return parsed;
}

} // namespace orvelin::cli
