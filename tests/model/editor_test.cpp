#include "editor.h"
#include "editorfakes.h"
#include "languagefiles.h"
#include "projectfile.h"
#include "tempfolder.h"
#include "textcatalogue.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace orvelin;
using Answer = UserInterface::Answer;
using Texts = std::vector<std::string>;
namespace fs = std::filesystem;

namespace {

const std::string kTitle = "Orvelin 1.0  Beta 6";
const std::string kParams = "1.0  Beta 6\\Params";
const std::string kLimitMessage = "Can't create more buttons on one applet.\r\n"
                                  "You may use two applets and put them on one page instead.";
const std::string kSaveError =
    "Error Saving Buttons. File may be Read Only, Hidden or used by another application.\r\n"
    "No such file or directory";

struct EditorFixture : ::testing::Test, orvelin::testing::EditorParts {
    orvelin::testing::TempFolder folder;
    Editor editor{model, list, ui, settings, design, shell, view, folder.dir().string()};

    std::string PathOf(const std::string& name) const { return folder.path(name); }

    // A project file with `count` buttons labelled "<name>1", "<name>2", ...
    std::string WriteProject(const std::string& name, int count) {
        ProjectModel source;
        for (int i = 1; i <= count; ++i) {
            source.addButton(kFactoryDefaultButton);
            source.button(i).LabelUP = name + std::to_string(i);
        }
        orvelin::testing::FakeUserInterface quiet;
        EXPECT_TRUE(SaveProject(source, PathOf(name + ".orv"), quiet));
        return PathOf(name + ".orv");
    }

    // The state right after start-up plus `more` added buttons: the clean slate.
    void Start(int more = 0) {
        ASSERT_EQ(editor.startup(""), StartupResult::Ready);
        for (int i = 0; i < more; ++i)
            editor.addButton();
        model.Saved = true;
        ui.shown.clear();
        design.clear();
    }
    // Buttons, current button, list entries and selection, saved or not, in one line.
    std::string Shown() const {
        std::string text = std::to_string(model.ButtonCount) + " buttons, current " +
                           std::to_string(model.CurrentButton) + ", list " +
                           std::to_string(list.count()) + " selecting";
        for (int i : list.selectedButtons())
            text += " " + std::to_string(i);
        return text + (model.Saved ? ", saved" : ", changed");
    }
    void Unsaved(std::initializer_list<Answer> answers) {
        model.Saved = false;
        ui.answers = answers;
    }
};

} // namespace

TEST(EditorText, CommandLinePathDropsBlanksAndSurroundingQuotesAndTitlesNameTheState) {
    const std::pair<const char*, const char*> lines[] = {
        {"", ""},
        {"   ", ""},
        {" /a/b c.orv ", "/a/b c.orv"},
        {"  \"/a/my project.orv\"  ", "/a/my project.orv"},
        {"\"/a/b.orv", "/a/b.or"}, // the last character goes with the missing quote
        {"\"", ""}};
    for (const auto& [line, path] : lines)
        EXPECT_EQ(projectPathFromCommandLine(line), path) << line;
}

TEST(EditorText, SaveAsAddsTheProjectExtensionToANameWithoutOneUnderTheProjectFilter) {
    const std::string orv = "Orvelin Files (*.orv)";
    EXPECT_EQ(projectSavePath("/a.b/bar", orv) + projectSavePath("/a/.bar", orv),
              "/a.b/bar.orv/a/.bar.orv");
    EXPECT_EQ(projectSavePath("/a/b.ar", orv) + projectSavePath("/a/bar", "All Files (*.*)"),
              "/a/b.ar/a/bar");
}

TEST_F(EditorFixture, StartupAppliesTheStoredOptions) {
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    settings.setValue(SettingKey::LanguageCurrent, "rus");
    settings.setRecentFile(1, "/x/a.orv");
    ASSERT_EQ(editor.startup(""), StartupResult::Ready);
    EXPECT_TRUE(design.onTop && view.onTopChecked && view.autoTileChecked);
    EXPECT_EQ(view.language, "rus");
    EXPECT_EQ(view.recent[1], (std::pair<std::string, bool>{"/x/a.orv", true}));
}

TEST_F(EditorFixture, TheLanguageCommandsApplyTheFileAtOnceOrFallBackToEnglish) {
    TextCatalogue texts;
    LanguageFiles languages(texts, settings, folder.dir().string());
    editor.setLanguageFiles(&languages);
    editor.setLanguage("rus");
    EXPECT_EQ(ui.texts(), Texts{"Language File: " + PathOf("rus_lng") + " not found"});
    EXPECT_EQ(settings.value(SettingKey::LanguageCurrent) + view.language, "EnglishEnglish");

    // The main block and the sections of the windows that are always there apply at
    // once; the advanced settings read theirs when they are shown.
    std::string file;
    for (int i = 1; i <= 104; ++i)
        file += "m" + std::to_string(i) + "\r\n";
    orvelin::testing::WriteBytes(PathOf("heb_lng"),
                                 file + "[frmDesign]\nd1\n[frmHTML]\nh1\n[frmAbout]\na1\n"
                                        "[frmAdvanced]\nv1\n");
    editor.setLanguage("heb");
    EXPECT_EQ(texts.at(TextSection::Main, 103) + texts.at(TextSection::Design, 0) +
                  texts.at(TextSection::Html, 0) + texts.at(TextSection::About, 0),
              "m104d1h1a1");
    EXPECT_NE(texts.at(TextSection::Advanced, 0), "v1");
    languages.applyWindowInForce({TextSection::Advanced});
    EXPECT_EQ(texts.at(TextSection::Advanced, 0), "v1");
    EXPECT_EQ(settings.value(SettingKey::LanguageCurrent) + view.language, "hebheb");

    ui.shown.clear();
    editor.setLanguage("English");
    EXPECT_EQ(ui.texts(), Texts{"Change will take effect the next time the Program is started."});
    EXPECT_EQ(settings.value(SettingKey::LanguageCurrent), "English");
}

TEST_F(EditorFixture, AnUnreadableCommandLinePathReportsAndKeepsTheEditorOpen) {
    ASSERT_EQ(editor.startup(PathOf("missing.orv")), StartupResult::Ready);
    EXPECT_EQ(ui.texts(), Texts{"Error loading project.\r\nFile not found"});
    EXPECT_EQ(Shown(), "0 buttons, current 0, list 0 selecting, saved");
    EXPECT_EQ(settings.recentFile(1), "-1");
}

TEST_F(EditorFixture, ADamagedDefaultButtonIsRepairedAndEndsTheProgram) {
    backend.set(kParams, "strDefaultBtn", "0|0|wide|40|");
    EXPECT_EQ(editor.startup(""), StartupResult::Quit);
    const Texts repair = {"Registry settings were currupted. Program will try to restore "
                          "previous settings.",
                          "Settings restored. Please restart the program."};
    EXPECT_EQ(ui.texts(), repair);
    EXPECT_EQ(backend.get(kParams, "strDefaultBtn", ""), kFactoryDefaultButton);
    EXPECT_EQ(model.ButtonCount + list.count(), 0);
    EXPECT_EQ(view.quits, 0) << "start-up leaves the ending to its caller";

    // Damaged later, the next Add repairs it and ends the program itself.
    ui.shown.clear();
    settings.setValue(SettingKey::strDefaultBtn, "0|0|107|40||||||_self|x|");
    editor.addButton();
    EXPECT_EQ(view.quits, 1);
    EXPECT_EQ(ui.texts(), repair);
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(settings.defaultButton(), kFactoryDefaultButton);
}

TEST_F(EditorFixture, AddMakesTheStoredDefaultButtonAtItsSlotsPosition) {
    Start();
    settings.setDefaultButton("5|6|80|30|Hi&nbspthere|||||_top|");
    model.button(2).x = 33;
    model.button(2).y = 44;
    model.button(2).ProgramDOWN = "stale"; // the rest comes from the default

    editor.addButton();
    ButtonRecord expected;
    parseButton("33|44|80|30|Hi&nbspthere|||||_top|", expected);
    EXPECT_EQ(model.button(2), expected);
    EXPECT_EQ(Shown(), "2 buttons, current 2, list 2 selecting 2, changed");
    EXPECT_EQ(design.calls.front(), "LoadButton 2");
}

TEST_F(EditorFixture, The102ndButtonIsRefusedWithTheTwoLineMessage) {
    Start(99);
    editor.addButton();
    EXPECT_EQ(model.ButtonCount, 101);
    EXPECT_TRUE(ui.shown.empty());
    model.Saved = true;
    const ButtonRecord spare = model.button(102);
    editor.addButton();
    editor.duplicateButton();
    EXPECT_EQ(ui.texts(), (Texts{kLimitMessage, kLimitMessage}));
    EXPECT_EQ(Shown(), "101 buttons, current 101, list 101 selecting 101, saved");
    EXPECT_EQ(model.button(102), spare);
}

TEST_F(EditorFixture, DuplicateCopiesTheCurrentButtonAsTheNewLast) {
    Start(2);
    model.button(2).LabelUP = "two";
    editor.clickList(2);
    editor.duplicateButton();
    EXPECT_EQ(Shown(), "4 buttons, current 4, list 4 selecting 4, changed");
    ButtonRecord moved = model.button(2);
    moved.x = static_cast<std::int16_t>(moved.x + 10);
    moved.y = static_cast<std::int16_t>(moved.y + 10);
    EXPECT_EQ(model.button(4), moved); // offset so that the copy is seen
    // At the edge of the coordinate range the copy stays on it.
    model.button(4).x = 32765;
    editor.duplicateButton();
    EXPECT_EQ(model.button(5).x, 32767);
}

TEST_F(EditorFixture, RemovingButton2Of4MovesTheLaterOnesDownAndSelectsButton1) {
    Start(3);
    for (int i = 1; i <= 4; ++i)
        model.button(i).LabelUP = "b" + std::to_string(i);
    editor.setListSelection({2, 3, 4});
    editor.clickList(2);
    design.clear();
    editor.removeButton();
    EXPECT_EQ(Shown(), "3 buttons, current 1, list 3 selecting 1, changed");
    EXPECT_EQ(model.button(1).LabelUP + model.button(2).LabelUP + model.button(3).LabelUP,
              "b1b3b4");
    EXPECT_EQ(design.calls.front(), "HideLastButton 4");
    EXPECT_EQ(design.redrawn, (std::vector<int>{2, 3})) << "the buttons that moved down";
    EXPECT_EQ(view.props.back(), 1);
}

TEST_F(EditorFixture, RemovingTheLastButtonLeavesCurrentButton1AndTheNextAddMakesButton1) {
    Start();
    editor.removeButton();
    EXPECT_EQ(design.count("HideMarks"), 1);
    const std::size_t shown = view.props.size();
    model.Saved = true;
    editor.removeButton(); // CurrentButton 1 points at no button: nothing to remove
    editor.duplicateButton();
    EXPECT_EQ(Shown(), "0 buttons, current 1, list 0 selecting, saved");
    EXPECT_EQ(view.props.size(), shown);
    editor.addButton();
    EXPECT_EQ(Shown(), "1 buttons, current 1, list 1 selecting 1, changed");
}

TEST_F(EditorFixture, AskToSaveOnAnUnchangedProjectAsksNothingAndOnYesSavesUnderItsName) {
    Start();
    EXPECT_EQ(editor.AskToSave(), SaveAnswer::Saved);
    EXPECT_TRUE(ui.shown.empty());
    model.ProjectFileName = PathOf("a.orv");
    Unsaved({Answer::Yes});
    EXPECT_EQ(editor.AskToSave(), SaveAnswer::Yes);
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_EQ(ui.shown[0].text, "The Project " + PathOf("a.orv") +
                                    " has changed.\r\nDo you want to Save the changes?");
    EXPECT_EQ(ui.shown[0].title, "Orvelin");
    EXPECT_TRUE(model.Saved);
    EXPECT_TRUE(fs::exists(PathOf("a.orv")));
    EXPECT_EQ(settings.recentFile(1), PathOf("a.orv"));
}

TEST_F(EditorFixture, ClosingEndsOnNoOrASaveAndStaysOnCancelOrAFailedSave) {
    Start();
    Unsaved({Answer::Yes});
    ui.chosenFiles = {std::nullopt};
    EXPECT_FALSE(editor.close()) << "Save As on an unnamed project was cancelled";
    EXPECT_EQ(ui.shown.back().kind, "save");
    ui.answers = {Answer::Cancel};
    EXPECT_FALSE(editor.close());
    ui.answers = {Answer::No};
    EXPECT_TRUE(editor.close());
    EXPECT_FALSE(model.Saved);
    model.ProjectFileName = PathOf("no such folder/p.orv");
    ui.answers = {Answer::Yes};
    EXPECT_FALSE(editor.close());
    EXPECT_EQ(ui.texts().back(), kSaveError);
    model.ProjectFileName = PathOf("p.orv");
    ui.answers = {Answer::Yes};
    EXPECT_TRUE(editor.close());
    ui.shown.clear();
    EXPECT_TRUE(editor.close());
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(EditorFixture, NewEmptiesTheProjectAndTheSurfaceUnlessCancelled) {
    Start(2);
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    model.AppletWidth = 300;
    model.AppletName = "menu";
    model.BackImg = "/bg.gif";
    model.AppletProgramOUT = "b;";
    model.ProjectFileName = "/old.orv";
    Unsaved({Answer::Cancel, Answer::No});
    editor.newProject();
    EXPECT_EQ(model.ButtonCount, 3) << "cancel stops";
    editor.newProject();
    EXPECT_EQ(Shown(), "0 buttons, current 0, list 0 selecting, saved");
    EXPECT_EQ(model.AppletName + std::to_string(model.AppletWidth), "menu300");
    EXPECT_EQ(model.BackImg + model.AppletProgramOUT + model.ProjectFileName, "");
    EXPECT_EQ(design.count("ClearButtons"), 1);
    EXPECT_EQ(view.labelEditorCloses, 1);
    EXPECT_TRUE(view.mainParamsUpdating.back());
    EXPECT_TRUE(design.onTop) << "the design surface is put on top again";
}

TEST_F(EditorFixture, OpenLoadsTheChosenFileAndShowsButton1AloneUnlessCancelled) {
    Start();
    const std::string path = WriteProject("open", 4);
    Unsaved({Answer::Cancel, Answer::No, Answer::No});
    editor.open();
    EXPECT_EQ(ui.shown.size(), 1u) << "no file dialog after Cancel";
    ui.chosenFiles = {std::nullopt, path};
    editor.open();
    EXPECT_EQ(model.ButtonCount, 1) << "a closed dialog changes nothing";
    editor.open();
    EXPECT_EQ(ui.shown.back().kind, "open");
    EXPECT_EQ(ui.shown.back().text, texts()[Msg::ProjectFilter]);
    EXPECT_EQ(Shown(), "4 buttons, current 1, list 4 selecting 1, saved");
    EXPECT_EQ(model.button(4).LabelUP, "open4");
    EXPECT_EQ(view.props.back(), 1);
    EXPECT_EQ(view.caption, kTitle + " " + path);
    EXPECT_EQ(settings.recentFile(1), path);
}

TEST_F(EditorFixture, AFileCutOffKeepsTheButtonsReadSoFarInListAndSurface) {
    Start();
    const std::string good = WriteProject("good", 1);
    fs::create_directory(folder.dir() / "sub");
    const std::string text = folder.read(fs::path(WriteProject("cut", 5)).filename());
    const std::string path = folder.write(
        "sub/cut.orv", text.substr(0, text.rfind("\r\n", text.find("cut5")) + 2) + "0|0|107|");
    ui.chosenFiles = {good, path, PathOf("missing.orv")};
    editor.open();
    editor.open();
    EXPECT_EQ(Shown(), "4 buttons, current 1, list 4 selecting 1, saved");
    EXPECT_EQ(design.count("LoadButton 4") + design.count("LoadButton 5"), 1);
    EXPECT_EQ(ui.texts(), Texts{"Error loading project.\r\nInput past end of file"});
    // What is shown has no file name, and its images are found beside the file it is from.
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_EQ(view.caption, kTitle);
    EXPECT_EQ(model.fileForRelativePaths(), path);
    EXPECT_EQ(settings.recentFile(1), good);
    editor.open(); // a file that cannot be read replaces nothing the surface shows
    EXPECT_EQ(model.fileForRelativePaths(), path);
}

TEST_F(EditorFixture, SaveAsProposesTheNameAndAFailedSaveKeepsTheOldOne) {
    Start();
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    ui.chosenFiles = {PathOf("first.orv")};
    model.Saved = false;
    EXPECT_TRUE(editor.save());
    EXPECT_EQ(ui.shown[0].kind, "save");
    EXPECT_EQ(ui.shown[0].title, "untitled.orv");
    EXPECT_EQ(model.ProjectFileName, PathOf("first.orv"));
    EXPECT_TRUE(model.Saved);
    EXPECT_TRUE(design.onTop) << "the design surface is put on top again";

    ui.shown.clear();
    model.Saved = false;
    EXPECT_TRUE(editor.save());
    EXPECT_TRUE(ui.shown.empty()) << "a named project saves without a dialog";
    ui.chosenFiles = {PathOf("missing folder/x.orv")};
    model.Saved = false;
    EXPECT_FALSE(editor.saveAs());
    EXPECT_EQ(ui.shown[0].title, PathOf("first.orv"));
    EXPECT_EQ(model.ProjectFileName, PathOf("first.orv"));
    EXPECT_FALSE(model.Saved);

    // "first" names "first.orv", which the dialog did not ask about: the editor asks.
    ui.shown.clear();
    ui.chosenFiles = {PathOf("first"), PathOf("first")};
    ui.answers = {Answer::Cancel, Answer::Ok};
    EXPECT_FALSE(editor.saveAs());
    EXPECT_EQ(ui.shown[1].text,
              PathOf("first.orv") + " already exists.\r\nDo you want to replace it?");
    EXPECT_TRUE(editor.saveAs());
    EXPECT_EQ(ui.shown.size(), 4u);
    EXPECT_EQ(folder.entries(), 1) << "first.orv, and no file \"first\"";
}

TEST_F(EditorFixture, SavedProjectsFillTheRecentListAndReopeningOneAsksFirst) {
    Start();
    editor.openRecent(2); // an empty slot opens nothing
    EXPECT_TRUE(ui.shown.empty());
    for (const char* name : {"P", "Q", "R", "S", "T"}) {
        ui.chosenFiles = {PathOf(std::string(name) + ".orv")};
        ASSERT_TRUE(editor.saveAs());
    }
    const std::array<std::string, 4> expected{PathOf("T.orv"), PathOf("S.orv"), PathOf("R.orv"),
                                              PathOf("Q.orv")};
    EXPECT_EQ(editor.recent().entries(), expected);
    EXPECT_EQ(view.recent[4], (std::pair<std::string, bool>{PathOf("Q.orv"), true}));
    editor.addButton();
    Unsaved({Answer::Cancel, Answer::No});
    editor.openRecent(3);
    EXPECT_EQ(model.ButtonCount, 2) << "cancel stops";
    editor.openRecent(3);
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(model.ProjectFileName, PathOf("R.orv"));
    EXPECT_EQ(editor.recent().entries(), expected);
    // The comparison is exact: another spelling is another file.
    editor.recent().WriteRecent(PathOf("r.orv"));
    EXPECT_EQ(editor.recent().path(1), PathOf("r.orv"));
    EXPECT_EQ(editor.recent().path(4), PathOf("R.orv"));
}

TEST_F(EditorFixture, ImportingALegacyProjectLeavesItUnnamedAndUnsaved) {
    Start();
    ui.chosenFiles = {std::string(ORVELIN_TEST_DATA) + "/legacy_project.ini"};
    editor.importLegacy();
    EXPECT_EQ(ui.shown[0].text, texts()[Msg::LegacyProjectFilter]);
    EXPECT_EQ(Shown(), "2 buttons, current 1, list 2 selecting 1, changed");
    EXPECT_EQ(model.AppletWidth, 400);
    EXPECT_EQ(model.ProjectFileName, "");
    EXPECT_EQ(settings.recentFile(1), "-1");
    EXPECT_EQ(view.caption, kTitle);
}

TEST_F(EditorFixture, SoundConverterAndHelpUseTheProgramFolder) {
    Start();
    const std::string dir = folder.dir().string();
    const std::string page = dir + "/help/help.htm";
    editor.help(); // no page: not handed to the desktop at all
    std::filesystem::create_directories(dir + "/help");
    orvelin::testing::WriteBytes(page, "<html></html>");
    editor.soundConverter();
    editor.help();
    shell.succeed = false;
    editor.soundConverter();
    editor.help();
    ASSERT_EQ(shell.started.size(), 2u);
    EXPECT_EQ(shell.started[0].first, dir + "/SoundConv");
    EXPECT_EQ(shell.opened, (Texts{page, page}));
    ASSERT_EQ(ui.texts().size(), 3u);
    EXPECT_EQ(ui.texts()[0], page + " not found");
    EXPECT_EQ(ui.texts()[1], dir + "/SoundConv not found.");
    // The page's path first, then what to install or choose.
    EXPECT_TRUE(ui.texts()[2].starts_with(page + " could not be opened: "));
    EXPECT_NE(ui.texts()[2].find("apt install"), std::string::npos);
}
