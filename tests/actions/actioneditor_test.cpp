#include "actioneditor.h"
#include "fakeui.h"
#include "programbuffer.h"
#include "projectmodel.h"

#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;

namespace {

enum Command { Show, Hide, Move, SetLabel, SetColor, Wait, CallJavaScript };

class ActionEditorTest : public ::testing::Test {
protected:
    void SetUp() override {
        ProgramBuffer().clear();
        model.ButtonCount = 3;
        model.CurrentButton = 2;
        model.Button(1).ProgramOVER = "1 1;";
        model.Button(2).ProgramOVER = "2 1;6 500;";
        model.Button(3).ProgramOVER = "";
    }
    void TearDown() override { ProgramBuffer().clear(); }

    // Adds one command with the given inputs already typed.
    bool Add(Command command, int button = 0) {
        editor.setCommand(command);
        editor.setButton(button);
        return editor.add();
    }

    ProjectModel model;
    FakeUserInterface ui;
    ActionEditor editor{model, ui};
};

} // namespace

TEST_F(ActionEditorTest, OpeningFillsTheListsAndLoadsTheCurrentButtonsProgram) {
    editor.open("ProgramOVER");
    EXPECT_EQ(editor.buttonTexts(), (std::vector<std::string>{"Button 1", "Button 2", "Button 3"}));
    EXPECT_EQ(editor.stateTexts(),
              (std::vector<std::string>{"Up State", "Mouse-Over", "Down State"}));
    EXPECT_EQ(editor.commandTexts().size(), 7u);
    EXPECT_EQ(editor.button(), 0);
    EXPECT_EQ(editor.command(), Show);
    EXPECT_EQ(editor.state(), 0);
    EXPECT_EQ(editor.commandLines(), (std::vector<std::string>{"2 1", "6 500"}));
    EXPECT_EQ(editor.readableLines(), (std::vector<std::string>{"Hide Button 1", "Wait: 500 ms"}));
    EXPECT_EQ(editor.selection(), -1);
    EXPECT_EQ(editor.inputs().milliseconds, "100");
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(ActionEditorTest, OkCopiesTheCurrentButtonsProgramToEverySelectedButton) {
    editor.open("ProgramOVER");
    editor.inputs().milliseconds = "250";
    ASSERT_TRUE(Add(Wait));
    editor.ok({false, true, true});
    EXPECT_EQ(model.Button(2).ProgramOVER, "2 1;6 500;6 250;");
    EXPECT_EQ(model.Button(3).ProgramOVER, "2 1;6 500;6 250;");
    EXPECT_EQ(model.Button(1).ProgramOVER, "1 1;");
    EXPECT_EQ(model.Button(2).ProgramUP, "");
    EXPECT_FALSE(model.Saved);
}

TEST_F(ActionEditorTest, AppletKindsUseTheProjectsSlot) {
    model.AppletProgramOUT = "7 0 bye();";
    editor.open("AppletProgramOUT");
    EXPECT_EQ(editor.readableLines(), (std::vector<std::string>{"Call JavaScript: bye()"}));
    ASSERT_TRUE(Add(Show, 2));
    editor.ok({true, true, true});
    EXPECT_EQ(model.AppletProgramOUT, "7 0 bye();1 3;");
    EXPECT_EQ(model.Button(2).ProgramOVER, "2 1;6 500;");
}

TEST_F(ActionEditorTest, WithoutACurrentButtonTheProgramStartsEmpty) {
    model.CurrentButton = 0;
    editor.open("ProgramOVER");
    EXPECT_TRUE(editor.commandLines().empty());
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(ActionEditorTest, UnknownKindIsReportedAndStoresNothing) {
    editor.open("ProgramLEFT");
    ASSERT_EQ(ui.messages(), (std::vector<std::string>{"Wrong Return Parameters"}));
    EXPECT_TRUE(editor.commandLines().empty());
    EXPECT_TRUE(editor.readableLines().empty());
    ASSERT_TRUE(Add(Show));
    editor.ok({true, true, true});
    EXPECT_EQ(model.Button(1).ProgramOVER, "1 1;");
    EXPECT_EQ(model.Button(2).ProgramOVER, "2 1;6 500;");
    EXPECT_EQ(model.AppletProgramStart, "");
}

TEST_F(ActionEditorTest, CancellingWritesNothing) {
    {
        ActionEditor scratch(model, ui);
        scratch.open("ProgramOVER");
        scratch.setCommand(Show);
        scratch.add();
        scratch.select(0);
        scratch.remove();
        scratch.copy();
        scratch.paste();
    } // closed without OK
    EXPECT_EQ(model.Button(2).ProgramOVER, "2 1;6 500;");
    EXPECT_TRUE(model.Saved);
}

TEST_F(ActionEditorTest, ButtonCommandsAreRefusedWithoutButtonsButWaitIsAdded) {
    model.ButtonCount = 0;
    model.CurrentButton = 0;
    editor.open("AppletProgramStart");
    EXPECT_EQ(editor.button(), -1);
    for (Command c : {Show, Hide, Move, SetLabel, SetColor}) {
        editor.inputs().label = "FF0000";
        EXPECT_FALSE(Add(c, -1));
    }
    ASSERT_EQ(ui.shown.size(), 5u);
    EXPECT_EQ(ui.shown[0].text, "No Buttons on the Applet");
    EXPECT_EQ(ui.shown[0].title, "");
    EXPECT_TRUE(editor.commandLines().empty());
    EXPECT_TRUE(Add(Wait, -1));
    EXPECT_EQ(editor.commandLines(), (std::vector<std::string>{"6 100"}));
}

TEST_F(ActionEditorTest, EmptyLabelIsAddedAsABlankThatStaysInTheBox) {
    editor.open("ProgramOVER");
    editor.setState(2);
    ASSERT_TRUE(Add(SetLabel, 1));
    EXPECT_EQ(editor.commandLines().back(), "4 2 3 &nbsp");
    EXPECT_EQ(editor.inputs().label, " ");
    EXPECT_EQ(editor.selection(), 2);
}

TEST_F(ActionEditorTest, ColourOfFiveCharactersDoesNothing) {
    editor.open("ProgramOVER");
    editor.select(1);
    editor.setCommand(SetColor);
    editor.inputs().label = "12345";
    EXPECT_FALSE(editor.add());
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 1);
}

TEST_F(ActionEditorTest, ChoosingSetColorEmptiesTheLabelBox) {
    editor.open("ProgramOVER");
    editor.setCommand(SetLabel);
    editor.inputs().label = "Hello";
    editor.setCommand(SetColor);
    EXPECT_EQ(editor.inputs().label, "");
}

TEST_F(ActionEditorTest, MoveWithAWrongBoxShowsTheConversionErrorAndAddsNothing) {
    editor.open("ProgramOVER");
    editor.select(0);
    editor.inputs().x = "10";
    editor.inputs().y = "";
    editor.inputs().width = "abc";
    EXPECT_FALSE(Add(Move));
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_EQ(ui.shown[0].text, "Type mismatch");
    EXPECT_EQ(ui.shown[0].title, "Wrong Parameters");
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 0);
}

TEST_F(ActionEditorTest, AddingWithNoCommandOnlyRebuildsAndSelectsTheLast) {
    editor.open("ProgramOVER");
    editor.setCommand(-1);
    EXPECT_FALSE(editor.add());
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 1);
}

TEST_F(ActionEditorTest, CopyThenPasteDoublesTheProgram) {
    editor.open("ProgramOVER");
    editor.copy();
    EXPECT_EQ(ProgramBuffer(), "2 1;6 500;");
    editor.paste();
    EXPECT_EQ(editor.storeProgram(), "2 1;6 500;2 1;6 500;");
    EXPECT_EQ(editor.readableLines().size(), 4u);
    EXPECT_EQ(model.Button(2).ProgramOVER, "2 1;6 500;") << "copying leaves the model alone";
}

TEST_F(ActionEditorTest, TheBufferOutlivesTheDialogAndCrossesKinds) {
    editor.open("ProgramOVER");
    editor.copy();
    ActionEditor other(model, ui);
    other.open("AppletProgramDOWN");
    other.paste();
    other.ok({});
    EXPECT_EQ(model.AppletProgramDOWN, "2 1;6 500;");
}

TEST_F(ActionEditorTest, PasteOfAnEmptyBufferDoesNothing) {
    editor.open("ProgramOVER");
    editor.select(1);
    editor.paste();
    EXPECT_EQ(editor.commandLines().size(), 2u);
    EXPECT_EQ(editor.selection(), 1);
}

TEST_F(ActionEditorTest, PastedTextWithoutItsFinalSemicolonLosesItsLastCommand) {
    ProgramBuffer() = "1 3;2 3";
    editor.open("ProgramOVER");
    editor.paste();
    EXPECT_EQ(editor.commandLines(), (std::vector<std::string>{"2 1", "6 500", "1 3"}));
}

TEST_F(ActionEditorTest, LabelWithASemicolonPutsTheListsOutOfStep) {
    model.Button(2).ProgramOVER = "4 1 1 a;b;1 1;";
    editor.open("ProgramOVER");
    EXPECT_EQ(editor.commandLines().size(), 3u);
    EXPECT_EQ(editor.readableLines(),
              (std::vector<std::string>{"Set Label Button 1 Up State  ->  a", "Show Button 1"}));
    // Removing "Show Button 1" takes the command line at index 1, which is "b".
    editor.select(1);
    editor.remove();
    EXPECT_EQ(editor.commandLines(), (std::vector<std::string>{"4 1 1 a", "1 1"}));
    EXPECT_EQ(editor.readableLines(),
              (std::vector<std::string>{"Set Label Button 1 Up State  ->  a"}));
    EXPECT_EQ(editor.selection(), -1);
    editor.refreshActionList();
    EXPECT_EQ(editor.readableLines().size(), 2u);
}

TEST_F(ActionEditorTest, RemovingSelectsTheFollowingLineOrNothingAfterTheLast) {
    model.Button(2).ProgramOVER = "1 1;1 2;1 3;";
    editor.open("ProgramOVER");
    editor.remove(); // no selection: nothing happens
    EXPECT_EQ(editor.commandLines().size(), 3u);
    editor.select(1);
    editor.remove();
    EXPECT_EQ(editor.commandLines(), (std::vector<std::string>{"1 1", "1 3"}));
    EXPECT_EQ(editor.selection(), 1);
    EXPECT_EQ(editor.listToolTip(), "Show Button 3");
    editor.remove();
    EXPECT_EQ(editor.commandLines(), (std::vector<std::string>{"1 1"}));
    EXPECT_EQ(editor.selection(), -1);
    EXPECT_EQ(editor.listToolTip(), "");
}

TEST_F(ActionEditorTest, MovingStopsAtTheEnds) {
    model.Button(2).ProgramOVER = "1 1;1 2;1 3;";
    editor.open("ProgramOVER");
    editor.select(0);
    editor.moveUp();
    EXPECT_EQ(editor.storeProgram(), "1 1;1 2;1 3;");
    EXPECT_EQ(editor.selection(), 0);
    editor.select(2);
    editor.moveDown();
    EXPECT_EQ(editor.storeProgram(), "1 1;1 2;1 3;");
    EXPECT_EQ(editor.selection(), 2);
    editor.select(-1);
    editor.moveUp();
    editor.moveDown();
    EXPECT_EQ(editor.storeProgram(), "1 1;1 2;1 3;");
}

TEST_F(ActionEditorTest, MovingSwapsWithTheNeighbourAndFollowsTheLine) {
    model.Button(2).ProgramOVER = "1 1;1 2;1 3;";
    editor.open("ProgramOVER");
    editor.select(2);
    editor.moveUp();
    EXPECT_EQ(editor.storeProgram(), "1 1;1 3;1 2;");
    EXPECT_EQ(editor.selection(), 1);
    editor.select(0);
    editor.moveDown();
    EXPECT_EQ(editor.storeProgram(), "1 3;1 1;1 2;");
    EXPECT_EQ(editor.selection(), 1);
}

TEST_F(ActionEditorTest, MovingActsOnTheCommandLineAtTheReadableIndex) {
    model.Button(2).ProgramOVER = ";1 1;1 2;";
    editor.open("ProgramOVER");
    ASSERT_EQ(editor.readableLines(), (std::vector<std::string>{"Show Button 1", "Show Button 2"}));
    editor.select(1);
    editor.moveUp();
    EXPECT_EQ(editor.storeProgram(), "1 1;;1 2;");
    EXPECT_EQ(editor.selection(), 0);
}

TEST_F(ActionEditorTest, DraggingMovesALineToItsNewPlace) {
    model.Button(2).ProgramOVER = "1 1;1 2;1 3;6 10;";
    editor.open("ProgramOVER");
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

TEST_F(ActionEditorTest, PanelsFollowTheCommand) {
    editor.open("ProgramOVER");
    const auto panels = [&](Command c) {
        editor.setCommand(c);
        const ActionPanels p = editor.panels();
        return std::string() + (p.buttonList ? "B" : "") + (p.movePanel ? "M" : "") +
               (p.labelPanel ? "L" : "") + (p.colorButton ? "C" : "") + (p.timerPanel ? "T" : "") +
               (p.javaScript ? "J" : "");
    };
    EXPECT_EQ(panels(Show), "B");
    EXPECT_EQ(panels(Hide), "B");
    EXPECT_EQ(panels(Move), "BM");
    EXPECT_EQ(panels(SetLabel), "BL");
    EXPECT_EQ(panels(SetColor), "BLC");
    EXPECT_EQ(panels(Wait), "T");
    EXPECT_EQ(panels(CallJavaScript), "BJ");
}

TEST_F(ActionEditorTest, DoubleClickLoadsALineBackIntoTheInputs) {
    model.Button(2).ProgramOVER =
        "3 3 10 -999 -5 -999;4 2 2 Hi&nbspthere;5 1 3 FF8000;6 2.5;7 0 f(1)&y01&nbspg();x;";
    editor.open("ProgramOVER");
    ASSERT_TRUE(editor.loadLine(0));
    EXPECT_EQ(editor.command(), Move);
    EXPECT_EQ(editor.button(), 2);
    EXPECT_EQ(editor.inputs().x, "10");
    EXPECT_EQ(editor.inputs().y, "");
    EXPECT_EQ(editor.inputs().width, "-5");
    EXPECT_EQ(editor.inputs().height, "");
    ASSERT_TRUE(editor.loadLine(1));
    EXPECT_EQ(editor.command(), SetLabel);
    EXPECT_EQ(editor.button(), 1);
    EXPECT_EQ(editor.state(), 1);
    EXPECT_EQ(editor.inputs().label, "Hi there");
    ASSERT_TRUE(editor.loadLine(2));
    EXPECT_EQ(editor.command(), SetColor);
    EXPECT_EQ(editor.state(), 2);
    EXPECT_EQ(editor.inputs().label, "FF8000");
    ASSERT_TRUE(editor.loadLine(3));
    EXPECT_EQ(editor.inputs().milliseconds, "2.5");
    ASSERT_TRUE(editor.loadLine(4));
    EXPECT_EQ(editor.command(), CallJavaScript);
    EXPECT_EQ(editor.inputs().javaScript, "f(1); g()");
    EXPECT_FALSE(editor.loadLine(5));
    // Adding the loaded line again gives the same command line.
    ASSERT_TRUE(editor.loadLine(1));
    ASSERT_TRUE(editor.add());
    EXPECT_EQ(editor.commandLines().back(), "4 2 2 Hi&nbspthere");
}

TEST_F(ActionEditorTest, DoubleClickFollowsTheLineItWasBuiltFrom) {
    model.Button(2).ProgramOVER = "4 1 1 a;b;6 300;";
    editor.open("ProgramOVER");
    ASSERT_TRUE(editor.loadLine(1));
    EXPECT_EQ(editor.command(), Wait);
    EXPECT_EQ(editor.inputs().milliseconds, "300");
}

TEST_F(ActionEditorTest, PickedColourIsWrittenAsRedGreenBlue) {
    editor.open("ProgramOVER");
    editor.setCommand(SetColor);
    editor.takeColor(0x0080FF); // orange, red in the low byte
    EXPECT_EQ(editor.inputs().label, "FF8000");
    editor.takeColor(0x050000); // five hexadecimal digits: nothing usable
    EXPECT_EQ(editor.inputs().label, "");
    editor.takeColor(0x00000A);
    EXPECT_EQ(editor.inputs().label, "000000");
}

TEST_F(ActionEditorTest, ReplacedTextsShowInTheLists) {
    ActionEditorTexts texts;
    texts.at(15) = "Zeigen";
    texts.at(11) = "Höhe:";
    ActionEditor german(model, ui, texts, {"Oben", "Über", "Unten"});
    model.Button(2).ProgramOVER = "1 2;3 1 1 2 3 4;4 1 2 x;";
    german.open("ProgramOVER");
    EXPECT_EQ(
        german.readableLines(),
        (std::vector<std::string>{"Zeigen Button 2", "Move Button 1  ->  x:1 y:2 width:3 Höhe:4",
                                  "Set Label Button 1 Über  ->  x"}));
}

TEST(ActionEditorTexts, PositionsFollowTheDocumentedOrder) {
    ActionEditorTexts t;
    EXPECT_EQ(t.at(0), "&Add");
    EXPECT_EQ(t.at(7), "Append Program from Buffer to Current Program");
    EXPECT_EQ(t.at(12), "Time in miliseconds:");
    EXPECT_EQ(t.at(14), "Select Color");
    EXPECT_EQ(t.at(21), "Call JavaScript");
    EXPECT_THROW(t.at(22), std::out_of_range);
}
