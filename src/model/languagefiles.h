#pragma once

#include "textcatalogue.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

class Settings;
class UserInterface;

/// The language that means the built-in texts and no file.
inline constexpr std::string_view kEnglish = "English";

/// The file of the language `code` in the program folder: "<folder>/<code>_lng".
std::string languageFilePath(const std::string& programFolder, std::string_view code);

/// Whether windows in this language are laid out right to left (Hebrew).
bool isRightToLeft(std::string_view code);
/// The two-letter locale of a language code, for the toolkit's own texts: "ru" for "rus", "he" for
/// "heb"; empty for English and codes it does not know.
std::string localeOf(std::string_view code);

/**
 * The lines of a language file, without their line ends, a line break inside a text
 * written as the two characters "\n" and given back as CR LF. None when the file
 * cannot be opened or read.
 */
std::optional<std::vector<std::string>> readLanguageLines(const std::string& path);

/// Puts lines 0 to 103 of `lines` into the main block of `texts`.
void applyMainBlock(TextCatalogue& texts, const std::vector<std::string>& lines);

/**
 * Puts the lines that follow the header of `section` into its texts, as the program has
 * always read them: the header itself is never applied, lines beyond the section's
 * length are ignored, and a second header of the same name starts the count again.
 */
void applySection(TextCatalogue& texts, TextSection section, const std::vector<std::string>& lines);

/**
 * The language operations of the designer: each reads the whole file once, as the
 * windows that call them are shown, and stores the language as `Current` after a
 * successful read.
 */
class LanguageFiles {
public:
    LanguageFiles(TextCatalogue& texts, Settings& settings, std::string programFolder);

    /// The main block of `code`, then `sections`. A file that cannot be read shows
    /// "Language File: <path> not found" and stores "English"; false then, and the texts
    /// stay as they are.
    bool applyMain(const std::string& code, UserInterface& ui,
                   std::initializer_list<TextSection> sections = {});
    /// The sections of one window; false, and nothing changes, without a readable file.
    bool applyWindow(std::initializer_list<TextSection> sections, const std::string& code);
    /// applyWindow with the language in force, when that is not English.
    void applyWindowInForce(std::initializer_list<TextSection> sections);

    /// The stored `Current`: "English", "rus", "heb".
    std::string current() const;
    const TextCatalogue& texts() const { return m_texts; }

private:
    std::optional<std::vector<std::string>> read(const std::string& code) const;

    TextCatalogue& m_texts;
    Settings& m_settings;
    std::string m_programFolder;
};

/// The English texts as a language file, to start a translation from.
std::string languageTemplate();

/// What `orvelin-cli language-check` finds in a language file.
struct LanguageReport {
    std::string listing;               ///< every position, its English text and the file's
    std::vector<std::string> problems; ///< one line each; none for a complete file
};

LanguageReport checkLanguageFile(const std::vector<std::string>& lines);

} // namespace orvelin
