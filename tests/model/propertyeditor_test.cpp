#include "editorfakes.h"
#include "fakeui.h"
#include "propertyeditor.h"

#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;
using orvelin::testing::RecordingDesignView;
using orvelin::testing::RecordingEditorView;

namespace {

struct PropertyFixture : ::testing::Test {
    ProjectModel model;
    ButtonList list;
    FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingDesignView design;
    RecordingEditorView view{model};
    PropertyEditor props{model, list, ui, settings, design, view};

    // Buttons 1..count, the given ones selected, `current` current, nothing unsaved.
    void MakeButtons(int count, std::vector<int> selected, int current) {
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(model.AddButton(kFactoryDefaultButton), ProjectModel::AddResult::Added);
            list.append();
        }
        for (int i : selected)
            list.addSelection(i);
        model.CurrentButton = static_cast<std::int16_t>(current);
        model.Saved = true;
    }
};

} // namespace

TEST_F(PropertyFixture, FontColourInOverChangesOnlyThatFieldOfEverySelectedButton) {
    MakeButtons(4, {1, 2, 3}, 2);
    model.CurrentState = "OVER";
    const ProjectModel before = model;
    props.SetFontColor(0x123456);
    for (int i = 1; i <= 3; ++i) {
        ButtonRecord expected = before.Button(i);
        expected.FontColorOVER = 0x123456;
        EXPECT_EQ(model.Button(i), expected) << "button " << i;
    }
    EXPECT_EQ(model.Button(4), before.Button(4));
    EXPECT_EQ(design.redrawn, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(design.calls[1], "RedrawButton 2 110") << "the current one gets its handles";
    EXPECT_FALSE(model.Saved);
}

TEST_F(PropertyFixture, PerStateFieldsGoIntoTheEditedStateOnly) {
    MakeButtons(2, {1, 2}, 1);
    model.CurrentState = "DOWN";
    props.SetLabel("Go\\nthere");
    props.SetLabelPosX("7");
    props.SetLabelPosY("8");
    props.SetFont("Courier");
    props.SetFontSize("14");
    props.SetFontStyle(false, true);
    props.SetBackColor(42);
    props.SetImage("/img/a.gif");
    props.SetImgStyle(2);
    props.SetSound("/snd/a.au");
    for (int i = 1; i <= 2; ++i) {
        const ButtonRecord& b = model.Button(i);
        EXPECT_EQ(b.LabelDOWN, "Go\\nthere");
        EXPECT_EQ(b.LabelUP, "");
        EXPECT_EQ(b.LabelPosXDOWN, 7);
        EXPECT_EQ(b.LabelPosYDOWN, 8);
        EXPECT_EQ(b.LabelPosYUP, 25);
        EXPECT_EQ(b.FontDOWN, "Courier");
        EXPECT_EQ(b.FontOVER, "Arial");
        EXPECT_EQ(b.FontSizeDOWN, 14);
        EXPECT_EQ(b.FontStyleDOWN, "2");
        EXPECT_EQ(b.FontStyleUP, "0");
        EXPECT_EQ(b.BackColorDOWN, 42);
        EXPECT_EQ(b.BackColorUP, 65535);
        EXPECT_EQ(b.ImageDOWN, "/img/a.gif");
        EXPECT_EQ(b.ImgStyleDOWN, 2);
        EXPECT_EQ(b.SndDOWN, "/snd/a.au");
        EXPECT_EQ(b.SndUP, "");
    }
}

TEST_F(PropertyFixture, TheStyleCodeComesFromBothToggles) {
    MakeButtons(1, {1}, 1);
    const std::pair<std::pair<bool, bool>, const char*> cases[] = {
        {{false, false}, "0"}, {{true, false}, "1"}, {{false, true}, "2"}, {{true, true}, "3"}};
    for (const auto& [flags, code] : cases) {
        props.SetFontStyle(flags.first, flags.second);
        EXPECT_EQ(model.Button(1).FontStyleUP, code);
    }
}

TEST_F(PropertyFixture, GeometryTextGoesThroughTheIntegerConversion) {
    MakeButtons(2, {1, 2}, 1);
    props.SetX(" 40 ");
    props.SetY("12.5");
    props.SetWidth("abc");
    props.SetHeight("99999");
    for (int i = 1; i <= 2; ++i) {
        EXPECT_EQ(model.Button(i).x, 40);
        EXPECT_EQ(model.Button(i).y, 12) << "halves round to the even number";
        EXPECT_EQ(model.Button(i).Width, 0);
        EXPECT_EQ(model.Button(i).Height, 0) << "outside 16 bits gives 0";
    }
    EXPECT_TRUE(ui.shown.empty()) << "no message for bad numbers";
}

TEST_F(PropertyFixture, PerButtonFieldsAndFlags) {
    MakeButtons(3, {1, 3}, 3);
    props.SetURL("http://a.b/");
    props.SetStatus("Home");
    props.SetTarget("_blank");
    props.SetBorder(false);
    props.SetTransparent(true);
    props.SetShowHand(true);
    props.SetHidden(true);
    for (int i : {1, 3}) {
        const ButtonRecord& b = model.Button(i);
        EXPECT_EQ(b.URL, "http://a.b/");
        EXPECT_EQ(b.Status, "Home");
        EXPECT_EQ(b.Target, "_blank");
        EXPECT_EQ(b.Border, 0);
        EXPECT_EQ(b.noBackGround, 1);
        EXPECT_EQ(b.ShowHand, 1);
        EXPECT_EQ(b.Hidden, 1);
    }
    EXPECT_EQ(model.Button(2), ButtonRecord{});
}

TEST_F(PropertyFixture, NothingIsWrittenWhileUpdating) {
    MakeButtons(2, {1, 2}, 1);
    model.Updating = true;
    const ProjectModel before = model;
    props.SetX("5");
    props.SetLabel("x");
    props.SetPositionText(true);
    props.SetCenterText(false);
    props.SetFontStyle(true, true);
    props.SetFontColor(1);
    props.SetURL("u");
    props.SetBorder(false);
    props.SetAppletWidth("300");
    props.SetAppletHeight("90");
    props.SetBehaviour(1);
    props.SetDOWNBtn(true);
    props.SetBackGround(77);
    props.SetBackImg("/b.gif");
    props.SetBackImgStyle(2);
    model.Updating = false;
    EXPECT_EQ(model.Button(1), before.Button(1));
    EXPECT_EQ(model.Button(2), before.Button(2));
    EXPECT_EQ(model.AppletWidth, 510);
    EXPECT_EQ(model.AppletHeight, 170);
    EXPECT_EQ(model.Behaviour, 0);
    EXPECT_EQ(model.DOWNBtn, 0);
    EXPECT_EQ(model.BackGround, 0);
    EXPECT_EQ(model.BackImg, "");
    EXPECT_EQ(model.BackImgStyle, 0);
    EXPECT_TRUE(model.Saved);
    EXPECT_TRUE(design.calls.empty());
    EXPECT_TRUE(view.props.empty());
}

TEST_F(PropertyFixture, FillingThePanelDoesNotCountAsAnEdit) {
    MakeButtons(1, {1}, 1);
    // The window's controls fire their change signals while being filled.
    view.onFill = [this] {
        props.SetLabel("echo");
        props.SetAppletWidth("1");
    };
    props.ShowProp(1);
    props.SetMainParams();
    EXPECT_EQ(model.Button(1).LabelUP, "");
    EXPECT_EQ(model.AppletWidth, 510);
    EXPECT_TRUE(model.Saved);
    EXPECT_FALSE(model.Updating) << "the flag is restored afterwards";
    ASSERT_EQ(view.props.size(), 1u);
    EXPECT_EQ(view.props[0].caption, "Properties for Button # 1");
    EXPECT_TRUE(view.props[0].updating);
    EXPECT_EQ(view.mainParamsUpdating, (std::vector<bool>{true}));
    props.ShowProp(2);
    props.ShowProp(0);
    EXPECT_EQ(view.props.size(), 1u) << "no panel for a button that does not exist";
}

TEST_F(PropertyFixture, PositionTextAndCenterTextAreOneFlagAndRefreshThePanel) {
    MakeButtons(3, {2, 3}, 3);
    model.CurrentState = "OVER";
    props.SetPositionText(true);
    EXPECT_EQ(model.Button(2).PositionTextOVER, 1);
    EXPECT_EQ(model.Button(3).PositionTextOVER, 1);
    EXPECT_EQ(model.Button(3).PositionTextUP, 0);
    EXPECT_EQ(model.Button(1).PositionTextOVER, 0);
    ASSERT_EQ(view.props.size(), 1u);
    EXPECT_EQ(view.props[0].index, 3);
    EXPECT_EQ(view.props[0].state, "OVER");
    props.SetCenterText(true);
    EXPECT_EQ(model.Button(2).PositionTextOVER, 0);
    EXPECT_EQ(model.Button(3).PositionTextOVER, 0);
}

TEST_F(PropertyFixture, NoSelectionMeansNoChange) {
    MakeButtons(2, {}, 1);
    props.SetLabel("x");
    EXPECT_EQ(model.Button(1).LabelUP, "");
    EXPECT_TRUE(model.Saved);
}

TEST_F(PropertyFixture, AppletControlsWriteTheModel) {
    props.SetAppletWidth("300");
    props.SetAppletHeight("x");
    EXPECT_EQ(model.AppletWidth, 300);
    EXPECT_EQ(model.AppletHeight, 0);
    EXPECT_TRUE(design.calls.empty()) << "the surface is resized on Enter only";
    props.CommitAppletSize();
    EXPECT_EQ(design.count("AppletChanged"), 1);
    props.SetBehaviour(1);
    EXPECT_EQ(model.Behaviour, 1);
    props.SetBehaviour(0);
    EXPECT_EQ(model.Behaviour, 0);
    props.SetDOWNBtn(true);
    EXPECT_EQ(model.DOWNBtn, 1);
    EXPECT_FALSE(model.Saved);

    design.clear();
    props.SetBackGround(0xFF00);
    props.SetBackImg("/bg.jpg");
    props.SetBackImgStyle(2);
    EXPECT_EQ(model.BackGround, 0xFF00);
    EXPECT_EQ(model.BackImg, "/bg.jpg");
    EXPECT_EQ(model.BackImgStyle, 2);
    EXPECT_EQ(design.count("UpdateTransparentBtns"), 3);
}

TEST(AutoBackImgStyle, TilesOnlyAnImageSmallerThanTheAppletBothWays) {
    EXPECT_EQ(AutoBackImgStyle(true, ImageSize{100, 50}, 510, 170), 1);
    EXPECT_EQ(AutoBackImgStyle(true, ImageSize{510, 50}, 510, 170), 0);
    EXPECT_EQ(AutoBackImgStyle(true, ImageSize{100, 170}, 510, 170), 0);
    EXPECT_EQ(AutoBackImgStyle(true, ImageSize{800, 600}, 510, 170), 0);
    EXPECT_EQ(AutoBackImgStyle(true, std::nullopt, 510, 170), 0);
    EXPECT_EQ(AutoBackImgStyle(false, ImageSize{100, 50}, 510, 170), std::nullopt);
}

TEST_F(PropertyFixture, AChosenBackgroundImageGetsItsPlacementWhenTilingIsOn) {
    view.imageSizes["/small.gif"] = {32, 32};
    view.imageSizes["/big.jpg"] = {600, 400};
    ui.chosenFiles = {"/small.gif", "/big.jpg"};
    props.BrowseBackImg();
    EXPECT_EQ(model.BackImg, "/small.gif");
    EXPECT_EQ(model.BackImgStyle, 1);
    EXPECT_EQ(ui.shown[0].kind, "open");
    EXPECT_EQ(ui.shown[0].text, kImageFilter);
    props.BrowseBackImg();
    EXPECT_EQ(model.BackImg, "/big.jpg");
    EXPECT_EQ(model.BackImgStyle, 0);
    EXPECT_EQ(view.mainParamsUpdating.size(), 2u) << "the applet controls show the choice";
    EXPECT_EQ(design.count("UpdateTransparentBtns"), 2);
}

TEST_F(PropertyFixture, WithTilingOffAChosenImageKeepsThePlacement) {
    settings.setFlag(SettingKey::AutoTile, false);
    model.BackImgStyle = 2;
    view.imageSizes["/small.gif"] = {32, 32};
    ui.chosenFiles = {"/small.gif", std::nullopt};
    props.BrowseBackImg();
    EXPECT_EQ(model.BackImg, "/small.gif");
    EXPECT_EQ(model.BackImgStyle, 2);
    props.BrowseBackImg();
    EXPECT_EQ(model.BackImg, "/small.gif") << "a cancelled dialog changes nothing";
}

TEST_F(PropertyFixture, ChosenImagesAndSoundsGoIntoTheEditedStateAndShow) {
    MakeButtons(2, {1, 2}, 2);
    model.CurrentState = "OVER";
    ui.chosenFiles = {"/i/over.gif", "/s/over.au", std::nullopt};
    props.BrowseImage();
    props.BrowseSound();
    props.BrowseImage();
    EXPECT_EQ(model.Button(1).ImageOVER, "/i/over.gif");
    EXPECT_EQ(model.Button(2).SndOVER, "/s/over.au");
    EXPECT_EQ(model.Button(2).ImageUP, "");
    EXPECT_EQ(ui.shown[1].text, kSoundFilter);
    EXPECT_EQ(view.props.size(), 2u);
}
