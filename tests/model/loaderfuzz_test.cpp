#include "fakeui.h"
#include "messages.h"
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

// What every read must give, damaged file or not: a button count inside the table,
// the progress window closed, a known cause on failure and the file's name only on
// success. A project read in full or in part saves and reads back to itself.
void ExpectSoundResult(const LoadResult& result, ProjectModel& model, const FakeUserInterface& ui,
                       const std::string& file, const std::string& again) {
    ASSERT_FALSE(ui.progressVisible);
    ASSERT_GE(model.ButtonCount, 0);
    ASSERT_LE(model.ButtonCount, kButtonSlots - 1);
    if (result.error) {
        ASSERT_TRUE(kCauses.count(result.error->cause)) << result.error->cause;
        ASSERT_EQ(model.ProjectFileName, "");
    } else {
        ASSERT_TRUE(model.Saved);
        ASSERT_EQ(model.ProjectFileName, file);
    }
    ProjectModel reread;
    reread.AppletName = model.AppletName; // the writer does not write it where it is read
    const std::string text = projectText(model);
    orvelin::testing::WriteBytes(again, text);
    const LoadResult second = LoadProject(reread, again);
    ASSERT_FALSE(second.error) << second.error->cause;
    ASSERT_TRUE(second.cleaned.empty());
    ASSERT_EQ(projectText(reread), text);
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
        ButtonRecord& r = m.button(b);
        r.x = static_cast<std::int16_t>(random() % 600);
        r.LabelUP = "Menu \"" + std::to_string(b) + "\"\\nline; é";
        r.URL = "javascript:go(" + std::to_string(b) + ")";
        r.BackColorOVER = static_cast<std::int32_t>(random() % 16777216);
        r.ProgramDOWN = "SetLabel(" + std::to_string(b) + ",\"x y\");";
    }
    return projectText(m);
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

} // namespace

TEST_F(LoaderFuzz, DamagedProjectsLoadOrFailAndWhatIsKeptSavesBackToItself) {
    const std::array<std::string, 3> bases = {ValidProject(0, random), ValidProject(4, random),
                                              ValidProject(12, random)};
    const std::string again = folder.path("again.orv");
    int failures = 0;
    for (int round = 0; round < 3000; ++round) {
        write(mutate(bases[below(bases.size())]));
        ProjectModel model;
        FakeUserInterface ui;
        const LoadResult result = LoadProject(model, file, &ui);
        SCOPED_TRACE("round " + std::to_string(round));
        ASSERT_NO_FATAL_FAILURE(ExpectSoundResult(result, model, ui, file, again));
        failures += result.error ? 1 : 0;
    }
    // The mutations must reach both outcomes to mean anything.
    EXPECT_GT(failures, 300);
    EXPECT_LT(failures, 2900);
}

TEST_F(LoaderFuzz, AFileCutShortFailsAndKeepsTheButtonsBeforeTheCut) {
    ProjectModel saved;
    for (int i = 0; i < 5; ++i)
        saved.addButton(kFactoryDefaultButton);
    for (int i = 1; i <= 5; ++i)
        saved.button(i).LabelUP = "Item \"" + std::to_string(i) + "\"";
    const std::string full = projectText(saved);
    const std::size_t lastBar = full.rfind('|');
    for (std::size_t cut = 0; cut < lastBar; cut += 1 + below(7)) {
        const std::string part = full.substr(0, cut);
        ProjectModel model;
        const LoadResult result = LoadProject(model, write(part));
        SCOPED_TRACE("cut at " + std::to_string(cut));
        ASSERT_TRUE(result.error);
        ASSERT_TRUE(kCauses.count(result.error->cause)) << result.error->cause;
        // Every button whose line ended before the cut is kept, as it was saved.
        const auto ended = static_cast<int>(std::count(part.begin(), part.end(), '\n'));
        ASSERT_GE(model.ButtonCount, std::max(0, ended - 2));
        for (int i = 1; i <= model.ButtonCount; ++i)
            ASSERT_EQ(model.button(i), saved.button(i)) << "button " << i;
    }
}

TEST_F(LoaderFuzz, DamagedLegacyProjectsLoadOrFail) {
    std::string base = "[Buttons]\r\nButtonCount=3\r\nAppletWidth=300\r\n";
    for (int b = 1; b <= 3; ++b) {
        const std::string n = std::to_string(b);
        base += "x_" + n + "=" + std::to_string(b * 10) + "\r\nLabelUP_" + n + "=Item " + n +
                "\r\nFontSizeUP_" + n + "=12\r\nBackColorUP_" + n + "=255\r\nURL_" + n +
                "=a.htm\r\n";
    }
    const std::string again = folder.path("again.orv");
    int failures = 0;
    for (int round = 0; round < 1500; ++round) {
        write(mutate(base));
        ProjectModel model;
        FakeUserInterface ui;
        const LoadResult result = LoadProject_OLD(model, file, &ui);
        SCOPED_TRACE("round " + std::to_string(round));
        ASSERT_NO_FATAL_FAILURE(ExpectSoundResult(result, model, ui, file, again));
        failures += result.error ? 1 : 0;
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
        const FieldError error = parseButton(line, record);
        if (error) {
            ASSERT_GE(error.position, 0);
            ASSERT_LT(error.position, kButtonFieldCount);
            ASSERT_NE(buttonFields()[static_cast<std::size_t>(error.position)].kind,
                      FieldKind::Label);
            ASSERT_TRUE(error.description == "Type mismatch" || error.description == "Overflow")
                << error.description;
            continue;
        }
        // What was read is written and read back to the same record.
        ButtonRecord again;
        ASSERT_FALSE(parseButton(serializeButton(record), again)) << line;
        ASSERT_EQ(again, record) << line;
    }
}
