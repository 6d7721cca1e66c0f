#include "actionprogram.h"

#include "texthelpers.h"

#include <cstdint>

namespace orvelin {

namespace {

// Entry `number` (1-based) of `list`; the empty text for anything that is not
// a number inside the list, which is how a command for a since-removed button
// still gets a readable line.
std::string Entry(const std::vector<std::string>& list, std::string_view number) {
    const int index = entryIndex(number, list.size());
    return index < 0 ? std::string() : list[static_cast<std::size_t>(index)];
}

// A move field as the list shows it: "left as it is" reads as two blanks.
std::string moveField(std::string_view word) {
    return ReplaceAll(word, "-999", "  ");
}

} // namespace

std::vector<std::string> splitProgram(std::string_view text) {
    std::vector<std::string> lines;
    std::string line;
    for (char c : text) {
        if (c == ';') {
            lines.push_back(std::move(line));
            line.clear();
        } else {
            line += c;
        }
    }
    return lines;
}

std::string joinProgram(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
        text += ';';
    }
    return text;
}

std::string GetWord(std::string_view line, int n) {
    std::string word;
    int counter = 1;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c != ' ')
            word += c;
        if (c == ' ' || i + 1 == line.size()) {
            if (counter == n)
                return word;
            word.clear();
            ++counter;
        }
    }
    return {};
}

int commandNumber(std::string_view line) {
    const std::string first = GetWord(line, 1);
    if (first.size() != 1 || first[0] < '1' || first[0] > '7')
        return 0;
    return first[0] - '0';
}

int entryIndex(std::string_view word, std::size_t listSize) {
    const WholeNumber n = parseWholeNumber(word, 1, 32767);
    if (n.error != NumberError::None || n.value > static_cast<std::int64_t>(listSize))
        return -1;
    return static_cast<int>(n.value - 1);
}

std::optional<std::string> readableLine(std::string_view line, const ReadableTexts& texts) {
    const int command = commandNumber(line);
    if (command == 0)
        return std::nullopt;
    const std::size_t index = static_cast<std::size_t>(command - 1);
    const std::string name = index < texts.commands.size() ? texts.commands[index] : std::string();

    switch (command) {
    case 1:
    case 2:
        return name + " " + Entry(texts.buttons, GetWord(line, 2));
    case 3:
        return name + " " + Entry(texts.buttons, GetWord(line, 2)) +
               "  ->  x:" + moveField(GetWord(line, 3)) + " y:" + moveField(GetWord(line, 4)) +
               " " + texts.widthCaption + moveField(GetWord(line, 5)) + " " + texts.heightCaption +
               moveField(GetWord(line, 6));
    case 4:
        return name + " " + Entry(texts.buttons, GetWord(line, 2)) + " " +
               Entry(texts.states, GetWord(line, 3)) + "  ->  " + DecodeLabel(GetWord(line, 4));
    case 5:
        return name + " " + Entry(texts.buttons, GetWord(line, 2)) + " " +
               Entry(texts.states, GetWord(line, 3)) + "  ->  " + GetWord(line, 4);
    case 6:
        return name + ": " + GetWord(line, 2) + " ms";
    default:
        return name + ": " + DecodeLabel(GetWord(line, 3));
    }
}

} // namespace orvelin
