#include "editor.h"
#include "fakeui.h"
#include "projectfile.h"
#include "tempfolder.h"
#include "textcatalogue.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
namespace fs = std::filesystem;

namespace {

const std::string kHeader = "Orvelin Project 1.0  Beta 6";
const std::string kEmptyProject = kHeader + "\r\n510|170|0|0|0|0||0||||0|0|||\r\n";
using Texts = std::vector<std::string>;

// Header, applet line with `count` buttons and the given lines, CR LF each.
std::string ProjectWith(int count, const Texts& lines, const std::string& header = kHeader) {
    std::string text = header + "\r\n510|170|" + std::to_string(count) + "|0|0|0||0||||0|0|||\r\n";
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

// A default button line at (x, 0), so that buttons can be told apart.
std::string ButtonAt(int x) {
    return std::to_string(x) + std::string(kFactoryDefaultButton + 1);
}

Texts ButtonsUpTo(int count) {
    Texts lines;
    for (int x = 1; x <= count; ++x)
        lines.push_back(ButtonAt(x));
    return lines;
}

// A read followed by what the editor shows of it.
bool Load(ProjectModel& m, const std::string& path, FakeUserInterface& ui) {
    return showLoadResult(LoadProject(m, path, &ui), ui);
}
bool Load_OLD(ProjectModel& m, const std::string& path, FakeUserInterface& ui) {
    return showLoadResult(LoadProject_OLD(m, path, &ui), ui);
}

class ProjectFileTest : public ::testing::Test {
protected:
    std::string write(const std::string& bytes) const { return folder.write("project.orv", bytes); }
    std::string path() const { return folder.path("project.orv"); }

    orvelin::testing::TempFolder folder;
    FakeUserInterface ui;
    ProjectModel model;
};

} // namespace

TEST_F(ProjectFileTest, SmallProjectIsWrittenLetterForLetterInUtf8WithoutByteOrderMark) {
    model.AppletWidth = 300;
    model.AppletHeight = 50;
    model.BackGround = -1;
    model.BackImg = "back.gif";
    model.AppletProgramStart = "ShowButton(1);";
    model.AppletName = "bar";
    model.ButtonCount = 1;
    model.button(1).x = -5;
    model.button(1).LabelUP = "Say \"Hi\" | bye";
    model.button(1).URL = "http://x.org/a b";
    model.button(1).Status = "é€";
    ASSERT_TRUE(SaveProject(model, path(), ui));
    EXPECT_EQ(
        folder.read("project.orv"),
        "Orvelin Project 1.0  Beta 6\r\n"
        "300|50|1|0|0|-1|back.gif|0||||0|0|ShowButton(1);|bar|\r\n"
        "-5|0|107|40|Say&nbsp&y02Hi&y02&nbspI&nbspbye|||http://x.org/a b|\xC3\xA9\xE2\x82\xAC|"
        "_self|1|0|0||||65535|16776960|255|0|16711680|16777215|Arial|Arial|Arial|0|0|0|10|"
        "10|10||||0|0|0|0|0|0|53|25|53|31|53|37|0||||\r\n");
}

TEST_F(ProjectFileTest, ProjectWithoutButtonsIsTwoLinesThatReplaceTheOldFile) {
    write(std::string(5000, 'x'));
    fs::permissions(path(), fs::perms::owner_read | fs::perms::owner_write);
    ASSERT_TRUE(SaveProject(model, path(), ui));
    EXPECT_EQ(folder.read("project.orv"), kEmptyProject);
    EXPECT_EQ(fs::status(path()).permissions() & fs::perms::all,
              fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(folder.entries(), 1);
}

TEST_F(ProjectFileTest, EarlierHeadersWarnAndUnknownOnesLoadSilently) {
    const std::pair<const char*, bool> headers[] = {{"Orvelin Project 1.0  Beta 5", true},
                                                    {"Tessaly Project 1.0  Beta 2", true},
                                                    {"Orvelin Project 1.0  Beta 6", false},
                                                    {"Orvelin Project 1.0 Beta 6", false},
                                                    {"whatever", false}};
    for (const auto& [header, warns] : headers) {
        FakeUserInterface fresh;
        ProjectModel loaded;
        EXPECT_TRUE(Load(loaded, write(ProjectWith(2, ButtonsUpTo(2), header)), fresh));
        EXPECT_EQ(loaded.button(2).x, 2);
        ASSERT_EQ(fresh.shown.size(), warns ? 1u : 0u) << header;
        if (warns) {
            EXPECT_EQ(fresh.shown[0].title, "Warning");
            EXPECT_EQ(fresh.shown[0].text,
                      "Project was created by earlier version of Orvelin\r\n\r\n"
                      "Note: Saving will convert it to version 1.0  Beta 6");
        }
    }
}

TEST_F(ProjectFileTest, LinesAfterTheLastButtonAndLoneLineFeedsAreAccepted) {
    const std::pair<std::string, int> files[] = {
        {ProjectWith(2, {ButtonAt(1), ButtonAt(2), "", "trailing text", "x|y|z"}), 2},
        {kHeader + "\n510|170|2|0|0|0||0||||0|0|||\n" + ButtonAt(1) + "\n" + ButtonAt(2), 2},
        {kEmptyProject.substr(0, kEmptyProject.size() - 2), 0},
        {ProjectWith(102, ButtonsUpTo(102)), 102}};
    for (const auto& [text, count] : files) {
        ProjectModel loaded;
        EXPECT_TRUE(Load(loaded, write(text), ui)) << text.substr(0, 60);
        EXPECT_EQ(loaded.ButtonCount, count);
        EXPECT_EQ(loaded.button(count).x, count);
        EXPECT_TRUE(count == 102 || loaded.button(count + 1) == ButtonRecord{});
    }
    EXPECT_TRUE(ui.texts().empty());
    // The applet name is read from the field after the ones the writer produces.
    write(kHeader + "\r\n510|170|0|0|0|0||0||||0|0||written|read|\r\n");
    EXPECT_TRUE(Load(model, path(), ui));
    EXPECT_EQ(model.AppletName, "read");
}

TEST_F(ProjectFileTest, DamagedFilesKeepTheButtonsReadBeforeTheDamage) {
    Texts wideThird = ButtonsUpTo(4);
    wideThird[2].replace(wideThird[2].find("|107|"), 5, "|wide|");
    Texts tallFirst = ButtonsUpTo(2);
    tallFirst[0].replace(tallFirst[0].find("|40|"), 4, "|40000|");
    const std::tuple<std::optional<std::string>, int, const char*> files[] = {
        {std::nullopt, 0, "File not found"},
        {kHeader + "\r\n", 0, "Input past end of file"},
        {ProjectWith(3, ButtonsUpTo(2)), 2, "Input past end of file"},
        {ProjectWith(4, wideThird), 2, "Type mismatch"},
        {ProjectWith(2, tallFirst), 0, "Overflow"},
        {ProjectWith(103, ButtonsUpTo(103)), 0, "Subscript out of range"},
    };
    for (const auto& [text, kept, cause] : files) {
        SCOPED_TRACE(cause);
        fs::remove(path());
        if (text)
            write(*text);
        FakeUserInterface fresh;
        ProjectModel loaded;
        loaded.ButtonCount = 1;
        loaded.CurrentButton = 1;
        loaded.ProjectFileName = "/old.orv";
        loaded.Saved = false;
        EXPECT_FALSE(Load(loaded, path(), fresh));
        EXPECT_EQ(loaded.ButtonCount, kept);
        EXPECT_EQ(loaded.button(kept).x, kept);
        EXPECT_EQ(loaded.CurrentButton, 0);
        EXPECT_EQ(loaded.ProjectFileName, "");
        EXPECT_FALSE(loaded.Saved);
        EXPECT_EQ(fresh.texts(), Texts{"Error loading project.\r\n" + std::string(cause)});
        EXPECT_FALSE(fresh.progressVisible);
    }
}

TEST_F(ProjectFileTest, OldCodePageFileIsDecoded) {
    EXPECT_TRUE(Load(model, ORVELIN_TEST_DATA "/project_cp1252.orv", ui));
    EXPECT_EQ(model.button(1).LabelUP, "Café € “ok”");
}

TEST_F(ProjectFileTest, FailedSaveLeavesTheOldFileAlone) {
    const std::string old = ProjectWith(1, {ButtonAt(1)});
    write(old);
    fs::permissions(path(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    model.addButton(kFactoryDefaultButton);
    model.Saved = false;
    EXPECT_FALSE(SaveProject(model, path(), ui));
    EXPECT_FALSE(model.Saved);
    EXPECT_EQ(folder.read("project.orv"), old);
    EXPECT_FALSE(ui.progressVisible);
    EXPECT_EQ(folder.entries(), 1) << "nothing is left behind in the folder";
    EXPECT_EQ(ui.texts(), Texts{"Error Saving Buttons. File may be Read Only, Hidden or used by "
                                "another application.\r\nPermission denied"});
}

TEST_F(ProjectFileTest, CharactersAFieldCannotHoldAreRemovedWithOneWarning) {
    Texts buttons = ButtonsUpTo(3);
    buttons[0].replace(buttons[0].find("|Arial|"), 7, "|Arial\"><script>|");
    buttons[0].replace(buttons[0].rfind("||||"), 4, "|1 2;\r6 5;|||");
    buttons[2].replace(buttons[2].find("|_self|"), 7, "|_se\tlf|");
    std::string text = ProjectWith(3, buttons);
    text.replace(text.find("|0|0|||\r\n"), 9, "|0|0|1 \"2\";||\r\n");
    ASSERT_TRUE(Load(model, write(text), ui));
    EXPECT_EQ(model.button(1).FontUP, "Arial><script>");
    EXPECT_EQ(model.button(1).ProgramUP, "1 2;6 5;");
    EXPECT_EQ(model.button(3).Target, "_self");
    EXPECT_EQ(model.AppletProgramStart, "1 2;");
    ASSERT_TRUE(Load_OLD(
        model, folder.write("old.ini", "[Buttons]\nButtonCount=1\nFontDOWN_1=Ari\"al\n"), ui));
    EXPECT_EQ(model.button(1).FontDOWN, "Arial");
    const std::string note = "Characters that these fields cannot hold were removed:\r\n";
    EXPECT_EQ(ui.texts(), (Texts{note + "Applet: AppletProgramStart\r\nButton 1: FontUP, "
                                        "ProgramUP\r\nButton 3: Target",
                                 note + "Button 1: FontDOWN"}));
}
