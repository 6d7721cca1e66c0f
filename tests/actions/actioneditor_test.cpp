#include "actioneditor.h"
#include "fakeui.h"
#include "programbuffer.h"
#include "projectmodel.h"
#include "textcatalogue.h"

#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
using Lines = std::vector<std::string>;

namespace {

enum Command { Show, Hide, Move, SetLabel, SetColor, Wait, CallJavaScript };

/// Three buttons, button 2 current, ProgramOVER of button 2 "2 1;6 500;".
class ActionEditorTest : public ::testing::Test {
protected:
    void SetUp() override {
        model.ButtonCount = 3;
        model.CurrentButton = 2;
        model.button(1).ProgramOVER = "1 1;";
        model.button(2).ProgramOVER = "2 1;6 500;";
    }

    void open(const std::string& program) {
        model.button(2).ProgramOVER = program;
        editor.open(ProgramKind::ProgramOVER);
    }
    bool add(int command, int button = 0) {
        editor.setCommand(command);
        editor.setButton(button);
        return editor.add();
    }

    ProjectModel model;
    FakeUserInterface ui;
    ProgramBuffer buffer;
    // The main editor's state captions, which it hands to the action editor.
    ActionEditor editor{model, ui, buffer, {"Up State", "Mouse-Over", "Down State"}};
};

} // namespace

TEST_F(ActionEditorTest, OpeningFillsTheListsAndLoadsTheCurrentButtonsProgram) {
    editor.open(ProgramKind::ProgramOVER);
    EXPECT_EQ(editor.buttonTexts(), Lines({"Button 1", "Button 2", "Button 3"}));
    EXPECT_EQ(editor.commandLines(), Lines({"2 1", "6 500"}));
    EXPECT_EQ(editor.readableLines(), Lines({"Hide Button 1", "Wait: 500 ms"}));
    EXPECT_EQ(editor.selection(), -1);
    EXPECT_EQ(editor.inputs().milliseconds, "100");

    model.CurrentButton = 0;
    editor.open(ProgramKind::ProgramOVER);
    EXPECT_TRUE(editor.commandLines().empty());
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(ActionEditorTest, ALabelWithASemicolonIsAddedOnlyWhenTheUserAcceptsTheCut) {
    editor.open(ProgramKind::ProgramOVER);
    editor.inputs().label = "Bye now; see you";
    ui.answers = {UserInterface::Answer::No, UserInterface::Answer::Yes};
    EXPECT_FALSE(add(SetLabel));
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.inputs().label, "Bye now; see you"); // back to the box, unchanged
    EXPECT_TRUE(add(SetLabel));
    EXPECT_EQ(ui.shown.size(), 2u);
    EXPECT_EQ(editor.commandLines().size(), 3u);
}

TEST_F(ActionEditorTest, AppletKindsUseTheProjectsSlot) {
    model.AppletProgramOUT = "7 0 bye();";
    editor.open(ProgramKind::AppletProgramOUT);
    EXPECT_EQ(editor.readableLines(), Lines({"Call JavaScript: bye()"}));
    ASSERT_TRUE(add(Show, 2));
    editor.ok({true, true, true});
    EXPECT_EQ(model.AppletProgramOUT, "7 0 bye();1 3;");
    EXPECT_EQ(model.button(2).ProgramOVER, "2 1;6 500;");
}

TEST_F(ActionEditorTest, ButtonCommandsAreRefusedWithoutButtonsButWaitIsAdded) {
    model.ButtonCount = 0;
    model.CurrentButton = 0;
    editor.open(ProgramKind::AppletProgramStart);
    EXPECT_EQ(editor.button(), -1);
    for (Command c : {Show, Hide, Move, SetLabel, SetColor}) {
        editor.inputs().label = "FF0000";
        EXPECT_FALSE(add(c, -1)) << c;
    }
    ASSERT_EQ(ui.shown.size(), 5u);
    EXPECT_EQ(ui.shown[0].text, "No Buttons on the Applet");
    EXPECT_EQ(ui.shown[0].title, "");
    EXPECT_TRUE(editor.commandLines().empty());
    EXPECT_TRUE(add(Wait, -1));
    EXPECT_EQ(editor.commandLines(), Lines({"6 100"}));
}

TEST_F(ActionEditorTest, ColourOfFiveCharactersOrNoCommandAddsNothing) {
    editor.open(ProgramKind::ProgramOVER);
    editor.setCommand(SetLabel);
    editor.inputs().label = "Hello";
    editor.setCommand(SetColor); // empties the label box
    EXPECT_EQ(editor.inputs().label, "");
    editor.inputs().label = "12345";
    EXPECT_FALSE(editor.add());
    EXPECT_TRUE(ui.shown.empty());
    editor.setCommand(-1); // no command: the list is rebuilt with the last line selected
    EXPECT_FALSE(editor.add());
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 1);
}

TEST_F(ActionEditorTest, MoveWithAWrongBoxShowsTheConversionErrorAndAddsNothing) {
    editor.open(ProgramKind::ProgramOVER);
    editor.select(0);
    editor.inputs().x = "10";
    editor.inputs().width = "abc";
    EXPECT_FALSE(add(Move));
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_EQ(ui.shown[0].text, "Type mismatch\r\nThe value to correct is in the box width");
    EXPECT_EQ(ui.shown[0].title, "Wrong Parameters");
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 0);
}

TEST_F(ActionEditorTest, CopyThenPasteDoublesTheProgramAndPastedTextNeedsItsFinalSemicolon) {
    editor.open(ProgramKind::ProgramOVER);
    editor.select(1);
    editor.paste(); // an empty buffer: nothing
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 1);

    editor.copy();
    EXPECT_EQ(buffer.text, "2 1;6 500;");
    editor.paste();
    EXPECT_EQ(editor.storeProgram(), "2 1;6 500;2 1;6 500;");
    EXPECT_EQ(editor.readableLines().size(), 4u);
    EXPECT_EQ(model.button(2).ProgramOVER, "2 1;6 500;");
    buffer.text = "1 3;2 3"; // without its final ";": the last command is lost
    editor.paste();
    EXPECT_EQ(editor.storeProgram(), "2 1;6 500;2 1;6 500;1 3;");
    ActionEditor other(model, ui, buffer); // the buffer serves every program kind
    other.open(ProgramKind::AppletProgramDOWN);
    other.paste();
    other.ok({});
    EXPECT_EQ(model.AppletProgramDOWN, "1 3;");
}

TEST_F(ActionEditorTest, LabelWithASemicolonPutsTheListsOutOfStep) {
    open("4 1 1 a;b;1 1;");
    EXPECT_EQ(editor.commandLines().size(), 3u);
    EXPECT_EQ(editor.readableLines(),
              Lines({"Set Label Button 1 Up State  ->  a", "Show Button 1"}));
    // Removing "Show Button 1" takes the command line at index 1, which is "b".
    editor.select(1);
    editor.remove();
    EXPECT_EQ(editor.commandLines(), Lines({"4 1 1 a", "1 1"}));
    EXPECT_EQ(editor.readableLines(), Lines({"Set Label Button 1 Up State  ->  a"}));
    EXPECT_EQ(editor.selection(), -1);
    editor.refreshActionList();
    EXPECT_EQ(editor.readableLines().size(), 2u);
}

TEST_F(ActionEditorTest, RemovingSelectsTheFollowingLineOrNothingAfterTheLast) {
    open("1 1;1 2;1 3;");
    editor.remove(); // no selection: nothing happens
    EXPECT_EQ(editor.commandLines().size(), 3u);
    editor.select(1);
    editor.remove();
    EXPECT_EQ(editor.commandLines(), Lines({"1 1", "1 3"}));
    EXPECT_EQ(editor.selection(), 1);
    EXPECT_EQ(editor.listToolTip(), "Show Button 3");
    editor.remove();
    EXPECT_EQ(editor.commandLines(), Lines({"1 1"}));
    EXPECT_EQ(editor.selection(), -1);
    EXPECT_EQ(editor.listToolTip(), "");
}

TEST_F(ActionEditorTest, MovingSwapsWithTheNeighbourFollowsTheLineAndStopsAtTheEnds) {
    open("1 1;1 2;1 3;");
    struct Step {
        int select;
        bool up;
        const char* program;
        int selection;
    };
    for (const Step& s : {Step{0, true, "1 1;1 2;1 3;", 0}, Step{-1, false, "1 1;1 2;1 3;", -1},
                          Step{2, true, "1 1;1 3;1 2;", 1}, Step{0, false, "1 3;1 1;1 2;", 1}}) {
        editor.select(s.select);
        s.up ? editor.moveUp() : editor.moveDown();
        EXPECT_EQ(editor.storeProgram(), s.program) << s.select << s.up;
        EXPECT_EQ(editor.selection(), s.selection) << s.select << s.up;
    }
}

TEST_F(ActionEditorTest, DraggingMovesALineToItsNewPlace) {
    open("1 1;1 2;1 3;6 10;");
    editor.moveLine(0, 2);
    EXPECT_EQ(editor.storeProgram(), "1 2;1 3;1 1;6 10;");
    EXPECT_EQ(editor.selection(), 2);
    editor.moveLine(3, 0);
    EXPECT_EQ(editor.storeProgram(), "6 10;1 2;1 3;1 1;");
    EXPECT_EQ(editor.selection(), 0);
    editor.moveLine(1, 4);
    editor.moveLine(-1, 0);
    EXPECT_EQ(editor.storeProgram(), "6 10;1 2;1 3;1 1;");
}

TEST_F(ActionEditorTest, DoubleClickLoadsALineBackIntoTheInputs) {
    open("3 3 10 -999 -5 -999;4 2 2 Hi&nbspthere;5 1 3 FF8000;6 2.5;7 0 f(1)&y01&nbspg();x;");
    ASSERT_TRUE(editor.loadLine(0));
    EXPECT_EQ(editor.command(), Move);
    EXPECT_EQ(editor.button(), 2);
    const ActionInputs& in = editor.inputs();
    EXPECT_EQ(in.x + "|" + in.y + "|" + in.width + "|" + in.height, "10||-5|");
    ASSERT_TRUE(editor.loadLine(1));
    EXPECT_EQ(editor.command(), SetLabel);
    EXPECT_EQ(editor.button(), 1);
    EXPECT_EQ(editor.state(), 1);
    EXPECT_EQ(in.label, "Hi there");
    ASSERT_TRUE(editor.loadLine(4));
    EXPECT_EQ(editor.command(), CallJavaScript);
    EXPECT_EQ(in.javaScript, "f(1); g()");
    EXPECT_FALSE(editor.loadLine(5));
}

TEST_F(ActionEditorTest, ReplacedTextsShowInTheLists) {
    // Lines 16 and 12 of a "[frmSetAction]" section: the first command and "height:".
    TextCatalogue replaced;
    replaced.set(TextSection::SetAction, 15, "Zeigen");
    replaced.set(TextSection::SetAction, 11, "Höhe:");
    useTexts(&replaced);
    ActionEditor german(model, ui, buffer, {"Oben", "Über", "Unten"});
    model.button(2).ProgramOVER = "1 2;3 1 1 2 3 4;4 1 2 x;";
    german.open(ProgramKind::ProgramOVER);
    useTexts(nullptr);
    EXPECT_EQ(german.commandTexts().front(), "Zeigen");
    EXPECT_EQ(german.readableLines(),
              Lines({"Zeigen Button 2", "Move Button 1  ->  x:1 y:2 width:3 Höhe:4",
                     "Set Label Button 1 Über  ->  x"}));
}
