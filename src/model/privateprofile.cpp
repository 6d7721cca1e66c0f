#include "privateprofile.h"

#include "texthelpers.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <unordered_set>
#include <vector>

namespace orvelin {

namespace {

std::string_view trimBlanks(std::string_view s) {
    const auto blank = [](char c) { return c == ' ' || c == '\t'; };
    while (!s.empty() && blank(s.front()))
        s.remove_prefix(1);
    while (!s.empty() && blank(s.back()))
        s.remove_suffix(1);
    return s;
}

std::string lookupKey(std::string_view section, std::string_view key) {
    std::string k = toLowerAscii(trimBlanks(section));
    k += '\0';
    k += toLowerAscii(trimBlanks(key));
    return k;
}

/// One line of an INI text and what it holds.
struct ProfileLine {
    enum class Kind { Other, Section, Value };
    Kind kind = Kind::Other;
    std::size_t begin = 0; ///< first byte of the line
    std::size_t end = 0;   ///< one past its last byte, line break excluded
    std::size_t next = 0;  ///< first byte of the following line
    std::string_view name; ///< section or key name, trimmed
    std::string_view value;
};

// Calls `visit` with each line of `text` in order until it returns false. Nothing is
// kept per line: a file of millions of empty lines costs no memory beyond its text.
template <typename Visit> void forEachLine(std::string_view text, Visit visit) {
    std::size_t start = 0;
    while (start < text.size()) {
        ProfileLine line;
        line.begin = start;
        const std::size_t lf = text.find('\n', start);
        line.next = lf == std::string_view::npos ? text.size() : lf + 1;
        line.end = lf == std::string_view::npos ? text.size() : lf;
        if (line.end > start && text[line.end - 1] == '\r')
            --line.end;
        const std::string_view content = trimBlanks(text.substr(start, line.end - start));
        if (!content.empty() && content.front() == '[') {
            const std::size_t close = content.find(']');
            line.kind = ProfileLine::Kind::Section;
            line.name = trimBlanks(content.substr(
                1, close == std::string_view::npos ? std::string_view::npos : close - 1));
        } else if (!content.empty() && content.front() != ';') {
            const std::size_t eq = content.find('=');
            if (eq != std::string_view::npos) {
                line.kind = ProfileLine::Kind::Value;
                line.name = trimBlanks(content.substr(0, eq));
                line.value = trimBlanks(content.substr(eq + 1));
            }
        }
        if (!visit(line))
            return;
        start = line.next;
    }
}

bool sameName(std::string_view a, std::string_view b) {
    return a.size() == b.size() && toLowerAscii(a) == toLowerAscii(b);
}

} // namespace

PrivateProfile PrivateProfile::fromText(std::string_view text) {
    PrivateProfile profile;
    std::optional<std::string_view> section;
    forEachLine(text, [&](const ProfileLine& line) {
        if (line.kind == ProfileLine::Kind::Section)
            section = line.name;
        else if (line.kind == ProfileLine::Kind::Value && section)
            profile.m_values.emplace(lookupKey(*section, line.name), std::string(line.value));
        return true;
    });
    return profile;
}

PrivateProfile PrivateProfile::fromText(std::string_view text, std::string_view section,
                                        const std::vector<std::string>& keys) {
    std::unordered_set<std::string> wanted;
    for (const std::string& key : keys)
        wanted.insert(lookupKey(section, key));
    PrivateProfile profile;
    bool inSection = false;
    std::string name;
    forEachLine(text, [&](const ProfileLine& line) {
        if (line.kind == ProfileLine::Kind::Section) {
            inSection = sameName(line.name, trimBlanks(section));
        } else if (line.kind == ProfileLine::Kind::Value && inSection) {
            name = lookupKey(section, line.name);
            if (wanted.count(name) != 0)
                profile.m_values.emplace(name, std::string(line.value));
        }
        return true;
    });
    return profile;
}

PrivateProfile PrivateProfile::fromFile(const std::string& path, TextFileError* error) {
    const std::optional<std::string> text = readTextFile(path, error);
    return text ? fromText(*text) : PrivateProfile{};
}

std::string PrivateProfile::value(std::string_view section, std::string_view key,
                                  std::string_view defaultValue) const {
    const auto it = m_values.find(lookupKey(section, key));
    return it == m_values.end() ? std::string(defaultValue) : it->second;
}

bool PrivateProfile::contains(std::string_view section, std::string_view key) const {
    return m_values.count(lookupKey(section, key)) != 0;
}

std::string PrivateProfile::withValue(std::string_view text, std::string_view section,
                                      std::string_view key, std::string_view value) {
    // A value is one line: anything from a line break on could not be read back.
    value = value.substr(0, value.find_first_of("\r\n"));
    section = trimBlanks(section);
    key = trimBlanks(key);
    const std::string_view lineBreak =
        text.find("\r\n") != std::string_view::npos || text.find('\n') == std::string_view::npos
            ? std::string_view("\r\n")
            : std::string_view("\n");

    bool inSection = false;
    bool inFirstSection = false;
    // A new key goes after the last value line of the first matching section: `insertAt`
    // is where the line after it starts.
    std::optional<std::size_t> insertAt;
    std::optional<std::string> rewritten;
    forEachLine(text, [&](const ProfileLine& line) {
        if (line.kind == ProfileLine::Kind::Section) {
            inSection = sameName(line.name, section);
            inFirstSection = inSection && !insertAt;
            if (inFirstSection)
                insertAt = line.next;
            return true;
        }
        if (!inSection || line.kind != ProfileLine::Kind::Value)
            return true;
        if (sameName(line.name, key)) {
            rewritten.emplace(text.substr(0, line.begin));
            rewritten->append(line.name).append("=").append(value);
            rewritten->append(text.substr(line.end));
            return false;
        }
        if (inFirstSection)
            insertAt = line.next;
        return true;
    });
    if (rewritten)
        return std::move(*rewritten);

    std::string out;
    const std::size_t at = insertAt.value_or(text.size());
    std::string addition;
    if (!insertAt)
        addition.append("[").append(section).append("]").append(lineBreak);
    addition.append(key).append("=").append(value).append(lineBreak);
    out.append(text.substr(0, at));
    // The line we add after may be the text's last one, without a line break, or ended
    // by a lone CR, which the reader counts as no part of the value: a LF completes it.
    if (at > 0 && out.back() == '\r')
        out.append("\n");
    else if (at > 0 && out.back() != '\n')
        out.append(lineBreak);
    out.append(addition);
    out.append(text.substr(at));
    return out;
}

bool PrivateProfile::writeValue(const std::string& path, std::string_view section,
                                std::string_view key, std::string_view value,
                                TextFileError* error) {
    // The bytes are edited as they are, so the rest of the file (the script block of
    // Orvel.ini, an old code page) comes through untouched.
    std::string bytes;
    std::error_code ec;
    if (std::filesystem::exists(path, ec)) {
        std::ifstream in(path, std::ios::binary);
        if (!in || std::filesystem::is_directory(path, ec)) {
            if (error)
                error->description = "Path/File access error";
            return false;
        }
        bytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        if (in.bad()) {
            if (error)
                error->description = "Device I/O error";
            return false;
        }
    }
    return writeFileAtomically(path, withValue(bytes, section, key, value), error);
}

} // namespace orvelin
