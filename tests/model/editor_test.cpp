#include "editor.h"
#include "editorfakes.h"
#include "fakeui.h"
#include "programfolder.h"
#include "projectfile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::FakeShell;
using orvelin::testing::FakeUserInterface;
using orvelin::testing::RecordingDesignView;
using orvelin::testing::RecordingEditorView;
using Answer = UserInterface::Answer;
namespace fs = std::filesystem;

namespace {

const std::string kLimitMessage = "Can't create more buttons on one applet.\r\n"
                                  "You may use two applets and put them on one page instead.";

struct EditorFixture : ::testing::Test {
    ProjectModel model;
    ButtonList list;
    FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingDesignView design;
    FakeShell shell;
    RecordingEditorView view{model};
    Editor editor{model, list, ui, settings, design, shell, view};
    fs::path dir;

    void SetUp() override {
        std::string pattern = (fs::temp_directory_path() / "orvelin-editor-XXXXXX").string();
        ASSERT_NE(::mkdtemp(pattern.data()), nullptr);
        dir = pattern;
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(dir, ec);
    }

    std::string PathOf(const std::string& name) const { return (dir / name).string(); }

    // A project file with `count` buttons labelled "<name>1", "<name>2", ...
    std::string WriteProject(const std::string& name, int count) {
        ProjectModel source;
        for (int i = 1; i <= count; ++i) {
            EXPECT_EQ(source.AddButton(kFactoryDefaultButton), ProjectModel::AddResult::Added);
            source.Button(i).LabelUP = name + std::to_string(i);
            source.Button(i).x = static_cast<std::int16_t>(10 * i);
        }
        FakeUserInterface quiet;
        const std::string path = PathOf(name + ".orv");
        EXPECT_TRUE(SaveProject(source, path, quiet));
        return path;
    }

    // The state right after start-up plus `more` added buttons, the clean slate.
    void Start(int more = 0) {
        ASSERT_EQ(editor.Startup(""), StartupResult::Ready);
        for (int i = 0; i < more; ++i)
            editor.AddButton();
        model.Saved = true;
        ui.shown.clear();
        design.clear();
    }
};

} // namespace

TEST(EditorText, CommandLinePathDropsBlanksAndSurroundingQuotes) {
    EXPECT_EQ(ProjectPathFromCommandLine(""), "");
    EXPECT_EQ(ProjectPathFromCommandLine("   "), "");
    EXPECT_EQ(ProjectPathFromCommandLine(" /a/b c.orv "), "/a/b c.orv");
    EXPECT_EQ(ProjectPathFromCommandLine("  \"/a/my project.orv\"  "), "/a/my project.orv");
    EXPECT_EQ(ProjectPathFromCommandLine("\"/a/b.orv"), "/a/b.or") << "the last character goes";
    EXPECT_EQ(ProjectPathFromCommandLine("\""), "");
}

TEST(EditorText, TitlesAndAnswers) {
    EXPECT_EQ(MainTitle(), "Orvelin 1.0  Beta 6");
    EXPECT_EQ(ActionTitle(ButtonState::UP), "Set Action: On Leaving Button...");
    EXPECT_EQ(ActionTitle(ButtonState::OVER), "Set Action: On Entering Button...");
    EXPECT_EQ(ActionTitle(ButtonState::DOWN), "Set Action: On Button Press...");
    EXPECT_STREQ(AskToSaveText(SaveAnswer::Saved), "SAVED");
    EXPECT_STREQ(AskToSaveText(SaveAnswer::Cancel), "CANCEL");
}

TEST_F(EditorFixture, StartupWithAnEmptyStoreShowsOneSavedButton) {
    settings.setFlag(SettingKey::AutoTile, false);
    ASSERT_EQ(editor.Startup(""), StartupResult::Ready);
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_EQ(model.CurrentState, "UP");
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.Button(1), ButtonRecord{});
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1}));
    EXPECT_EQ(view.caption, "Orvelin 1.0  Beta 6");
    EXPECT_EQ(view.actionTitle, "Set Action: On Leaving Button...");
    EXPECT_EQ(view.language, "English");
    EXPECT_FALSE(view.onTopChecked);
    EXPECT_FALSE(view.autoTileChecked);
    EXPECT_FALSE(design.onTop);
    for (int slot = 1; slot <= 4; ++slot)
        EXPECT_FALSE(view.recent[static_cast<std::size_t>(slot)].second);
    EXPECT_EQ(design.count("LoadButton 1"), 1);
    ASSERT_FALSE(view.props.empty());
    EXPECT_EQ(view.props.back().caption, "Properties for Button # 1");
    EXPECT_TRUE(ui.shown.empty());
    EXPECT_TRUE(editor.MayAskToAssociate());
    backend.set("1.0  Beta 6\\Params", "DontAskToAssociate", "1");
    EXPECT_FALSE(editor.MayAskToAssociate());
}

TEST_F(EditorFixture, StartupAppliesTheStoredOptions) {
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    settings.setValue(SettingKey::LanguageCurrent, "rus");
    settings.SetRecentFile(1, "/x/a.orv");
    ASSERT_EQ(editor.Startup(""), StartupResult::Ready);
    EXPECT_TRUE(design.onTop);
    EXPECT_TRUE(view.onTopChecked);
    EXPECT_TRUE(view.autoTileChecked);
    EXPECT_EQ(view.language, "rus");
    EXPECT_EQ(view.recent[1], (std::pair<std::string, bool>{"/x/a.orv", true}));
}

TEST_F(EditorFixture, AQuotedCommandLineOpensTheFileNamedInsideTheQuotes) {
    const std::string path = WriteProject("my project", 3);
    ASSERT_EQ(editor.Startup("  \"" + path + "\" "), StartupResult::Ready);
    EXPECT_EQ(model.ButtonCount, 3);
    EXPECT_EQ(model.Button(2).LabelUP, "my project2");
    EXPECT_EQ(model.ProjectFileName, path);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1}));
    EXPECT_EQ(view.caption, "Orvelin 1.0  Beta 6 " + path);
    EXPECT_EQ(settings.RecentFile(1), path);
    EXPECT_EQ(design.count("ClearButtons"), 1);
    EXPECT_EQ(design.count("LoadButton 3"), 1);
    EXPECT_TRUE(ui.messages().empty());
}

TEST_F(EditorFixture, AnUnreadableCommandLinePathReportsAndKeepsTheEditorOpen) {
    ASSERT_EQ(editor.Startup(PathOf("missing.orv")), StartupResult::Ready);
    ASSERT_EQ(ui.messages().size(), 1u);
    EXPECT_EQ(ui.messages()[0].rfind("Error loading project.\r\n", 0), 0u);
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.CurrentButton, 0);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(settings.RecentFile(1), "-1");
}

TEST_F(EditorFixture, ADamagedDefaultButtonIsRepairedAndEndsTheProgram) {
    backend.set("1.0  Beta 6\\Params", "strDefaultBtn", "0|0|wide|40|");
    EXPECT_EQ(editor.Startup(""), StartupResult::Quit);
    EXPECT_EQ(ui.messages(),
              (std::vector<std::string>{"Registry settings were currupted. Program will try to "
                                        "restore previous settings.",
                                        "Settings restored. Please restart the program."}));
    EXPECT_EQ(backend.get("1.0  Beta 6\\Params", "strDefaultBtn", ""), kFactoryDefaultButton);
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(view.quits, 0) << "start-up leaves the ending to its caller";
}

TEST_F(EditorFixture, ADefaultButtonDamagedLaterEndsTheProgramOnAdd) {
    Start();
    backend.set("1.0  Beta 6\\Params", "strDefaultBtn", "0|0|107|40||||||_self|x|");
    editor.AddButton();
    EXPECT_EQ(view.quits, 1);
    EXPECT_EQ(ui.messages().size(), 2u);
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(settings.DefaultButton(), kFactoryDefaultButton);
}

TEST_F(EditorFixture, AddMakesTheStoredDefaultButtonAtItsSlotsPosition) {
    Start();
    settings.SetDefaultButton("5|6|80|30|Hi&nbspthere|||||_top|");
    model.Button(2).x = 33;
    editor.AddButton();
    ASSERT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.CurrentButton, 2);
    EXPECT_EQ(model.Button(2).x, 33);
    EXPECT_EQ(model.Button(2).y, 0);
    EXPECT_EQ(model.Button(2).Width, 80);
    EXPECT_EQ(model.Button(2).LabelUP, "Hi there");
    EXPECT_EQ(model.Button(2).Target, "_top");
    EXPECT_FALSE(model.Saved);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{2}));
    EXPECT_EQ(design.calls.front(), "LoadButton 2");
    EXPECT_EQ(view.props.back().index, 2);
}

TEST_F(EditorFixture, The102ndButtonIsRefusedWithTheTwoLineMessage) {
    Start(99);
    ASSERT_EQ(model.ButtonCount, 100);
    editor.AddButton();
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_TRUE(ui.shown.empty());
    model.Saved = true;
    const ProjectModel before = model;
    editor.AddButton();
    editor.DuplicateButton();
    EXPECT_EQ(ui.messages(), (std::vector<std::string>{kLimitMessage, kLimitMessage}));
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_EQ(list.count(), 101);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.Button(102), before.Button(102));
}

TEST_F(EditorFixture, DuplicateCopiesTheCurrentButtonAsTheNewLast) {
    Start(2);
    model.Button(2).LabelUP = "two";
    model.Button(2).x = 44;
    editor.ClickList(2);
    editor.DuplicateButton();
    ASSERT_EQ(model.ButtonCount, 4);
    EXPECT_EQ(model.Button(4), model.Button(2));
    EXPECT_EQ(model.CurrentButton, 4);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{4}));
    EXPECT_EQ(design.count("LoadButton 4"), 1);
    EXPECT_FALSE(model.Saved);
}

TEST_F(EditorFixture, DuplicateWithoutButtonsDoesNothing) {
    Start();
    editor.RemoveButton();
    model.Saved = true;
    editor.DuplicateButton();
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_TRUE(model.Saved);
}

TEST_F(EditorFixture, RemovingButton2Of4MovesTheLaterOnesDownAndSelectsButton1) {
    Start(3);
    for (int i = 1; i <= 4; ++i)
        model.Button(i).LabelUP = "b" + std::to_string(i);
    editor.SetListSelection({2, 3, 4});
    editor.ClickList(2);
    design.clear();
    editor.RemoveButton();
    ASSERT_EQ(model.ButtonCount, 3);
    EXPECT_EQ(model.Button(1).LabelUP, "b1");
    EXPECT_EQ(model.Button(2).LabelUP, "b3");
    EXPECT_EQ(model.Button(3).LabelUP, "b4");
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_EQ(list.count(), 3);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1}));
    EXPECT_EQ(design.calls.front(), "HideLastButton 4");
    EXPECT_EQ(design.calls.back(), "RedrawAll");
    EXPECT_EQ(view.props.back().index, 1);
    EXPECT_FALSE(model.Saved);
}

TEST_F(EditorFixture, RemovingTheLastButtonLeavesCurrentButton1AndTheNextAddMakesButton1) {
    Start();
    editor.RemoveButton();
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(design.count("HideMarks"), 1);
    const std::size_t propsBefore = view.props.size();
    editor.RemoveButton();
    EXPECT_EQ(model.ButtonCount, 0) << "CurrentButton 1 points at no button: nothing to remove";
    EXPECT_EQ(view.props.size(), propsBefore);
    editor.AddButton();
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1}));
}

TEST_F(EditorFixture, ListClicksMakeTheCurrentButtonAndKeepTheListsSelection) {
    Start(2);
    editor.SetListSelection({1, 3});
    editor.ClickList(3);
    EXPECT_EQ(model.CurrentButton, 3);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1, 3}));
    EXPECT_EQ(view.props.back().caption, "Properties for Button # 3");
    EXPECT_TRUE(view.props.back().updating);
    EXPECT_EQ(design.calls.back(), "RedrawAll");
    editor.ClickList(4);
    editor.ClickList(0);
    EXPECT_EQ(model.CurrentButton, 3);
    EXPECT_TRUE(model.Saved) << "selecting is no edit";
}

TEST_F(EditorFixture, SwitchingTheStateRetitlesTheActionAndShowsThatState) {
    Start(1);
    editor.SwitchState("OVER");
    EXPECT_EQ(model.CurrentState, "OVER");
    EXPECT_EQ(view.state, ButtonState::OVER);
    EXPECT_EQ(view.actionTitle, "Set Action: On Entering Button...");
    EXPECT_EQ(editor.ActionProgramKind(), "ProgramOVER");
    EXPECT_EQ(view.props.back().state, "OVER");
    EXPECT_EQ(view.props.back().index, 2);
    EXPECT_EQ(design.calls.back(), "RedrawAll");
    editor.SwitchState("DOWN");
    EXPECT_EQ(view.actionTitle, "Set Action: On Button Press...");
    EXPECT_EQ(editor.ActionProgramKind(), "ProgramDOWN");
    editor.SwitchState("SIDEWAYS");
    EXPECT_EQ(model.CurrentState, "DOWN");
    editor.SwitchState("UP");
    EXPECT_EQ(view.actionTitle, "Set Action: On Leaving Button...");
    EXPECT_TRUE(model.Saved);
}

TEST_F(EditorFixture, AskToSaveOnAnUnchangedProjectAsksNothing) {
    Start();
    EXPECT_EQ(editor.AskToSave(), SaveAnswer::Saved);
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(EditorFixture, AskToSaveNamesTheProjectAndSavesOnYes) {
    Start();
    model.ProjectFileName = PathOf("a.orv");
    model.Saved = false;
    ui.answers = {Answer::Yes};
    EXPECT_EQ(editor.AskToSave(), SaveAnswer::Yes);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_EQ(ui.shown[0].kind, "yesnocancel");
    EXPECT_EQ(ui.shown[0].text, "The Project " + PathOf("a.orv") +
                                    " has changed.\r\nDo you want to Save the changes?");
    EXPECT_EQ(ui.shown[0].title, "Orvelin");
    EXPECT_TRUE(model.Saved);
    EXPECT_TRUE(fs::exists(PathOf("a.orv")));
    EXPECT_EQ(settings.RecentFile(1), PathOf("a.orv"));
}

TEST_F(EditorFixture, ClosingEndsOnNoOrASaveAndStaysOnCancelOrAFailedSave) {
    Start();
    model.Saved = false;
    ui.answers = {Answer::Cancel};
    EXPECT_FALSE(editor.Close());
    ui.answers = {Answer::No};
    EXPECT_TRUE(editor.Close());
    EXPECT_FALSE(model.Saved);

    model.ProjectFileName = PathOf("no such folder/p.orv");
    ui.answers = {Answer::Yes};
    EXPECT_FALSE(editor.Close());
    EXPECT_EQ(ui.messages().back(),
              "Error Saving Buttons. File may be Read Only, Hidden or used by another "
              "application.");

    model.ProjectFileName = PathOf("p.orv");
    ui.answers = {Answer::Yes};
    EXPECT_TRUE(editor.Close());

    ui.shown.clear();
    EXPECT_TRUE(editor.Close());
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(EditorFixture, YesOnAnUnnamedProjectWhoseSaveAsIsCancelledKeepsTheProgram) {
    Start();
    model.Saved = false;
    ui.answers = {Answer::Yes};
    ui.chosenFiles = {std::nullopt};
    EXPECT_FALSE(editor.Close());
    EXPECT_EQ(ui.shown.back().kind, "save");
}

TEST_F(EditorFixture, NewEmptiesTheProjectButKeepsTheAppletSettings) {
    Start(2);
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    model.AppletWidth = 300;
    model.BackImg = "/bg.gif";
    model.AppletProgramStart = "Hide 1;";
    model.ProjectFileName = "/old.orv";
    model.Saved = false;
    ui.answers = {Answer::Cancel, Answer::No};
    editor.New();
    EXPECT_EQ(model.ButtonCount, 3) << "cancel stops";
    editor.New();
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.CurrentButton, 0);
    EXPECT_EQ(model.AppletWidth, 300);
    EXPECT_EQ(model.BackImg, "");
    EXPECT_EQ(model.AppletProgramStart, "");
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(design.count("ClearButtons"), 1);
    EXPECT_EQ(view.labelEditorCloses, 1);
    EXPECT_TRUE(view.mainParamsUpdating.back());
    EXPECT_TRUE(design.onTop) << "the design surface is put on top again";
}

TEST_F(EditorFixture, OpenLoadsTheChosenFileAndShowsButton1Alone) {
    Start();
    const std::string path = WriteProject("open", 4);
    ui.chosenFiles = {path};
    editor.Open();
    EXPECT_EQ(ui.shown[0].kind, "open");
    EXPECT_EQ(ui.shown[0].text, "Orvelin Files (*.orv);;All Files (*.*)");
    ASSERT_EQ(model.ButtonCount, 4);
    EXPECT_EQ(model.CurrentButton, 1);
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1}));
    EXPECT_EQ(view.props.back().index, 1);
    EXPECT_EQ(model.Button(4).LabelUP, "open4");
    EXPECT_EQ(view.caption, "Orvelin 1.0  Beta 6 " + path);
    EXPECT_EQ(settings.RecentFile(1), path);
    EXPECT_TRUE(model.Saved);
}

TEST_F(EditorFixture, OpenStopsOnCancelAndOnAClosedDialog) {
    Start();
    model.Saved = false;
    ui.answers = {Answer::Cancel};
    editor.Open();
    EXPECT_EQ(ui.shown.size(), 1u) << "no file dialog after Cancel";
    ui.answers = {Answer::No};
    ui.chosenFiles = {std::nullopt};
    editor.Open();
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(list.count(), 1);
}

TEST_F(EditorFixture, AFileCutOffKeepsTheButtonsReadSoFarInListAndSurface) {
    Start();
    const std::string path = WriteProject("cut", 5);
    std::string text;
    {
        std::ifstream in(path, std::ios::binary);
        text.assign(std::istreambuf_iterator<char>(in), {});
    }
    // Cut in the middle of the fifth button line.
    const std::size_t fifth = text.find("cut5");
    ASSERT_NE(fifth, std::string::npos);
    {
        std::ofstream out(path, std::ios::binary | std::ios::trunc);
        out << text.substr(0, text.rfind("\r\n", fifth) + 2) << "0|0|107|";
    }
    ui.chosenFiles = {path};
    editor.Open();
    EXPECT_EQ(model.ButtonCount, 4);
    EXPECT_EQ(list.count(), 4);
    EXPECT_EQ(design.count("LoadButton 4"), 1);
    EXPECT_EQ(design.count("LoadButton 5"), 0);
    EXPECT_EQ(model.CurrentButton, 1);
    ASSERT_EQ(ui.messages().size(), 1u);
    EXPECT_EQ(ui.messages()[0].rfind("Error loading project.", 0), 0u);
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_EQ(settings.RecentFile(1), "-1");
}

TEST_F(EditorFixture, SaveAsProposesUntitledAndNamesTheProject) {
    Start();
    ui.chosenFiles = {PathOf("first.orv")};
    model.Saved = false;
    EXPECT_TRUE(editor.Save());
    EXPECT_EQ(ui.shown[0].kind, "save");
    EXPECT_EQ(ui.shown[0].title, "untitled.orv");
    EXPECT_EQ(model.ProjectFileName, PathOf("first.orv"));
    EXPECT_EQ(view.caption, "Orvelin 1.0  Beta 6 " + PathOf("first.orv"));
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(settings.RecentFile(1), PathOf("first.orv"));

    ui.shown.clear();
    model.Saved = false;
    EXPECT_TRUE(editor.Save());
    EXPECT_TRUE(ui.shown.empty()) << "a named project saves without a dialog";

    ui.chosenFiles = {PathOf("missing folder/x.orv")};
    model.Saved = false;
    EXPECT_FALSE(editor.SaveAs());
    EXPECT_EQ(ui.shown[0].title, PathOf("first.orv"));
    EXPECT_EQ(model.ProjectFileName, PathOf("first.orv")) << "a failed save keeps the name";
    EXPECT_FALSE(model.Saved);
}

TEST_F(EditorFixture, SaveAsPutsTheDesignOnTopAgain) {
    Start();
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    ui.chosenFiles = {std::nullopt};
    EXPECT_FALSE(editor.SaveAs());
    EXPECT_TRUE(design.onTop);
}

TEST_F(EditorFixture, SavingFiveProjectsThenReopeningTheThirdLeavesTheRecentList) {
    Start();
    std::vector<std::string> paths;
    for (const char* name : {"P", "Q", "R", "S", "T"}) {
        ui.chosenFiles = {PathOf(std::string(name) + ".orv")};
        ASSERT_TRUE(editor.SaveAs());
        paths.push_back(PathOf(std::string(name) + ".orv"));
    }
    const std::array<std::string, 4> expected{paths[4], paths[3], paths[2], paths[1]};
    EXPECT_EQ(editor.Recent().Slots(), expected);
    EXPECT_EQ(view.recent[4], (std::pair<std::string, bool>{paths[1], true}));

    editor.OpenRecent(3);
    EXPECT_EQ(model.ProjectFileName, paths[2]);
    EXPECT_EQ(editor.Recent().Slots(), expected);
}

TEST_F(EditorFixture, OpenRecentAsksFirstAndIgnoresAnEmptySlot) {
    Start();
    const std::string path = WriteProject("recent", 2);
    settings.SetRecentFile(1, path);
    editor.OpenRecent(2);
    EXPECT_EQ(model.ButtonCount, 1);
    model.Saved = false;
    ui.answers = {Answer::Cancel};
    editor.OpenRecent(1);
    EXPECT_EQ(model.ButtonCount, 1);
    ui.answers = {Answer::No};
    editor.OpenRecent(1);
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.ProjectFileName, path);
}

TEST_F(EditorFixture, ImportingALegacyProjectLeavesItUnnamedAndUnsaved) {
    Start();
    ui.chosenFiles = {std::string(ORVELIN_TEST_DATA) + "/legacy_project.ini"};
    editor.ImportLegacy();
    EXPECT_EQ(ui.shown[0].text, kLegacyProjectFilter);
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.AppletWidth, 400);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.selectedButtons(), (std::vector<int>{1}));
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_FALSE(model.Saved);
    EXPECT_EQ(settings.RecentFile(1), "-1");
    EXPECT_EQ(view.caption, "Orvelin 1.0  Beta 6");
}

TEST_F(EditorFixture, MakeDefaultStoresTheCurrentButtonForNewOnes) {
    Start();
    editor.RemoveButton();
    model.CurrentButton = 0;
    editor.MakeDefault();
    EXPECT_EQ(ui.messages(), (std::vector<std::string>{"Nothing selected"}));
    EXPECT_EQ(settings.value(SettingKey::strDefaultBtn), "-1");

    editor.AddButton();
    model.Button(1).LabelUP = "Say \"hi\"";
    model.Button(1).FontColorDOWN = 7;
    editor.MakeDefault();
    EXPECT_EQ(ui.messages().back(), "Properties of this button will be used to create new ones.");
    EXPECT_EQ(settings.DefaultButton(), SerializeButton(model.Button(1)));
    editor.AddButton();
    EXPECT_EQ(model.Button(2).LabelUP, "Say \"hi\"");
    EXPECT_EQ(model.Button(2).FontColorDOWN, 7);
}

TEST_F(EditorFixture, SoundConverterAndHelpUseTheProgramFolder) {
    Start();
    SetProgramFolderOverride(dir.string());
    editor.SoundConverter();
    ASSERT_EQ(shell.started.size(), 1u);
    EXPECT_EQ(shell.started[0].first, (dir / "SoundConv").string());
    EXPECT_TRUE(shell.started[0].second.empty());
    editor.Help();
    EXPECT_EQ(shell.opened, (std::vector<std::string>{(dir / "help/help.htm").string()}));
    EXPECT_TRUE(ui.shown.empty());

    shell.succeed = false;
    editor.SoundConverter();
    editor.Help();
    SetProgramFolderOverride("");
    EXPECT_EQ(ui.messages(), (std::vector<std::string>{dir.string() + "/SoundConv not found.",
                                                       (dir / "help/help.htm").string() +
                                                           " could not be opened."}));
}

TEST_F(EditorFixture, KeepOnTopTogglesTheSettingTheMenuAndTheWindow) {
    Start();
    editor.ToggleKeepOnTop();
    EXPECT_TRUE(editor.KeepOnTop());
    EXPECT_EQ(backend.get("1.0  Beta 6\\Params", "frmDesignOnTop", ""), "1");
    EXPECT_TRUE(view.onTopChecked);
    EXPECT_TRUE(design.onTop);
    editor.ToggleKeepOnTop();
    EXPECT_FALSE(editor.KeepOnTop());
    EXPECT_FALSE(view.onTopChecked);
    EXPECT_EQ(design.calls, (std::vector<std::string>{"SetOnTop 1", "SetOnTop 0"}));
}

TEST_F(EditorFixture, LanguageCommandsStoreTheChoiceAndEnglishExplains) {
    Start();
    editor.SetLanguage("heb");
    EXPECT_EQ(settings.value(SettingKey::LanguageCurrent), "heb");
    EXPECT_EQ(view.language, "heb");
    EXPECT_TRUE(ui.shown.empty());
    editor.SetLanguage("English");
    EXPECT_EQ(settings.value(SettingKey::LanguageCurrent), "English");
    EXPECT_EQ(ui.messages(), (std::vector<std::string>{
                                 "Change will take effect the next time the Program is started."}));
}

TEST_F(EditorFixture, TogglingAutoTileTwiceLeavesItsFirstValue) {
    Start();
    const std::string first = settings.value(SettingKey::AutoTile);
    editor.SetAutoTile(false);
    EXPECT_EQ(settings.value(SettingKey::AutoTile), "0");
    editor.SetAutoTile(true);
    EXPECT_EQ(settings.value(SettingKey::AutoTile), first);
}
