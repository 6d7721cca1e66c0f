#include "browserlist.h"
#include "tempfolder.h"
#include "testdoubles.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace orvelin;
using orvelin::testing::MemorySettingsBackend;
using orvelin::testing::TempFolder;

namespace {

std::string Program(const TempFolder& temp, const std::string& name) {
    const std::string path = temp.write("bin/" + name, "#!/bin/sh\n");
    fs::permissions(path, fs::perms::owner_all);
    return path;
}

} // namespace

TEST(BrowserList, FirstUseFindsInstalledBrowsersOnceEachAndKeepsTheStoredList) {
    TempFolder temp;
    fs::create_directories(temp.dir() / "bin");
    fs::create_directories(temp.dir() / "data/applications");
    const std::string fox = Program(temp, "fakefox");
    const std::string chromium = Program(temp, "chromium");
    Program(temp, "editor");
    temp.write("data/applications/a-fox.desktop",
               "[Desktop Entry]\nName=Fake Fox\nExec=env A=1 fakefox %u\n"
               "Categories=Network;WebBrowser;\n");
    temp.write("data/applications/b-chrome.desktop", "[Desktop Entry]\nName=Chromium Web\nExec=\"" +
                                                         chromium +
                                                         "\" %U\nCategories=WebBrowser;\n");
    temp.write("data/applications/c-editor.desktop",
               "[Desktop Entry]\nName=Editor\nExec=editor\nCategories=Utility;\n");
    temp.write(
        "data/applications/d-hidden.desktop",
        "[Desktop Entry]\nName=Hidden\nExec=fakefox\nCategories=WebBrowser;\nNoDisplay=true\n");
    const BrowserSearchPlaces places{{temp.path("data")}, {temp.path("bin")}};

    MemorySettingsBackend backend;
    Settings settings(backend);
    const std::vector<BrowserEntry> expected{
        {"Default Browser", ""}, {"Fake Fox", fox}, {"Chromium Web", chromium}};
    EXPECT_EQ(loadBrowsers(settings, places), expected);
    EXPECT_EQ(settings.value(SettingKey::BrowsersPath, 2), fox);

    // Once stored, the list is the user's: what is installed no longer changes it.
    saveBrowsers(settings, {expected[0], {"Mine", "/opt/mine"}});
    EXPECT_EQ(loadBrowsers(settings, places),
              (std::vector<BrowserEntry>{expected[0], {"Mine", "/opt/mine"}}));
    setSelectedBrowser(settings, 1);
    EXPECT_EQ(selectedBrowser(settings, 2), 1);
    EXPECT_EQ(selectedBrowser(settings, 1), 0);
}
