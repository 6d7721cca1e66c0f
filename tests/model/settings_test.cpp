#include "settings.h"
#include "testdoubles.h"

#include <gtest/gtest.h>
#include <string>

using namespace orvelin;
using orvelin::testing::MemorySettingsBackend;

namespace {

const std::string kParams = "1.0  Beta 6\\Params";
const std::string kDesignSizes = "1.0  Beta 6\\Sizes\\frmDesign";

struct SettingsTest : ::testing::Test {
    MemorySettingsBackend backend;
    Settings settings{backend};
};

} // namespace

TEST_F(SettingsTest, KeysLiveInTheirVersionedSectionsWithOrWithoutTheTrailingBackslash) {
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    settings.setValue(SettingKey::LanguageCurrent, "heb");
    settings.setRecentFile(3, "/p/r.orv");
    settings.setValue(SettingKey::BrowsersName, "Firefox", 2);
    settings.saveGeometry("frmDesign", {1, 2, 3, 4});
    EXPECT_EQ(backend.get(kParams, "frmDesignOnTop", ""), "1");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Language", "Current", ""), "heb");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Recent", "File3", ""), "/p/r.orv");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Browsers", "Name2", ""), "Firefox");
    EXPECT_EQ(backend.get(kDesignSizes, "Left", "") + backend.get(kDesignSizes, "Height", ""),
              "14");
    EXPECT_EQ(settings.storedGeometry("frmDesign"), (WindowGeometry{1, 2, 3, 4}));

    backend.set(kParams + "\\", "strDefaultBtn", "0|0|50|20|");
    EXPECT_EQ(settings.defaultButton(), "0|0|50|20|");
    settings.setDefaultButton("0|0|60|20|");
    EXPECT_EQ(backend.get(kParams + "\\", "strDefaultBtn", "-1"), "0|0|60|20|");
}

TEST_F(SettingsTest, FlagsAcceptTheOldTrueSpellings) {
    const std::pair<const char*, bool> spellings[] = {
        {"1", true},  {"-1", true},     {"True", true}, {"true", true},
        {"0", false}, {"False", false}, {"", false},    {"yes", false}};
    for (const auto& [text, on] : spellings) {
        settings.setValue(SettingKey::frmDesignOnTop, text);
        EXPECT_EQ(settings.flag(SettingKey::frmDesignOnTop), on) << text;
    }
}

TEST(WindowGeometry, AStoredZeroWidthKeepsTheDesignedGeometryAndAPositionStaysOnTheScreen) {
    const WindowGeometry designed{100, 80, 400, 300};
    for (const WindowGeometry& stored :
         {WindowGeometry{50, 60, 0, 200}, WindowGeometry{50, 60, 200, 0}, WindowGeometry{}})
        EXPECT_EQ(restoredGeometry(stored, designed, 1920, 1080), designed);
    EXPECT_EQ(restoredGeometry({50, 60, 500, 400}, designed, 1920, 1080),
              (WindowGeometry{50, 60, 500, 400}));
    EXPECT_EQ(restoredGeometry({-300, -20, 500, 400}, designed, 1000, 500),
              (WindowGeometry{0, 0, 500, 400}));
}

TEST_F(SettingsTest, RestoringReadsTheStoredValuesOfTheWindow) {
    const WindowGeometry designed{10, 10, 300, 200};
    EXPECT_EQ(settings.restoreGeometry("frmDesign", designed, 800, 600), designed);
    settings.saveGeometry("frmDesign", {5000, 7, 0, 250});
    backend.set(kDesignSizes, "Width", "350");
    EXPECT_EQ(settings.restoreGeometry("frmDesign", designed, 800, 600),
              (WindowGeometry{720, 7, 350, 250}));
    backend.set(kDesignSizes, "Width", "wide");
    EXPECT_EQ(settings.restoreGeometry("frmDesign", designed, 800, 600), designed)
        << "a damaged width counts as nothing stored";
}
