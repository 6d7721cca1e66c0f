#include "buttonrecord.h"
#include "settings.h"

#include <gtest/gtest.h>

using namespace orvelin;

TEST(Settings, AnEmptyStoreGivesEveryOptionItsDefault) {
    MemorySettingsBackend backend;
    Settings settings(backend);
    EXPECT_EQ(settings.value(SettingKey::strDefaultBtn), "-1");
    EXPECT_EQ(settings.DefaultButton(), kFactoryDefaultButton);
    EXPECT_FALSE(settings.flag(SettingKey::frmDesignOnTop));
    EXPECT_TRUE(settings.flag(SettingKey::AutoTile));
    EXPECT_EQ(settings.value(SettingKey::DontAskToAssociate), "0");
    EXPECT_EQ(settings.value(SettingKey::ShortCut), "none");
    EXPECT_EQ(settings.value(SettingKey::LanguageCurrent), "English");
    for (int slot = 1; slot <= 4; ++slot)
        EXPECT_EQ(settings.RecentFile(slot), "-1");
    EXPECT_EQ(settings.value(SettingKey::BrowsersSelected), "0");
    EXPECT_EQ(settings.StoredGeometry("frmMain"), (WindowGeometry{0, 0, 0, 0}));
    EXPECT_EQ(backend.size(), 0u) << "reading never writes";
}

TEST(Settings, KeysLiveInTheirVersionedSections) {
    MemorySettingsBackend backend;
    Settings settings(backend);
    settings.setFlag(SettingKey::frmDesignOnTop, true);
    settings.setValue(SettingKey::LanguageCurrent, "heb");
    settings.SetRecentFile(3, "/p/r.orv");
    settings.setValue(SettingKey::BrowsersName, "Firefox", 2);
    settings.SaveGeometry("frmDesign", {1, 2, 3, 4});

    EXPECT_EQ(backend.get("1.0  Beta 6\\Params", "frmDesignOnTop", ""), "1");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Language", "Current", ""), "heb");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Recent", "File3", ""), "/p/r.orv");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Browsers", "Name2", ""), "Firefox");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Sizes\\frmDesign", "Left", ""), "1");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Sizes\\frmDesign", "Height", ""), "4");
    EXPECT_EQ(settings.StoredGeometry("frmDesign"), (WindowGeometry{1, 2, 3, 4}));
    EXPECT_EQ(settings.StoredGeometry("frmHTML"), (WindowGeometry{}));
}

TEST(Settings, ASectionWithATrailingBackslashIsTheSameSection) {
    MemorySettingsBackend backend;
    backend.set("1.0  Beta 6\\Params\\", "strDefaultBtn", "written");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Params", "strDefaultBtn", "-1"), "written");
    backend.set("1.0  Beta 6\\Params", "strDefaultBtn", "again");
    EXPECT_EQ(backend.get("1.0  Beta 6\\Params\\", "strDefaultBtn", "-1"), "again");
    EXPECT_EQ(NormalizeSection("a\\b\\"), "a\\b");
    EXPECT_EQ(NormalizeSection("a\\b"), "a\\b");
}

TEST(Settings, TheDefaultButtonWrittenWithTheTrailingBackslashIsReadBack) {
    MemorySettingsBackend backend;
    Settings settings(backend);
    settings.SetDefaultButton("0|0|50|20|");
    EXPECT_EQ(settings.DefaultButton(), "0|0|50|20|");
    EXPECT_TRUE(backend.contains("1.0  Beta 6\\Params", "strDefaultBtn"));
}

TEST(Settings, FlagsAcceptTheOldTrueSpellings) {
    MemorySettingsBackend backend;
    Settings settings(backend);
    for (const char* on : {"1", "-1", "True", "true"}) {
        settings.setValue(SettingKey::frmDesignOnTop, on);
        EXPECT_TRUE(settings.flag(SettingKey::frmDesignOnTop)) << on;
    }
    for (const char* off : {"0", "False", "", "yes"}) {
        settings.setValue(SettingKey::frmDesignOnTop, off);
        EXPECT_FALSE(settings.flag(SettingKey::frmDesignOnTop)) << off;
    }
    settings.setFlag(SettingKey::AutoTile, false);
    EXPECT_EQ(settings.value(SettingKey::AutoTile), "0");
}

TEST(WindowGeometry, AStoredZeroWidthKeepsTheDesignedGeometryEvenWithAPosition) {
    const WindowGeometry designed{100, 80, 400, 300};
    EXPECT_EQ(RestoredGeometry({50, 60, 0, 200}, designed, 1920, 1080), designed);
    EXPECT_EQ(RestoredGeometry({50, 60, 200, 0}, designed, 1920, 1080), designed);
    EXPECT_EQ(RestoredGeometry({}, designed, 1920, 1080), designed);
}

TEST(WindowGeometry, ARestoredPositionStaysWithinTheScreenLessATenth) {
    const WindowGeometry designed{100, 80, 400, 300};
    EXPECT_EQ(RestoredGeometry({50, 60, 500, 400}, designed, 1920, 1080),
              (WindowGeometry{50, 60, 500, 400}));
    // Saved on a 2560 by 1440 screen, restored on 1000 by 500.
    EXPECT_EQ(RestoredGeometry({2000, 1300, 500, 400}, designed, 1000, 500),
              (WindowGeometry{900, 450, 500, 400}));
    EXPECT_EQ(RestoredGeometry({-300, -20, 500, 400}, designed, 1000, 500),
              (WindowGeometry{0, 0, 500, 400}));
}

TEST(WindowGeometry, RestoringReadsTheStoredValuesOfTheWindow) {
    MemorySettingsBackend backend;
    Settings settings(backend);
    const WindowGeometry designed{10, 10, 300, 200};
    EXPECT_EQ(settings.RestoreGeometry("frmDesign", designed, 800, 600), designed);
    backend.set("1.0  Beta 6\\Sizes\\frmDesign", "Left", "5000");
    backend.set("1.0  Beta 6\\Sizes\\frmDesign", "Top", "7");
    backend.set("1.0  Beta 6\\Sizes\\frmDesign", "Width", "0");
    backend.set("1.0  Beta 6\\Sizes\\frmDesign", "Height", "250");
    EXPECT_EQ(settings.RestoreGeometry("frmDesign", designed, 800, 600), designed);
    backend.set("1.0  Beta 6\\Sizes\\frmDesign", "Width", "350");
    EXPECT_EQ(settings.RestoreGeometry("frmDesign", designed, 800, 600),
              (WindowGeometry{720, 7, 350, 250}));
    backend.set("1.0  Beta 6\\Sizes\\frmDesign", "Width", "wide");
    EXPECT_EQ(settings.RestoreGeometry("frmDesign", designed, 800, 600), designed)
        << "a damaged width counts as nothing stored";
}
