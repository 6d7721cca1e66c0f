#include "actionprogram.h"
#include "texthelpers.h"

#include <gtest/gtest.h>

using namespace orvelin;

namespace {

ReadableTexts FreshProjectTexts(int buttons) {
    ReadableTexts t;
    t.commands = {"Show", "Hide", "Move", "Set Label", "Set Color", "Wait", "Call JavaScript"};
    for (int i = 1; i <= buttons; ++i)
        t.buttons.push_back("Button " + std::to_string(i));
    t.states = {"Up State", "Mouse-Over", "Down State"};
    return t;
}

std::string Readable(std::string_view line, int buttons = 3) {
    return ReadableLine(line, FreshProjectTexts(buttons)).value_or("<none>");
}

} // namespace

TEST(ProgramText, EmptyProgramSplitsIntoNoLines) {
    EXPECT_TRUE(SplitProgram("").empty());
}

TEST(ProgramText, EverySemicolonClosesALineEvenAnEmptyOne) {
    EXPECT_EQ(SplitProgram("1 2;;"), (std::vector<std::string>{"1 2", ""}));
    EXPECT_EQ(SplitProgram(";"), (std::vector<std::string>{""}));
}

TEST(ProgramText, TextAfterTheLastSemicolonIsDropped) {
    EXPECT_EQ(SplitProgram("1 2;2 3"), (std::vector<std::string>{"1 2"}));
    EXPECT_TRUE(SplitProgram("1 2").empty());
}

TEST(ProgramText, JoiningEndsEveryLineWithASemicolon) {
    EXPECT_EQ(JoinProgram({}), "");
    EXPECT_EQ(JoinProgram({"6 500"}), "6 500;");
    EXPECT_EQ(JoinProgram({"1 2", "", "2 3"}), "1 2;;2 3;");
    const std::string program = "2 2;6 500;1 2;4 1 1 Hi&nbspthere;";
    EXPECT_EQ(JoinProgram(SplitProgram(program)), program);
}

TEST(ProgramText, SemicolonInALabelSplitsTheCommand) {
    const auto lines = SplitProgram("4 1 1 a;b;");
    ASSERT_EQ(lines, (std::vector<std::string>{"4 1 1 a", "b"}));
    EXPECT_EQ(Readable(lines[0]), "Set Label Button 1 Up State  ->  a");
    EXPECT_FALSE(ReadableLine(lines[1], FreshProjectTexts(3)));
}

TEST(GetWordOfLine, CountsWordsFromOne) {
    EXPECT_EQ(GetWord("3 1 10 -999 -999 -999", 1), "3");
    EXPECT_EQ(GetWord("3 1 10 -999 -999 -999", 3), "10");
    EXPECT_EQ(GetWord("3 1 10 -999 -999 -999", 6), "-999");
    EXPECT_EQ(GetWord("3 1 10 -999 -999 -999", 7), "");
    EXPECT_EQ(GetWord("x", 1), "x");
    EXPECT_EQ(GetWord("", 1), "");
}

TEST(GetWordOfLine, TwoBlanksMakeAnEmptyWord) {
    EXPECT_EQ(GetWord("a  b", 2), "");
    EXPECT_EQ(GetWord("a  b", 3), "b");
    EXPECT_EQ(GetWord(" a", 1), "");
    EXPECT_EQ(GetWord(" a", 2), "a");
    EXPECT_EQ(GetWord("a ", 1), "a");
    EXPECT_EQ(GetWord("a ", 2), "");
}

TEST(ReadableLines, ShowOneLinePerCommand) {
    EXPECT_EQ(Readable("1 2"), "Show Button 2");
    EXPECT_EQ(Readable("2 3"), "Hide Button 3");
    EXPECT_EQ(Readable("3 1 10 -999 -999 -999"), "Move Button 1  ->  x:10 y:   width:   height:  ");
    EXPECT_EQ(Readable("3 2 -5 0 20 30"), "Move Button 2  ->  x:-5 y:0 width:20 height:30");
    EXPECT_EQ(Readable("4 1 1 Hi&nbspthere"), "Set Label Button 1 Up State  ->  Hi there");
    EXPECT_EQ(Readable("5 1 2 FF8000"), "Set Color Button 1 Mouse-Over  ->  FF8000");
    EXPECT_EQ(Readable("6 500"), "Wait: 500 ms");
    EXPECT_EQ(Readable("7 0 alert('Hi&y01&nbspthere')"), "Call JavaScript: alert('Hi; there')");
}

TEST(ReadableLines, MoveLeftAsItIsShowsTwoBlanksAfterEveryCaption) {
    EXPECT_EQ(Readable("3 1 -999 -999 -999 -999"),
              "Move Button 1  ->  x:   y:   width:   height:  ");
}

TEST(ReadableLines, OnlyTheSevenCommandNumbersHaveAReadableForm) {
    for (const char* line : {"", "0 1", "8 1", "01 2", "b", " 1 2", "+1 2", "12 1"})
        EXPECT_FALSE(ReadableLine(line, FreshProjectTexts(3))) << '"' << line << '"';
}

TEST(ReadableLines, NumbersOutsideTheListsShowEmptyText) {
    EXPECT_EQ(Readable("1 4"), "Show ");
    EXPECT_EQ(Readable("2 0"), "Hide ");
    EXPECT_EQ(Readable("1 x"), "Show ");
    EXPECT_EQ(Readable("1 1", 0), "Show ");
    EXPECT_EQ(Readable("4 2 9 a"), "Set Label Button 2   ->  a");
}

TEST(ReadableLines, UseTheTextsTheyAreGiven) {
    ReadableTexts t = FreshProjectTexts(2);
    t.commands[2] = "Verschieben";
    t.buttons = {"Knopf 1", "Knopf 2"};
    t.widthCaption = "Breite:";
    t.heightCaption = "Höhe:";
    EXPECT_EQ(ReadableLine("3 2 1 2 3 4", t), "Verschieben Knopf 2  ->  x:1 y:2 Breite:3 Höhe:4");
}

TEST(ReadableLines, LabelsComeBackAsTheEncodingLeftThem) {
    // "|" is changed for good; a typed "&nbsp" comes back as a blank.
    EXPECT_EQ(Readable("4 1 1 " + EncodeLabel("a|b")), "Set Label Button 1 Up State  ->  aIb");
    EXPECT_EQ(Readable("4 1 1 " + EncodeLabel("x&nbspy")), "Set Label Button 1 Up State  ->  x y");
    EXPECT_EQ(Readable("4 1 3 " + EncodeLabel("say \"hi\"")),
              "Set Label Button 1 Down State  ->  say \"hi\"");
}

TEST(ProgramKinds, AreTitledByTheirMoment) {
    EXPECT_EQ(ProgramKindTitle("ProgramUP"), "Set Action: On Leaving Button...");
    EXPECT_EQ(ProgramKindTitle("ProgramOVER"), "Set Action: On Entering Button...");
    EXPECT_EQ(ProgramKindTitle("ProgramDOWN"), "Set Action: On Button Press...");
    EXPECT_EQ(ProgramKindTitle("AppletProgramStart"), "On Applet Start");
    EXPECT_EQ(ProgramKindTitle("AppletProgramOVER"), "On Mouse Moving above the Applet");
    EXPECT_EQ(ProgramKindTitle("AppletProgramDOWN"), "On Mouse Clicking the Applet");
    EXPECT_EQ(ProgramKindTitle("AppletProgramOUT"), "On Mouse Exiting the Applet");
    EXPECT_EQ(ProgramKindTitle("programup"), "");
}
