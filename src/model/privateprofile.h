#pragma once

#include "textfile.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace orvelin {

/**
 * An INI file read by the private-profile rules: "[Section]" lines open a section,
 * "key=value" lines inside it hold values. Section and key names are compared
 * without regard to (ASCII) case, blanks around names and values are trimmed, the
 * first occurrence of a key wins and a missing key gives the caller's default.
 * Lines before the first section, lines without "=" and lines starting with ";" hold
 * no value. Used for the legacy project format and the [Global] section of Orvel.ini.
 */
class PrivateProfile {
public:
    PrivateProfile() = default;

    /// Parses UTF-8 text; CR LF and lone LF both end a line.
    static PrivateProfile fromText(std::string_view text);
    /// Only `keys` of `section` are kept, so that what is held stays bounded by what
    /// the caller asks for, whatever the text holds besides.
    static PrivateProfile fromText(std::string_view text, std::string_view section,
                                   const std::vector<std::string>& keys);

    /**
     * Reads a file (UTF-8 or Windows-1252). A file that cannot be read gives an empty
     * profile, in which every key reads as its default; `error` then says why.
     */
    static PrivateProfile fromFile(const std::string& path, TextFileError* error = nullptr);

    /// The value of `key` in `section`, or `defaultValue` when there is none.
    std::string value(std::string_view section, std::string_view key,
                      std::string_view defaultValue) const;
    bool contains(std::string_view section, std::string_view key) const;

    /**
     * `text` with `key` in `section` set to `value`, every other byte kept: the first
     * "key=" line of the section is rewritten in place, a missing key is added after
     * the section's last value line, a missing section is appended at the end. New
     * lines end with the line break the text already uses (CR LF for a new text).
     */
    static std::string withValue(std::string_view text, std::string_view section,
                                 std::string_view key, std::string_view value);

    /**
     * Sets one key in the file at `path` (creating the file when it is missing) and
     * replaces the file safely: on failure the old file stays as it was.
     */
    static bool writeValue(const std::string& path, std::string_view section, std::string_view key,
                           std::string_view value, TextFileError* error = nullptr);

private:
    // Lower-case section, a NUL, lower-case key -> value.
    std::unordered_map<std::string, std::string> m_values;
};

} // namespace orvelin
