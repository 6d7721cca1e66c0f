#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace orvelin::cli {

/// A command's words sorted into positional arguments, options with a value
/// ("--name VALUE" or "--name=VALUE") and plain flags. After "--" every word is
/// positional, so a project may be called "--odd.orv".
struct Arguments {
    std::vector<std::string> positional;
    std::map<std::string, std::string> values;
    std::set<std::string> flags;
    std::string error; ///< what is wrong with the command line; empty when nothing

    std::optional<std::string> value(const std::string& name) const;
    bool has(const std::string& flag) const { return flags.count(flag) != 0; }
};

Arguments parseArguments(const std::vector<std::string>& words,
                         const std::set<std::string>& valueOptions,
                         const std::set<std::string>& flagOptions = {});

/**
 * Takes every "--name VALUE" / "--name=VALUE" out of `words` (before a "--") and
 * returns the last value. Sets `error` when the option has no value.
 */
std::optional<std::string> extractOption(std::vector<std::string>& words, const std::string& name,
                                         std::string& error);

} // namespace orvelin::cli
