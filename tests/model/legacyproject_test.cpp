#include "fakeui.h"
#include "projectfile.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
namespace fs = std::filesystem;

namespace {

const std::string kFixture = ORVELIN_TEST_DATA "/legacy_project.ini";

class LegacyProjectTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::random_device entropy;
        folder = fs::temp_directory_path() / ("orvelin-legacy-" + std::to_string(entropy()));
        fs::create_directories(folder);
    }
    void TearDown() override {
        std::error_code ec;
        fs::remove_all(folder, ec);
    }
    std::string write(const std::string& text) const {
        const std::string path = (folder / "old.ini").string();
        std::ofstream(path, std::ios::binary) << text;
        return path;
    }

    fs::path folder;
    FakeUserInterface ui;
    ProjectModel model;
};

} // namespace

TEST_F(LegacyProjectTest, ReadsTheAppletAndEveryButtonKey) {
    ASSERT_TRUE(LoadProject_OLD(model, kFixture, ui));
    EXPECT_TRUE(ui.messages().empty());
    EXPECT_EQ(model.ButtonCount, 2);
    EXPECT_EQ(model.BackGround, 12632256);
    EXPECT_EQ(model.Behaviour, 1);
    EXPECT_EQ(model.DOWNBtn, 1);
    EXPECT_EQ(model.AppletWidth, 400);
    EXPECT_EQ(model.AppletHeight, 60);
    EXPECT_EQ(model.BackImg, "images\\back.gif");
    EXPECT_EQ(model.BackImgStyle, 1);

    const ButtonRecord& b = model.Button(1);
    EXPECT_EQ(b.x, 5); // the first of two spellings of the key counts
    EXPECT_EQ(b.y, 6);
    EXPECT_EQ(b.Width, 90);
    EXPECT_EQ(b.Height, 30);
    EXPECT_EQ(b.LabelUP, "Home&nbsppage"); // the old format stored labels as typed
    EXPECT_EQ(b.LabelOVER, "Go home");
    EXPECT_EQ(b.LabelDOWN, "Home");
    EXPECT_EQ(b.URL, "index.htm");
    EXPECT_EQ(b.Status, "Back to the start");
    EXPECT_EQ(b.Target, "_top");
    EXPECT_EQ(b.BackColorUP, 255);
    EXPECT_EQ(b.BackColorOVER, 65280);
    EXPECT_EQ(b.BackColorDOWN, 16711680);
    EXPECT_EQ(b.FontSizeUP, 12);
    EXPECT_EQ(b.FontSizeOVER, 14);
    EXPECT_EQ(b.FontSizeDOWN, 16);
    EXPECT_EQ(b.FontUP, "Verdana");
    EXPECT_EQ(b.FontOVER, "Courier New");
    EXPECT_EQ(b.FontDOWN, "Times New Roman");
    EXPECT_EQ(b.FontStyleUP, "1");
    EXPECT_EQ(b.FontStyleOVER, "2");
    EXPECT_EQ(b.FontStyleDOWN, "3");
    EXPECT_EQ(b.FontColorUP, 1);
    EXPECT_EQ(b.FontColorOVER, 2);
    EXPECT_EQ(b.FontColorDOWN, 3);
    EXPECT_EQ(b.ImageUP, "up.gif");
    EXPECT_EQ(b.ImageOVER, "over.gif");
    EXPECT_EQ(b.ImageDOWN, "down.gif");
    EXPECT_EQ(b.SndUP, "up.au");
    EXPECT_EQ(b.SndOVER, "over.au");
    EXPECT_EQ(b.SndDOWN, "down.au");
    EXPECT_EQ(b.Border, 0);
    EXPECT_EQ(b.noBackGround, 1);
    EXPECT_EQ(b.ShowHand, 1);
    EXPECT_TRUE(model.Saved);
    EXPECT_EQ(model.ProjectFileName, kFixture);
}

TEST_F(LegacyProjectTest, MissingKeysTakeTheOldFormatsDefaults) {
    // These defaults differ from a new button's on purpose: size 0, no target, black.
    model.Button(2).Width = 50;
    model.Button(2).Target = "_blank";
    ASSERT_TRUE(LoadProject_OLD(model, kFixture, ui));
    ButtonRecord expected;
    expected.x = 120;
    expected.LabelUP = "Second";
    expected.Width = 0;
    expected.Height = 0;
    expected.Target = "";
    expected.BackColorUP = expected.BackColorOVER = expected.BackColorDOWN = 0;
    expected.FontColorOVER = expected.FontColorDOWN = 0;
    EXPECT_EQ(model.Button(2), expected);
}

TEST_F(LegacyProjectTest, FieldsTheOldFormatLacksKeepTheirValues) {
    ButtonRecord& slot = model.Button(1);
    slot.ImgStyleDOWN = 2;
    slot.PositionTextOVER = 1;
    slot.LabelPosYUP = -3;
    slot.Hidden = 1;
    slot.ProgramUP = "HideButton(1);";
    model.BgOffsetX = 4;
    model.AppletProgramStart = "ShowButton(1);";
    model.AppletProgramOUT = "HideButton(2);";
    model.AppletName = "menu";
    ASSERT_TRUE(LoadProject_OLD(model, kFixture, ui));
    EXPECT_EQ(slot.ImgStyleDOWN, 2);
    EXPECT_EQ(slot.PositionTextOVER, 1);
    EXPECT_EQ(slot.LabelPosYUP, -3);
    EXPECT_EQ(slot.Hidden, 1);
    EXPECT_EQ(slot.ProgramUP, "HideButton(1);");
    EXPECT_EQ(model.BgOffsetX, 4);
    EXPECT_EQ(model.AppletProgramStart, "ShowButton(1);");
    EXPECT_EQ(model.AppletProgramOUT, "HideButton(2);");
    EXPECT_EQ(model.AppletName, "menu");
}

TEST_F(LegacyProjectTest, ShowsTheLoadingProgress) {
    ASSERT_TRUE(LoadProject_OLD(model, kFixture, ui));
    EXPECT_EQ(ui.progressTexts,
              (std::vector<std::string>{"Please Wait...|Loading Project...",
                                        "Please Wait...|Loading Button # 1 of 2",
                                        "Please Wait...|Loading Button # 2 of 2"}));
    EXPECT_EQ(ui.progressPercents, (std::vector<int>{-1, 50, 100}));
    EXPECT_FALSE(ui.progressVisible);
}

TEST_F(LegacyProjectTest, CountBeyondTheTableKeepsNoButtons) {
    for (const char* count : {"103", "-1"}) {
        FakeUserInterface fresh;
        ProjectModel loaded;
        EXPECT_FALSE(LoadProject_OLD(
            loaded, write(std::string("[Buttons]\nButtonCount=") + count + "\nx_1=3\n"), fresh));
        EXPECT_EQ(loaded.ButtonCount, 0) << count;
        EXPECT_EQ(fresh.messages(),
                  std::vector<std::string>{"Error loading project.\r\nSubscript out of range"});
        EXPECT_EQ(loaded.ProjectFileName, "");
        EXPECT_FALSE(fresh.progressVisible);
    }
}

TEST_F(LegacyProjectTest, BadNumberKeepsTheButtonsBefore) {
    EXPECT_FALSE(LoadProject_OLD(
        model, write("[Buttons]\r\nButtonCount=3\r\nx_1=1\r\nx_2=2\r\nFontSizeOVER_2=big\r\n"),
        ui));
    EXPECT_EQ(model.ButtonCount, 1);
    EXPECT_EQ(model.Button(1).x, 1);
    EXPECT_EQ(ui.messages(), std::vector<std::string>{"Error loading project.\r\nType mismatch"});

    FakeUserInterface applet;
    EXPECT_FALSE(
        LoadProject_OLD(model, write("[Buttons]\nButtonCount=2\nAppletWidth=99999\n"), applet));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(applet.messages(), std::vector<std::string>{"Error loading project.\r\nOverflow"});
}

TEST_F(LegacyProjectTest, MissingFileIsReported) {
    EXPECT_FALSE(LoadProject_OLD(model, (folder / "gone.ini").string(), ui));
    EXPECT_EQ(ui.messages(), std::vector<std::string>{"Error loading project.\r\nFile not found"});
    EXPECT_EQ(model.ProjectFileName, "");
}

TEST_F(LegacyProjectTest, FileWithoutTheSectionIsAnEmptyProject) {
    model.ButtonCount = 4;
    model.AppletWidth = 300; // a missing key gives the old format's default, not the old value
    EXPECT_TRUE(LoadProject_OLD(model, write("[Other]\nButtonCount=4\n"), ui));
    EXPECT_EQ(model.ButtonCount, 0);
    EXPECT_EQ(model.AppletWidth, 510);
    EXPECT_EQ(model.AppletHeight, 170);
}
