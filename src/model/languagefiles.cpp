#include "languagefiles.h"

#include "programfolder.h"
#include "settings.h"
#include "textfile.h"
#include "texthelpers.h"
#include "userinterface.h"

#include <algorithm>
#include <cstdint>
#include <utility>

namespace orvelin {

namespace {

constexpr std::size_t kMainBlockLines = 104;
constexpr std::string_view kLineBreak = "\r\n";
constexpr std::string_view kWrittenBreak = "\\n";

/**
 * The reading loop every window's operation runs over the whole file: `apply` gets the
 * position in the section (0 for the first line after the header) and the line's
 * index. The counter is compared before the header test, so the header line itself is
 * never applied, and it counts on past the section's end, where lines are ignored.
 */
template <typename Apply>
void forSectionLines(const std::vector<std::string>& lines, std::string_view header,
                     std::size_t count, Apply apply) {
    std::uint16_t counter = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (counter >= 2 && counter <= count + 1)
            apply(std::size_t(counter - 2), i);
        if (lines[i] == header)
            counter = 1;
        if (counter >= 1)
            ++counter;
    }
}

std::string written(std::string_view text) {
    return ReplaceAll(text, kLineBreak, kWrittenBreak);
}

bool isKnownHeader(std::string_view line) {
    for (const SectionInfo& info : textSections())
        if (!info.header.empty() && line == info.header)
            return true;
    return false;
}

// A header as a translator may have mistyped it: in any case, with blanks in it.
std::string looseHeader(std::string_view text) {
    std::string out = toLowerAscii(text);
    std::erase_if(out, [](char c) { return c == ' ' || c == '\t'; });
    return out;
}

std::string quoted(std::string_view text) {
    return '"' + std::string(text) + '"';
}

std::string lineNumber(std::size_t index) {
    return "line " + std::to_string(index + 1);
}

} // namespace

std::string languageFilePath(const std::string& programFolder, std::string_view code) {
    return joinPath(programFolder, std::string(code) + "_lng");
}

bool isRightToLeft(std::string_view code) {
    return code == "heb";
}

std::string localeOf(std::string_view code) {
    if (code == "rus")
        return "ru";
    if (code == "heb")
        return "he";
    return {};
}

std::optional<std::vector<std::string>> readLanguageLines(const std::string& path) {
    const std::optional<std::string> text = readTextFile(path);
    if (!text)
        return std::nullopt;
    std::vector<std::string> lines;
    for (std::string_view line : splitLines(*text))
        lines.push_back(ReplaceAll(toUtf8(line), kWrittenBreak, kLineBreak));
    return lines;
}

void applyMainBlock(TextCatalogue& texts, const std::vector<std::string>& lines) {
    const std::size_t count = sectionInfo(TextSection::Main).entries.size();
    for (std::size_t i = 0; i < std::min({lines.size(), count, kMainBlockLines}); ++i)
        texts.set(TextSection::Main, i, lines[i]);
}

void applySection(TextCatalogue& texts, TextSection section,
                  const std::vector<std::string>& lines) {
    if (section == TextSection::Main) {
        applyMainBlock(texts, lines);
        return;
    }
    const SectionInfo& info = sectionInfo(section);
    forSectionLines(
        lines, info.header, info.entries.size(),
        [&](std::size_t position, std::size_t i) { texts.set(section, position, lines[i]); });
}

LanguageFiles::LanguageFiles(TextCatalogue& texts, Settings& settings, std::string programFolder)
    : m_texts(texts), m_settings(settings), m_programFolder(std::move(programFolder)) {}

std::optional<std::vector<std::string>> LanguageFiles::read(const std::string& code) const {
    return readLanguageLines(languageFilePath(m_programFolder, code));
}

bool LanguageFiles::applyMain(const std::string& code, UserInterface& ui,
                              std::initializer_list<TextSection> sections) {
    const auto lines = read(code);
    if (!lines) {
        const TextCatalogue& msg = m_texts;
        ui.showWarning(msg[Msg::LanguageFile] + languageFilePath(m_programFolder, code) +
                       msg[Msg::LanguageFileNotFound]);
        m_settings.setValue(SettingKey::LanguageCurrent, std::string(kEnglish));
        return false;
    }
    applyMainBlock(m_texts, *lines);
    for (TextSection section : sections)
        applySection(m_texts, section, *lines);
    m_settings.setValue(SettingKey::LanguageCurrent, code);
    return true;
}

bool LanguageFiles::applyWindow(std::initializer_list<TextSection> sections,
                                const std::string& code) {
    const auto lines = read(code);
    if (!lines)
        return false;
    for (TextSection section : sections)
        applySection(m_texts, section, *lines);
    m_settings.setValue(SettingKey::LanguageCurrent, code);
    return true;
}

void LanguageFiles::applyWindowInForce(std::initializer_list<TextSection> sections) {
    const std::string code = current();
    if (code != kEnglish)
        applyWindow(sections, code);
}

std::string LanguageFiles::current() const {
    return m_settings.value(SettingKey::LanguageCurrent);
}

std::string languageTemplate() {
    std::string out;
    for (const SectionInfo& info : textSections()) {
        if (!info.header.empty())
            out.append(info.header).append(kLineBreak);
        for (const TextEntry& entry : info.entries)
            out.append(written(englishText(entry))).append(kLineBreak);
    }
    return out;
}

LanguageReport checkLanguageFile(const std::vector<std::string>& lines) {
    LanguageReport report;
    auto problem = [&](std::string text) { report.problems.push_back(std::move(text)); };
    // Which line fills each position, as the program would read the file.
    std::vector<bool> used(lines.size(), false);

    for (const SectionInfo& info : textSections()) {
        const std::size_t count = info.entries.size();
        std::vector<std::optional<std::size_t>> source(count);
        const std::string part = info.header.empty() ? "main block" : std::string(info.header);

        if (info.header.empty()) {
            for (std::size_t i = 0; i < std::min(lines.size(), count); ++i)
                source[i] = i;
            if (lines.size() < count)
                problem("the main block needs " + std::to_string(count) +
                        " lines and the file has " + std::to_string(lines.size()) +
                        ": the rest of its texts stay English");
        } else {
            std::vector<std::size_t> headers;
            for (std::size_t i = 0; i < lines.size(); ++i)
                if (lines[i] == info.header)
                    headers.push_back(i);
            if (headers.empty()) {
                bool misspelt = false;
                for (std::size_t i = 0; i < lines.size(); ++i)
                    if (looseHeader(lines[i]) == looseHeader(info.header)) {
                        problem(lineNumber(i) + ": " + quoted(lines[i]) +
                                " is not recognised; the header is written " + quoted(info.header) +
                                " exactly");
                        misspelt = true;
                    }
                if (!misspelt)
                    problem("section " + quoted(info.header) + " is missing: its " +
                            std::to_string(count) + " texts stay English");
            }
            for (std::size_t k = 1; k < headers.size(); ++k)
                problem(lineNumber(headers[k]) + ": a second " + quoted(info.header) +
                        " starts the section again");
            forSectionLines(lines, info.header, count,
                            [&](std::size_t position, std::size_t i) { source[position] = i; });
            if (!headers.empty()) {
                const std::size_t given = std::size_t(std::count_if(
                    source.begin(), source.end(), [](auto s) { return s.has_value(); }));
                if (given < count)
                    problem("section " + quoted(info.header) + " has " + std::to_string(given) +
                            " of its " + std::to_string(count) +
                            " lines before the file ends: the rest stay as they are");
            }
        }

        report.listing += part + '\n';
        for (std::size_t p = 0; p < count; ++p) {
            const TextEntry& entry = info.entries[p];
            const std::string english = written(englishText(entry));
            std::string given = "(not given)";
            if (source[p]) {
                const std::size_t i = *source[p];
                used[i] = true;
                given = written(lines[i]);
                if (isKnownHeader(lines[i]))
                    problem(lineNumber(i) + ": the header " + quoted(lines[i]) +
                            " is read as text " + std::to_string(p + 1) + " of the " + part +
                            ", which is too short before it");
                else if (lines[i].empty() && !english.empty())
                    problem(lineNumber(i) + ": text " + std::to_string(p + 1) + " of the " + part +
                            " (" + entryLabel(entry) + ") is empty");
            }
            report.listing += "  " + std::to_string(p + 1) + '\t' + entryLabel(entry) + '\t' +
                              english + '\t' + given + '\n';
        }
    }

    // Lines no part reads: headers are read as such, everything else is ignored.
    for (std::size_t i = 0; i < lines.size();) {
        if (used[i] || isKnownHeader(lines[i]) || lines[i].empty()) {
            ++i;
            continue;
        }
        std::size_t end = i;
        while (end + 1 < lines.size() && !used[end + 1] && !isKnownHeader(lines[end + 1]))
            ++end;
        problem((end == i ? lineNumber(i)
                          : "lines " + std::to_string(i + 1) + " to " + std::to_string(end + 1)) +
                " belong to no text and are ignored");
        i = end + 1;
    }
    return report;
}

} // namespace orvelin
