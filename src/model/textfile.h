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
    int code = 0;            ///< the errno of the call that failed; 0 when none is known

    /// What the system says about `code` ("No space left on device"); "" without one.
    std::string systemText() const;
};

/// `message`, and on a second line the system's cause when it gave one.
std::string withSystemCause(const std::string& message, const TextFileError& error);

/// The whole file as UTF-8, or an error.
std::optional<std::string> readTextFile(const std::string& path, TextFileError* error = nullptr);

/// Converts bytes that are not valid UTF-8 from Windows-1252; valid UTF-8 passes.
std::string toUtf8(std::string_view bytes);

/// Splits text into lines at CR LF or a lone LF, at most `maxLines` of them;
/// `lastTerminated` tells whether the last line given ended with a line break.
std::vector<std::string_view> splitLines(std::string_view text, bool* lastTerminated = nullptr,
                                         std::size_t maxLines = std::size_t(-1));

/**
 * Replaces a file safely: writes a temporary file in the same folder, flushes it
 * and renames it over the target. A read-only target or an unwritable folder fails
 * and leaves the old file exactly as it was. The temporary file is named
 * ".<name>.orvelin-save-XXXXXX" (six letters or digits) and locked while it is
 * written; after a successful save, such files of the same target that no save holds
 * any more (left by a save that was killed) are removed, and nothing else.
 */
bool writeFileAtomically(const std::string& path, std::string_view bytes,
                         TextFileError* error = nullptr);

} // namespace orvelin
