// Program texts come from project files that may be damaged or hand-edited: whatever
// they hold, splitting, reading and editing them must neither crash nor lose track.
#include "actioneditor.h"
#include "actionprogram.h"
#include "fakeui.h"
#include "programbuffer.h"
#include "projectmodel.h"

#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <string>

using namespace orvelin;

namespace {

/// Mostly program-like text: digits, blanks, ";", escapes, "-999", and now and then any byte.
std::string RandomProgram(std::mt19937& rng) {
    static const char* const pieces[] = {"1",     "2",    "3",    "4",      "5", "6",
                                         "7",     "0",    " ",    " ",      ";", ";",
                                         "&nbsp", "&y01", "-999", "FF8000", "|", "\n"};
    std::uniform_int_distribution<int> length(0, 40);
    std::uniform_int_distribution<int> piece(0, static_cast<int>(std::size(pieces)) - 1);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> percent(0, 99);
    std::string text;
    for (int i = length(rng); i > 0; --i)
        text +=
            percent(rng) < 5 ? std::string(1, static_cast<char>(byte(rng))) : pieces[piece(rng)];
    return text;
}

} // namespace

TEST(ProgramFuzz, AnyTextSplitsJoinsAndReadsConsistently) {
    std::mt19937 rng(20261121);
    ReadableTexts texts{
        {"Show", "Hide", "Move", "Set Label", "Set Color", "Wait", "Call JavaScript"},
        {"Button 1", "Button 2"},
        {"Up State", "Mouse-Over", "Down State"}};
    for (int round = 0; round < 5000; ++round) {
        const std::string text = RandomProgram(rng);
        SCOPED_TRACE(text);
        const std::vector<std::string> lines = splitProgram(text);
        // Joining gives back the text up to its last ";": the tail is what splitting drops.
        const std::size_t last = text.rfind(';');
        EXPECT_EQ(joinProgram(lines), last == std::string::npos ? "" : text.substr(0, last + 1));
        for (const std::string& line : lines) {
            EXPECT_EQ(line.find(';'), std::string::npos);
            const std::optional<std::string> readable = readableLine(line, texts);
            // A line the list shows is one the editor can load back, and no other.
            EXPECT_EQ(readable.has_value(), commandNumber(line) != 0);
            for (int n = 1; n <= 8; ++n)
                EXPECT_EQ(GetWord(line, n).find(' '), std::string::npos);
        }
    }
}

TEST(ProgramFuzz, TheEditorKeepsItsListsInStepWithAnyStoredProgram) {
    std::mt19937 rng(7);
    std::uniform_int_distribution<int> action(0, 5);
    for (int round = 0; round < 500; ++round) {
        ProjectModel model;
        model.ButtonCount = 2;
        model.CurrentButton = 1;
        model.button(1).ProgramOVER = RandomProgram(rng);
        SCOPED_TRACE(model.button(1).ProgramOVER);
        orvelin::testing::FakeUserInterface ui;
        ProgramBuffer buffer{RandomProgram(rng)};
        ActionEditor editor(model, ui, buffer);
        editor.open(ProgramKind::ProgramOVER);
        for (int step = 0; step < 12; ++step) {
            const int readable = static_cast<int>(editor.readableLines().size());
            editor.select(readable == 0 ? -1 : static_cast<int>(rng() % readable));
            const std::function<void()> steps[] = {[&] { editor.remove(); },
                                                   [&] { editor.moveUp(); },
                                                   [&] { editor.moveDown(); },
                                                   [&] { editor.paste(); },
                                                   [&] { editor.loadLine(editor.selection()); },
                                                   [&] { editor.moveLine(0, readable - 1); }};
            steps[action(rng)]();
            // Readable lines are never more than command lines, and each shows one of them.
            EXPECT_LE(editor.readableLines().size(), editor.commandLines().size());
            EXPECT_GE(editor.selection(), -1);
            EXPECT_LT(editor.selection(), static_cast<int>(editor.readableLines().size()));
        }
        editor.ok({true, false});
        EXPECT_EQ(model.button(1).ProgramOVER, editor.storeProgram());
        EXPECT_EQ(splitProgram(model.button(1).ProgramOVER), editor.commandLines());
    }
}
