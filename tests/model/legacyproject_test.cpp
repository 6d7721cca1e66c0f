#include "fakeui.h"
#include "projectfile.h"
#include "tempfolder.h"

#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <vector>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
using Texts = std::vector<std::string>;

namespace {

const std::string kFixture = ORVELIN_TEST_DATA "/legacy_project.ini";

class LegacyProjectTest : public ::testing::Test {
protected:
    orvelin::testing::TempFolder folder;
    FakeUserInterface ui;
    ProjectModel model;
};

} // namespace

TEST_F(LegacyProjectTest, ReadsTheAppletAndEveryButtonKeyAndKeepsTheFieldsItLacks) {
    model.button(1).LabelPosYUP = -3;
    model.button(1).ProgramUP = "HideButton(1);";
    model.BgOffsetX = 4;
    model.AppletProgramStart = "ShowButton(1);";
    model.AppletName = "menu";
    ASSERT_TRUE(LoadProject_OLD(model, kFixture, &ui).loaded());
    EXPECT_EQ(std::tie(model.ButtonCount, model.BackGround, model.Behaviour, model.DOWNBtn,
                       model.AppletWidth, model.AppletHeight, model.BackImg, model.BackImgStyle,
                       model.BgOffsetX, model.AppletProgramStart, model.AppletName),
              std::make_tuple(2, 12632256, 1, 1, 400, 60, "images\\back.gif", 1, 4,
                              "ShowButton(1);", "menu"));
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.ProjectFileName, kFixture);

    // The first of two spellings of a key counts; values lose their blanks.
    ButtonRecord expected;
    ASSERT_FALSE(parseButton("5|6|90|30||Go&nbsphome|Home|index.htm|Back to the start|_top|0|1|1|"
                             "up.gif|over.gif|down.gif|255|65280|16711680|1|2|3|Verdana|"
                             "Courier New|Times New Roman|1|2|3|12|14|16|up.au|over.au|down.au|",
                             expected));
    expected.LabelUP = "Home&nbsppage"; // the old format stored labels as typed
    expected.LabelPosYUP = -3;
    expected.ProgramUP = "HideButton(1);";
    EXPECT_EQ(model.button(1), expected);
    EXPECT_FALSE(ui.progressVisible);
}

TEST_F(LegacyProjectTest, MissingKeysTakeTheOldFormatsDefaults) {
    // These differ from a new button's on purpose: size 0, no target, black.
    model.button(2).Width = 50;
    model.button(2).Target = "_blank";
    ASSERT_TRUE(LoadProject_OLD(model, kFixture, &ui).loaded());
    ButtonRecord expected;
    expected.x = 120;
    expected.LabelUP = "Second";
    expected.Width = expected.Height = 0;
    expected.Target = "";
    expected.BackColorUP = expected.BackColorOVER = expected.BackColorDOWN = 0;
    expected.FontColorOVER = expected.FontColorDOWN = 0;
    EXPECT_EQ(model.button(2), expected);

    model.AppletWidth = 300;
    EXPECT_TRUE(LoadProject_OLD(model, folder.write("other.ini", "[Other]\nButtonCount=4\n"), &ui)
                    .loaded());
    EXPECT_EQ(model.ButtonCount, 0) << "a file without the section is an empty project";
    EXPECT_EQ(model.AppletWidth, 510);
}

TEST_F(LegacyProjectTest, DamagedFilesKeepTheButtonsBeforeTheDamage) {
    const std::tuple<const char*, int, const char*> files[] = {
        {nullptr, 0, "File not found"},
        {"[Buttons]\nButtonCount=103\nx_1=3\n", 0, "Subscript out of range"},
        {"[Buttons]\r\nButtonCount=3\r\nx_1=1\r\nx_2=2\r\nFontSizeOVER_2=big\r\n", 1,
         "Type mismatch"},
        {"[Buttons]\nButtonCount=2\nAppletWidth=99999\n", 0, "Overflow"}};
    for (const auto& [text, kept, cause] : files) {
        FakeUserInterface fresh;
        ProjectModel loaded;
        const std::string path = text ? folder.write("old.ini", text) : folder.path("gone.ini");
        const LoadResult result = LoadProject_OLD(loaded, path, &fresh);
        ASSERT_TRUE(result.error) << cause;
        EXPECT_EQ(result.error->cause, cause);
        EXPECT_EQ(loaded.ButtonCount, kept) << cause;
        EXPECT_EQ(loaded.button(kept).x, kept);
        EXPECT_EQ(loaded.ProjectFileName, "");
        EXPECT_FALSE(fresh.progressVisible);
    }
}
