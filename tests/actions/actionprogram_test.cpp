#include "actionprogram.h"
#include "texthelpers.h"

#include <gtest/gtest.h>

using namespace orvelin;
using Lines = std::vector<std::string>;

namespace {

ReadableTexts FreshProjectTexts(int buttons) {
    ReadableTexts t;
    t.commands = {"Show", "Hide", "Move", "Set Label", "Set Color", "Wait", "Call JavaScript"};
    for (int i = 1; i <= buttons; ++i)
        t.buttons.push_back("Button " + std::to_string(i));
    t.states = {"Up State", "Mouse-Over", "Down State"};
    t.widthCaption = "width:";
    t.heightCaption = "height:";
    return t;
}

std::string Readable(std::string_view line, int buttons = 3) {
    return readableLine(line, FreshProjectTexts(buttons)).value_or("<none>");
}

} // namespace

TEST(ProgramText, EverySemicolonClosesALineAndTextAfterTheLastIsDropped) {
    const std::vector<std::pair<std::string, Lines>> cases = {
        {"", {}},    {"1 2;;", {"1 2", ""}},          {";", {""}}, {"1 2;2 3", {"1 2"}},
        {"1 2", {}}, {"4 1 1 a;b;", {"4 1 1 a", "b"}}};
    for (const auto& [program, lines] : cases)
        EXPECT_EQ(splitProgram(program), lines) << program;
    EXPECT_EQ(joinProgram({}), "");
    EXPECT_EQ(joinProgram({"1 2", "", "2 3"}), "1 2;;2 3;");
}

TEST(ProgramText, GetWordCountsFromOneAndTwoBlanksMakeAnEmptyWord) {
    const std::tuple<const char*, int, const char*> cases[] = {
        {"3 1 10 -999", 1, "3"}, {"3 1 10 -999", 4, "-999"}, {"3 1 10 -999", 5, ""}, {"", 1, ""},
        {"a  b", 2, ""},         {"a  b", 3, "b"},           {" a", 2, "a"},         {"a ", 2, ""}};
    for (const auto& [line, n, word] : cases)
        EXPECT_EQ(GetWord(line, n), word) << '"' << line << "\" " << n;
}

TEST(ReadableLines, ShowOneLinePerCommandAndNoneForAnythingElse) {
    const std::pair<std::string, const char*> cases[] = {
        {"1 2", "Show Button 2"},
        {"3 1 10 -999 -999 -999", "Move Button 1  ->  x:10 y:   width:   height:  "},
        {"4 1 1 Hi&nbspthere", "Set Label Button 1 Up State  ->  Hi there"},
        {"5 1 2 FF8000", "Set Color Button 1 Mouse-Over  ->  FF8000"},
        {"6 500", "Wait: 500 ms"},
        {"7 0 alert('Hi&y01&nbspthere')", "Call JavaScript: alert('Hi; there')"},
        // The label as the encoding left it: "|" is changed for good, a typed "&nbsp"
        // comes back as a blank.
        {"4 1 1 " + EncodeLabel("a|b"), "Set Label Button 1 Up State  ->  aIb"},
        {"4 1 1 " + EncodeLabel("x&nbspy"), "Set Label Button 1 Up State  ->  x y"},
        // Numbers outside the lists show empty text.
        {"1 4", "Show "},
        {"4 2 9 a", "Set Label Button 2   ->  a"},
        {"", "<none>"},
        {" 1 2", "<none>"}};
    for (const auto& [line, readable] : cases)
        EXPECT_EQ(Readable(line), readable) << '"' << line << '"';
    EXPECT_EQ(Readable("1 1", 0), "Show ");
}
