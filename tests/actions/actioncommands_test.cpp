#include "actioncommands.h"

#include <gtest/gtest.h>

using namespace orvelin;
using Outcome = CommandResult::Outcome;

namespace {

/// What a build came to, in one text: the line, or the kind of refusal.
std::string Built(const CommandResult& r) {
    switch (r.outcome) {
    case Outcome::Line:
        return r.line;
    case Outcome::Silent:
        return "<silent>";
    case Outcome::NoButtons:
        return "<no buttons>";
    case Outcome::WrongParameters:
        return "<wrong: " + r.error + ">";
    }
    return "<?>";
}

CommandInputs button(int button, int state = 1, const char* label = "") {
    CommandInputs in;
    in.haveButtons = true;
    in.button = button;
    in.state = state;
    in.label = label;
    return in;
}
CommandInputs Move(const char* x, const char* y, const char* w, const char* h) {
    CommandInputs in = button(2);
    in.x = x;
    in.y = y;
    in.width = w;
    in.height = h;
    return in;
}
/// No buttons, and the given milliseconds and script.
CommandInputs Typed(const char* milliseconds, const char* javaScript = "") {
    CommandInputs in;
    in.milliseconds = milliseconds;
    in.javaScript = javaScript;
    return in;
}

} // namespace

TEST(BuildCommand, TurnsTheTypedInputsIntoTheCommandLineOrARefusal) {
    CommandInputs none = Typed("300", "go()");
    none.label = "FF8000";
    const std::vector<std::tuple<int, CommandInputs, std::string>> cases = {
        {1, none, "<no buttons>"},
        {4, Typed(""), "<no buttons>"},
        {7, none, "7 0 go()"},
        {0, button(1), "<silent>"},
        {1, button(2), "1 2"},
        // Empty boxes leave a value as it is; halves round to the even number.
        {3, Move("10", "", "", ""), "3 2 10 -999 -999 -999"},
        {3, Move("-999", "-32768", "32767", " 7 "), "3 2 -999 -32768 32767 7"},
        {3, Move("2.5", "3.5", "-0.5", "1.6"), "3 2 2 4 0 2"},
        // The first bad box is the one reported.
        {3, Move("10", "", "abc", "40000"), "<wrong: Type mismatch>"},
        {3, Move("32768", "", "", ""), "<wrong: Overflow>"},
        {4, button(1, 2, ""), "4 1 2 &nbsp"},
        {4, button(3, 3, "Hi there|\"x\";y"), "4 3 3 Hi&nbspthereI&y02x&y02;y"},
        // A colour needs exactly six characters, not checked to be hexadecimal.
        {5, button(1, 2, "12345"), "<silent>"},
        {5, button(1, 2, "zzzzzz"), "5 1 2 zzzzzz"},
        {5, button(1, 2, "äöüÄÖÜ"), "5 1 2 äöüÄÖÜ"}, // six characters in twelve bytes
        // Wait stores the positive number, or 5.
        {6, Typed("-250"), "6 250"},
        {6, Typed("abc"), "6 5"},
        {6, Typed("2.50"), "6 2.5"},
        {7, Typed("", ""), "<silent>"},
        {7, Typed("", "f(\"a|b\");"), "7 0 f(&y02aIb&y02)&y01"},
    };
    for (auto [command, inputs, expected] : cases) {
        SCOPED_TRACE(std::to_string(command) + " " + inputs.label + inputs.x + inputs.milliseconds);
        EXPECT_EQ(Built(buildCommand(command, inputs)), expected);
    }
}
