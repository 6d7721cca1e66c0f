#include "actioncommands.h"

#include <gtest/gtest.h>

using namespace orvelin;
using Outcome = CommandResult::Outcome;

namespace {

CommandInputs WithButtons(int button = 1, int state = 1) {
    CommandInputs in;
    in.haveButtons = true;
    in.button = button;
    in.state = state;
    return in;
}

CommandResult Move(const char* x, const char* y, const char* w, const char* h) {
    CommandInputs in = WithButtons(2);
    in.x = x;
    in.y = y;
    in.width = w;
    in.height = h;
    return BuildMove(in);
}

} // namespace

TEST(BuildCommands, ButtonCommandsNeedAButton) {
    CommandInputs none;
    none.label = "FF8000";
    EXPECT_EQ(BuildShowHide(ActionCommand::Show, none).outcome, Outcome::NoButtons);
    EXPECT_EQ(BuildShowHide(ActionCommand::Hide, none).outcome, Outcome::NoButtons);
    EXPECT_EQ(BuildMove(none).outcome, Outcome::NoButtons);
    EXPECT_EQ(BuildSetColor(none).outcome, Outcome::NoButtons);
    CommandInputs emptyLabel;
    EXPECT_EQ(BuildSetLabel(emptyLabel).outcome, Outcome::NoButtons);
    EXPECT_EQ(emptyLabel.label, "") << "a refused label keeps its box";
}

TEST(BuildCommands, WaitAndJavaScriptNeedNoButton) {
    CommandInputs none;
    none.milliseconds = "300";
    none.javaScript = "go()";
    EXPECT_EQ(BuildWait(none).line, "6 300");
    EXPECT_EQ(BuildCallJavaScript(none).line, "7 0 go()");
}

TEST(BuildCommands, ShowAndHideNameTheButton) {
    EXPECT_EQ(BuildShowHide(ActionCommand::Show, WithButtons(2)).line, "1 2");
    EXPECT_EQ(BuildShowHide(ActionCommand::Hide, WithButtons(7)).line, "2 7");
}

TEST(BuildCommands, MoveWritesEmptyBoxesAsLeftAsTheyAre) {
    EXPECT_EQ(Move("10", "", "", "").line, "3 2 10 -999 -999 -999");
    EXPECT_EQ(Move("", "", "", "").line, "3 2 -999 -999 -999 -999");
    EXPECT_EQ(Move("-999", "-32768", "32767", " 7 ").line, "3 2 -999 -32768 32767 7");
}

TEST(BuildCommands, MoveRoundsHalvesToTheEvenNumber) {
    EXPECT_EQ(Move("2.5", "3.5", "-0.5", "1.6").line, "3 2 2 4 0 2");
}

TEST(BuildCommands, MoveRefusesWhatIsNoSixteenBitNumber) {
    const CommandResult mismatch = Move("10", "", "abc", "40000");
    EXPECT_EQ(mismatch.outcome, Outcome::WrongParameters);
    EXPECT_EQ(mismatch.error, "Type mismatch") << "the first bad box is the one reported";
    EXPECT_TRUE(mismatch.line.empty());
    const CommandResult overflow = Move("32768", "", "", "");
    EXPECT_EQ(overflow.outcome, Outcome::WrongParameters);
    EXPECT_EQ(overflow.error, "Overflow");
    EXPECT_EQ(Move("", "", "", "-32769").error, "Overflow");
    EXPECT_EQ(Move(" ", "", "", "").error, "Type mismatch");
}

TEST(BuildCommands, EmptyLabelBecomesOneBlankInTheBox) {
    CommandInputs in = WithButtons(1, 2);
    const CommandResult r = BuildSetLabel(in);
    EXPECT_EQ(r.line, "4 1 2 &nbsp");
    EXPECT_EQ(in.label, " ");
}

TEST(BuildCommands, LabelIsEncodedButKeepsItsSemicolon) {
    CommandInputs in = WithButtons(3, 3);
    in.label = "Hi there|\"x\";y";
    EXPECT_EQ(BuildSetLabel(in).line, "4 3 3 Hi&nbspthereI&y02x&y02;y");
    EXPECT_EQ(in.label, "Hi there|\"x\";y");
}

TEST(BuildCommands, ColourNeedsExactlySixCharacters) {
    CommandInputs in = WithButtons(1, 2);
    for (const char* text : {"", "12345", "1234567"}) {
        in.label = text;
        const CommandResult r = BuildSetColor(in);
        EXPECT_EQ(r.outcome, Outcome::Silent) << text;
        EXPECT_TRUE(r.error.empty());
    }
    in.label = "FF8000";
    EXPECT_EQ(BuildSetColor(in).line, "5 1 2 FF8000");
    in.label = "zzzzzz"; // not checked to be hexadecimal
    EXPECT_EQ(BuildSetColor(in).line, "5 1 2 zzzzzz");
    in.label = "äöüÄÖÜ"; // six characters in twelve bytes
    EXPECT_TRUE(BuildSetColor(in).added());
}

TEST(BuildCommands, WaitStoresThePositiveNumberOrFive) {
    CommandInputs in;
    const std::pair<const char*, const char*> cases[] = {
        {"-250", "6 250"}, {"abc", "6 5"}, {"", "6 5"}, {"2.50", "6 2.5"}, {"100", "6 100"}};
    for (const auto& [typed, line] : cases) {
        in.milliseconds = typed;
        EXPECT_EQ(BuildWait(in).line, line) << typed;
    }
}

TEST(BuildCommands, JavaScriptEscapesBlanksQuotesAndSemicolons) {
    CommandInputs in;
    EXPECT_EQ(BuildCallJavaScript(in).outcome, Outcome::Silent);
    in.javaScript = "alert('Hi; there')";
    EXPECT_EQ(BuildCallJavaScript(in).line, "7 0 alert('Hi&y01&nbspthere')");
    in.javaScript = "f(\"a|b\");";
    EXPECT_EQ(BuildCallJavaScript(in).line, "7 0 f(&y02aIb&y02)&y01");
}

TEST(BuildCommands, DispatchOnTheCommandNumber) {
    CommandInputs in = WithButtons(1);
    in.milliseconds = "10";
    EXPECT_EQ(BuildCommand(1, in).line, "1 1");
    EXPECT_EQ(BuildCommand(6, in).line, "6 10");
    EXPECT_EQ(BuildCommand(4, in).line, "4 1 1 &nbsp");
    EXPECT_EQ(BuildCommand(0, in).outcome, Outcome::Silent);
    EXPECT_EQ(BuildCommand(8, in).outcome, Outcome::Silent);
}
