#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

/**
 * Reading and writing the program's text files. A file that is valid UTF-8 is
 * taken as UTF-8 (a byte-order mark is dropped); any other file is read as
 * Windows-1252, so projects from old machines keep their accented labels.
 */
struct TextFileError {
    std::string description; ///< as the designer shows it, e.g. "File not found"
};

/// The whole file as UTF-8, or an error.
std::optional<std::string> ReadTextFile(const std::string& path, TextFileError* error = nullptr);

/// Converts bytes that are not valid UTF-8 from Windows-1252; valid UTF-8 passes.
std::string ToUtf8(std::string_view bytes);

/// Splits text into lines at CR LF or a lone LF; `terminated` tells whether the
/// last line ended with a line break.
std::vector<std::string_view> SplitLines(std::string_view text, bool* lastTerminated = nullptr);

/**
 * Replaces a file safely: writes a temporary file in the same folder, flushes it
 * and renames it over the target. A read-only target or an unwritable folder fails
 * and leaves the old file exactly as it was.
 */
bool WriteFileAtomically(const std::string& path, std::string_view bytes,
                         TextFileError* error = nullptr);

} // namespace orvelin
