#include "fakeui.h"
#include "projectfile.h"
#include "tempfolder.h"
#include "textfile.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <string>
#include <vector>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;

namespace {

const std::set<std::string> kCauses = {"Input past end of file", "Type mismatch", "Overflow",
                                       "Subscript out of range"};
const std::string kErrorPrefix = "Error loading project.\r\n";

// True when the one message shown is the load error with one of the four causes.
bool IsLoadError(const std::string& message) {
    return message.rfind(kErrorPrefix, 0) == 0 &&
           kCauses.count(message.substr(kErrorPrefix.size()));
}

// The one note that a load removed characters some fields cannot hold.
bool IsCleaningNote(const std::string& message) {
    return message.rfind("Characters that these fields cannot hold were removed:\r\n", 0) == 0;
}

class LoaderFuzz : public ::testing::Test {
protected:
    // Each round gets a new file: rewriting one file in place makes the file system
    // flush it every time, which would cost more than all the loading.
    std::string write(const std::string& bytes) {
        std::remove(file.c_str());
        file = folder.write("fuzz" + std::to_string(++files) + ".orv", bytes);
        return file;
    }
    std::size_t below(std::size_t n) {
        return n == 0 ? 0 : std::uniform_int_distribution<std::size_t>(0, n - 1)(random);
    }
    std::string mutate(std::string text);

    orvelin::testing::TempFolder folder;
    std::string file;
    int files = 0;
    std::mt19937 random{20240611u};
};

// A valid project with `count` buttons whose fields vary, labels with every token.
std::string ValidProject(int count, std::mt19937& random) {
    ProjectModel m;
    m.ButtonCount = static_cast<std::int16_t>(count);
    m.AppletProgramStart = "ShowButton(1);";
    for (int b = 1; b <= count; ++b) {
        ButtonRecord& r = m.Button(b);
        r.x = static_cast<std::int16_t>(random() % 600);
        r.LabelUP = "Menu \"" + std::to_string(b) + "\"\\nline; é";
        r.URL = "javascript:go(" + std::to_string(b) + ")";
        r.BackColorOVER = static_cast<std::int32_t>(random() % 16777216);
        r.ProgramDOWN = "SetLabel(" + std::to_string(b) + ",\"x y\");";
    }
    return ProjectText(m);
}

std::string LoaderFuzz::mutate(std::string text) {
    static const std::array<const char*, 9> kNumbers = {
        "99999999999", "-40000", "32768", "1e400", "2147483648", "-0.5", "", "0x10", "&H7FFF"};
    const int steps = 1 + static_cast<int>(below(3));
    for (int s = 0; s < steps; ++s) {
        const std::size_t at = below(text.size() + 1);
        const std::size_t kind = below(9);
        switch (kind) {
        case 0: // flip a byte
            if (!text.empty())
                text[below(text.size())] = static_cast<char>(random() & 0xFF);
            break;
        case 1: // cut the file short
            text.resize(at);
            break;
        case 2:
            text.insert(at, "|");
            break;
        case 3:
            text.insert(at, std::array<const char*, 3>{"\r", "\n", "\r\n"}[below(3)]);
            break;
        case 4: { // a huge or odd number in place of a field
            const std::size_t bar = text.find('|', at);
            if (bar != std::string::npos)
                text.insert(bar, kNumbers[below(kNumbers.size())]);
            break;
        }
        case 5:
        case 6: { // duplicate or drop a line
            const std::size_t start = text.rfind('\n', at == 0 ? 0 : at - 1);
            const std::size_t from = start == std::string::npos ? 0 : start + 1;
            const std::size_t end = text.find('\n', from);
            const std::size_t to = end == std::string::npos ? text.size() : end + 1;
            if (kind == 5)
                text.insert(from, text.substr(from, to - from));
            else
                text.erase(from, to - from);
            break;
        }
        case 7: { // another button count in the applet line's third field
            const std::size_t line = text.find('\n');
            const std::size_t width = text.find('|', line == std::string::npos ? 0 : line);
            const std::size_t height =
                text.find('|', width == std::string::npos ? width : width + 1);
            const std::size_t count =
                text.find('|', height == std::string::npos ? height : height + 1);
            if (count != std::string::npos) {
                const int value = static_cast<int>(below(115)) - 5;
                text.replace(height + 1, count - height - 1, std::to_string(value));
            }
            break;
        }
        default: // a random byte anywhere
            text.insert(at, 1, static_cast<char>(random() & 0xFF));
            break;
        }
    }
    return text;
}

// The file's lines as a stream reader sees them, and whether the last one ended.
struct FileLines {
    std::vector<std::string> lines;
    bool lastEnded = true;
};

FileLines SplitBytes(const std::string& text) {
    FileLines out;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = text.find('\n', start);
        out.lastEnded = end != std::string::npos;
        std::string line = text.substr(start, end - start);
        if (out.lastEnded && !line.empty() && line.back() == '\r')
            line.pop_back();
        out.lines.push_back(line);
        start = out.lastEnded ? end + 1 : text.size();
    }
    return out;
}

// True when button line `index` (0-based in the file) can be read completely.
bool LineComplete(const FileLines& f, std::size_t index) {
    return index < f.lines.size() &&
           (index + 1 < f.lines.size() || f.lastEnded ||
            std::count(f.lines[index].begin(), f.lines[index].end(), '|') >= kButtonFieldCount);
}

// What a kept button must be: its line parsed into an untouched slot, without what its
// fields cannot hold.
bool ButtonMatchesLine(const ProjectModel& m, int i, const FileLines& f) {
    ButtonRecord expected;
    const std::size_t index = static_cast<std::size_t>(i) + 1;
    return LineComplete(f, index) && !ParseButton(f.lines[index], expected) &&
           (CleanTextFields(expected), m.Button(i) == expected);
}

} // namespace

TEST_F(LoaderFuzz, DamagedProjectsLoadOrFailWithTheButtonsBeforeTheDamage) {
    const std::array<std::string, 3> bases = {ValidProject(0, random), ValidProject(4, random),
                                              ValidProject(12, random)};
    int failures = 0;
    for (int round = 0; round < 3000; ++round) {
        // Any valid UTF-8 file is read as it is; the oracle compares its own split.
        const std::string bytes = mutate(bases[below(bases.size())]);
        write(bytes);
        const FileLines f = SplitBytes(ToUtf8(bytes));
        ProjectModel model;
        FakeUserInterface ui;
        const bool ok = LoadProject(model, file, ui);
        SCOPED_TRACE("round " + std::to_string(round));

        // Besides the one error, only the earlier-version warning and the note on removed
        // characters may have been shown.
        std::vector<std::string> errors;
        for (const FakeUserInterface::Shown& shown : ui.shown) {
            ASSERT_EQ(shown.kind, "message");
            if (shown.title == "Warning")
                ASSERT_EQ(shown.text.find("Project was created by earlier version"), 0u);
            else if (!IsCleaningNote(shown.text))
                errors.push_back(shown.text);
        }
        ASSERT_FALSE(ui.progressVisible);
        const int kept = model.ButtonCount;
        ASSERT_GE(kept, 0);
        ASSERT_LE(kept, kButtonSlots - 1);
        ASSERT_LE(static_cast<std::size_t>(kept) + 2, std::max<std::size_t>(f.lines.size(), 2));
        for (int i = 1; i <= kept; ++i)
            ASSERT_TRUE(ButtonMatchesLine(model, i, f)) << "button " << i;
        if (ok) {
            ASSERT_TRUE(errors.empty());
            ASSERT_TRUE(model.Saved);
            ASSERT_EQ(model.ProjectFileName, file);
        } else {
            ++failures;
            ASSERT_EQ(errors.size(), 1u);
            ASSERT_TRUE(IsLoadError(errors[0])) << errors[0];
            ASSERT_EQ(model.ProjectFileName, "");
            // The button after the kept ones is the one that could not be read.
            if (kept >= 1) {
                const std::size_t next = static_cast<std::size_t>(kept) + 2;
                ButtonRecord probe;
                ASSERT_TRUE(!LineComplete(f, next) || ParseButton(f.lines[next], probe));
            }
        }
    }
    // The mutations must reach both outcomes to mean anything.
    EXPECT_GT(failures, 300);
    EXPECT_LT(failures, 2900);
}

TEST_F(LoaderFuzz, DamagedLegacyProjectsLoadOrFail) {
    std::string base = "[Buttons]\r\nButtonCount=3\r\nAppletWidth=300\r\n";
    for (int b = 1; b <= 3; ++b) {
        const std::string n = std::to_string(b);
        base += "x_" + n + "=" + std::to_string(b * 10) + "\r\nLabelUP_" + n + "=Item " + n +
                "\r\nFontSizeUP_" + n + "=12\r\nBackColorUP_" + n + "=255\r\nURL_" + n +
                "=a.htm\r\n";
    }
    int failures = 0;
    for (int round = 0; round < 1500; ++round) {
        write(mutate(base));
        ProjectModel model;
        FakeUserInterface ui;
        const bool ok = LoadProject_OLD(model, file, ui);
        SCOPED_TRACE("round " + std::to_string(round));
        ASSERT_FALSE(ui.progressVisible);
        ASSERT_GE(model.ButtonCount, 0);
        ASSERT_LE(model.ButtonCount, kButtonSlots - 1);
        std::vector<std::string> messages = ui.messages();
        std::erase_if(messages, IsCleaningNote);
        if (ok) {
            ASSERT_TRUE(messages.empty());
        } else {
            ++failures;
            ASSERT_EQ(messages.size(), 1u);
            ASSERT_TRUE(IsLoadError(messages[0])) << messages[0];
        }
    }
    EXPECT_GT(failures, 50);
}

TEST_F(LoaderFuzz, RandomRecordsParseOrStopAtTheBadField) {
    static const std::array<const char*, 14> kPieces = {
        "|", "|", "|", "0", "12", "-", ".", " ", "&nbsp", "&y0", "1", "\"", "é", "99999"};
    for (int round = 0; round < 5000; ++round) {
        std::string line;
        const std::size_t pieces = below(160);
        for (std::size_t p = 0; p < pieces; ++p)
            line += below(8) == 0 ? std::string(1, static_cast<char>(random() & 0xFF))
                                  : kPieces[below(kPieces.size())];
        ButtonRecord record;
        const FieldError error = ParseButton(line, record);
        if (error) {
            ASSERT_GE(error.position, 0);
            ASSERT_LT(error.position, kButtonFieldCount);
            ASSERT_NE(ButtonFields()[static_cast<std::size_t>(error.position)].kind,
                      FieldKind::Label);
            ASSERT_TRUE(error.description == "Type mismatch" || error.description == "Overflow")
                << error.description;
            continue;
        }
        // What was read is written and read back to the same record.
        ButtonRecord again;
        ASSERT_FALSE(ParseButton(SerializeButton(record), again)) << line;
        ASSERT_EQ(again, record) << line;
    }
}
