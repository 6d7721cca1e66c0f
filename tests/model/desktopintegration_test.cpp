#include "desktopintegration.h"
#include "settings.h"
#include "tempfolder.h"
#include "testdoubles.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace orvelin;
using orvelin::testing::MemorySettingsBackend;
using namespace orvelin::testing;

namespace {

/// Records every tool run as one line; a tool named in `missing` is not installed,
/// one in `failing` ends with status 3.
struct RecordingTools : DesktopTools {
    std::vector<std::string> calls;
    std::vector<std::string> missing, failing;
    std::string defaultApp = "other.desktop\n";

    Result run(const std::string& program, const std::vector<std::string>& args) override {
        std::string line = program;
        for (const std::string& a : args)
            line += " " + a;
        calls.push_back(line);
        if (std::find(missing.begin(), missing.end(), program) != missing.end())
            return {};
        if (std::find(failing.begin(), failing.end(), program) != failing.end())
            return {true, 3, "", "no space left\nmore\n"};
        return {true, 0,
                line == "xdg-mime query default application/x-orvelin-project" ? defaultApp : "",
                ""};
    }
};

struct DesktopIntegrationTest : ::testing::Test {
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingTools tools;
    TempFolder folder;
    DesktopPlaces places;

    void SetUp() override {
        places = {(folder.dir() / "data").string(), "/opt/my build/orvelin",
                  (folder.dir() / "program").string()};
        std::filesystem::create_directories(folder.dir() / "program/desktop");
        for (const char* name : {"orvelin.xml", "application-x-orvelin-project.svg"})
            WriteBytes(folder.dir() / "program/desktop" / name, std::string("<") + name + ">");
        WriteBytes(
            folder.dir() / "program/desktop" / kDesktopId,
            "[Desktop Entry]\nName=Orvelin\nExec=orvelin %f\nTryExec=orvelin\nIcon=orvelin\n");
    }
};

} // namespace

TEST_F(DesktopIntegrationTest, SettingsAndTheDesktopDecideWhichPromptsStartUpShows) {
    struct Case {
        bool fromBuild;
        std::optional<bool> associated;
        const char* shortCut;
        const char* dontAsk;
        bool offerShortCut, askAssociate;
    } cases[] = {
        {true, false, "none", "0", true, true},
        {false, false, "none", "0", false, true},
        {true, true, "Created", "0", false, false},
        {true, false, "Canceled", "1", false, false},
        {false, std::nullopt, "none", "0", false, false}, // xdg-mime cannot tell: nobody asked
    };
    for (const Case& c : cases) {
        settings.setValue(SettingKey::ShortCut, c.shortCut);
        settings.setValue(SettingKey::DontAskToAssociate, c.dontAsk);
        const StartupOffers offers = decideStartupOffers(settings, c.fromBuild, c.associated);
        EXPECT_EQ(offers.shortCut, c.offerShortCut) << c.shortCut << " " << c.fromBuild;
        EXPECT_EQ(offers.associate, c.askAssociate) << c.dontAsk;
    }
}

TEST_F(DesktopIntegrationTest, AssociatedOnlyWhenXdgMimeNamesOrvelinsEntry) {
    EXPECT_EQ(isAssociated(tools), false);
    tools.defaultApp = std::string(kDesktopId) + "\n";
    EXPECT_EQ(isAssociated(tools), true);
    tools.missing = {"xdg-mime"};
    EXPECT_EQ(isAssociated(tools), std::nullopt);
}

TEST_F(DesktopIntegrationTest, RegisteringWritesTheUsersFilesThenRunsTheToolsInOrder) {
    ASSERT_EQ(registerFileType(tools, places), "");
    const std::string data = places.dataHome;
    EXPECT_EQ(tools.calls.back(),
              "xdg-mime default org.orvelin.Orvelin.desktop application/x-orvelin-project");
    EXPECT_EQ(ReadBytes(data + "/mime/packages/orvelin.xml"), "<orvelin.xml>");
    // The entry starts this copy, quoted for the blank in its path, with its icon.
    EXPECT_EQ(ReadBytes(data + "/applications/" + kDesktopId),
              "[Desktop Entry]\nName=Orvelin\nExec=\"/opt/my build/orvelin\" %f\n"
              "TryExec=/opt/my build/orvelin\nIcon=" +
                  places.programFolder + "/desktop/orvelin.svg\n");
}

TEST_F(DesktopIntegrationTest, AFailureNamesTheToolAndWhatToInstallAndStopsThere) {
    tools.missing = {"update-mime-database"};
    EXPECT_EQ(registerFileType(tools, places),
              "update-mime-database is not installed (install the package shared-mime-info)");
    EXPECT_EQ(tools.calls.size(), 2u); // xdg-mime default never ran
    tools.missing.clear();
    tools.failing = {"update-desktop-database"};
    EXPECT_EQ(addToApplicationsMenu(tools, places),
              "update-desktop-database failed (exit status 3): no space left");
    std::filesystem::remove(folder.dir() / "program/desktop/orvelin.xml");
    tools.failing.clear();
    EXPECT_EQ(registerFileType(tools, places),
              places.programFolder + "/desktop/orvelin.xml is missing from the program folder");
}
