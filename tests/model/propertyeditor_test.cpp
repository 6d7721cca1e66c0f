#include "editor.h"
#include "editorfakes.h"
#include "projectfile.h"
#include "propertyeditor.h"
#include "textcatalogue.h"

#include <gtest/gtest.h>
#include <string_view>

using namespace orvelin;

namespace {

struct PropertyFixture : ::testing::Test, orvelin::testing::EditorParts {
    PropertyEditor props{model, list, ui, settings, view};

    // Buttons 1..count, the given ones selected, `current` current, nothing unsaved.
    void MakeButtons(int count, std::vector<int> selected, int current) {
        for (int i = 0; i < count; ++i) {
            ASSERT_EQ(model.addButton(kFactoryDefaultButton), ProjectModel::AddResult::Added);
            list.append();
        }
        for (int i : selected)
            list.addSelection(i);
        model.CurrentButton = static_cast<std::int16_t>(current);
        model.Saved = true;
    }
};

} // namespace

TEST_F(PropertyFixture, EverySetterWritesItsFieldOfTheSelectedButtonsInTheEditedState) {
    MakeButtons(3, {1, 3}, 3);
    model.CurrentState = ButtonState::DOWN;
    props.setLabel("Go\\nthere");
    props.setLabelPosX("7");
    props.setLabelPosY("8");
    props.setFont("Courier");
    props.setFontSize("14");
    props.setFontStyle(false, true);
    props.setBackColor(42);
    props.setImage("/img/a.gif");
    props.setImgStyle(2);
    props.setSound("/snd/a.au");
    props.setURL("http://a.b/");
    props.setStatus("Home");
    props.setTarget("_blank");
    props.setBorder(false);
    props.setTransparent(true);
    props.setShowHand(true);
    props.setHidden(true);
    // Geometry goes through the integer conversion: halves to even, 0 for no 16-bit number.
    props.setX(" 40 ");
    props.setY("12.5");
    props.setWidth("abc");
    props.setHeight("99999");
    ButtonRecord expected;
    ASSERT_FALSE(parseButton("40|12|0|0|||Go\\nthere|http://a.b/|Home|_blank|0|1|1|||/img/a.gif|"
                             "65535|16776960|42|0|16711680|16777215|Arial|Arial|Courier|0|0|2|"
                             "10|10|14|||/snd/a.au|0|0|2|0|0|0|53|25|53|31|7|8|1|",
                             expected));
    EXPECT_EQ(model.button(1), expected);
    EXPECT_EQ(model.button(3), expected);
    EXPECT_EQ(model.button(2), ButtonRecord{});
    EXPECT_TRUE(ui.shown.empty()) << "no message for bad numbers";
}

TEST_F(PropertyFixture, NothingIsWrittenWhileUpdatingOrWithoutASelection) {
    MakeButtons(2, {1, 2}, 1);
    model.Updating = true;
    const std::string before = projectText(model);
    props.setLabel("x"); // the button setters share one guard
    props.setPositionText(true);
    props.setAppletWidth("300");
    props.setBackImg("/b.gif");
    model.Updating = false;
    list.removeSelection(1);
    list.removeSelection(2);
    props.setLabel("x");
    EXPECT_EQ(projectText(model), before);
    EXPECT_TRUE(model.Saved);
    EXPECT_TRUE(design.calls.empty());
    EXPECT_TRUE(view.props.empty());
}

TEST_F(PropertyFixture, PositionTextAndCenterTextAreOneFlagAndRefreshThePanel) {
    MakeButtons(3, {2, 3}, 3);
    model.CurrentState = ButtonState::OVER;
    props.setPositionText(true);
    EXPECT_EQ((std::vector<int>{model.button(1).PositionTextOVER, model.button(2).PositionTextOVER,
                                model.button(3).PositionTextOVER, model.button(3).PositionTextUP}),
              (std::vector<int>{0, 1, 1, 0}));
    EXPECT_EQ(view.props.size(), 1u) << "the panel shows the new flag";
    props.setCenterText(true);
    EXPECT_EQ(model.button(2).PositionTextOVER + model.button(3).PositionTextOVER, 0);
}

TEST_F(PropertyFixture, AChosenBackgroundImageIsTiledOnlyWhenSmallerAndTilingIsOn) {
    EXPECT_EQ(autoBackImgStyle(true, ImageSize{100, 50}, 510, 170), 1);
    for (const std::optional<ImageSize>& image :
         {std::optional<ImageSize>{{510, 50}}, {{100, 170}}, {{800, 600}}, {}})
        EXPECT_EQ(autoBackImgStyle(true, image, 510, 170), 0);
    EXPECT_EQ(autoBackImgStyle(false, ImageSize{100, 50}, 510, 170), std::nullopt);

    view.imageSizes["/small.gif"] = {32, 32};
    view.imageSizes["/big.jpg"] = {600, 400};
    ui.chosenFiles = {"/small.gif", "/big.jpg", "/small.gif", std::nullopt};
    props.browseBackImg();
    EXPECT_EQ(model.BackImg, "/small.gif");
    EXPECT_EQ(model.BackImgStyle, 1);
    EXPECT_EQ(ui.shown[0].text, texts()[Msg::ImageFilter]);
    props.browseBackImg();
    EXPECT_EQ(model.BackImg, "/big.jpg");
    EXPECT_EQ(model.BackImgStyle, 0);
    EXPECT_FALSE(design.notices.back().fromPanel) << "the applet controls show the choice";

    settings.setFlag(SettingKey::AutoTile, false);
    model.BackImgStyle = 2;
    props.browseBackImg();
    EXPECT_EQ(model.BackImg, "/small.gif");
    EXPECT_EQ(model.BackImgStyle, 2) << "with tiling off the placement stays";
    props.browseBackImg();
    EXPECT_EQ(model.BackImg, "/small.gif") << "a cancelled dialog changes nothing";
}

TEST_F(PropertyFixture, ChosenImagesAndSoundsGoIntoTheEditedStateAndShow) {
    MakeButtons(2, {1, 2}, 2);
    model.CurrentState = ButtonState::OVER;
    ui.chosenFiles = {"/i/over.gif", "/s/over.au", std::nullopt};
    props.browseImage();
    props.browseSound();
    props.browseImage();
    EXPECT_EQ(model.button(1).ImageOVER, "/i/over.gif");
    EXPECT_EQ(model.button(2).SndOVER, "/s/over.au");
    EXPECT_EQ(model.button(2).ImageUP, "");
    EXPECT_EQ(ui.shown[1].text, texts()[Msg::SoundFilter]);
    EXPECT_EQ(view.props.size(), 2u);
}

TEST(FileFilters, EachEndsWithAllFilesInTheFormQtReadsAsEveryNameAlsoWithoutADot) {
    for (Msg filter :
         {Msg::ProjectFilter, Msg::LegacyProjectFilter, Msg::ImageFilter, Msg::SoundFilter})
        EXPECT_TRUE(texts()[filter].ends_with(";;All Files (*)")) << texts()[filter];
}
