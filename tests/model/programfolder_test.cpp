#include "programfolder.h"
#include "tempfolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <tuple>

namespace fs = std::filesystem;
using namespace orvelin;

namespace {

// Sets or removes an environment variable for one scope.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, const std::optional<std::string>& value) : m_name(name) {
        if (const char* old = std::getenv(name))
            m_old = old;
        set(value);
    }
    ~ScopedEnvironment() { set(m_old); }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    void set(const std::optional<std::string>& value) {
        value ? setenv(m_name, value->c_str(), 1) : unsetenv(m_name);
    }
    const char* m_name;
    std::optional<std::string> m_old;
};

} // namespace

TEST(ProgramFolderPaths, JoinAcceptsBothSeparatorsAndFolderOfKeepsTheLastOne) {
    const std::tuple<const char*, const char*, const char*> joins[] = {
        {"/opt/orvelin/", "Orvel.ini", "/opt/orvelin/Orvel.ini"},
        {"C:\\Orvelin\\", "Orvel.ini", "C:\\Orvelin\\Orvel.ini"},
        {"/opt/orvelin", "\\AppletTemp\\Temp.htm", "/opt/orvelin/AppletTemp/Temp.htm"}};
    for (const auto& [folder, name, joined] : joins)
        EXPECT_EQ(joinPath(folder, name), joined);
    EXPECT_EQ(folderOf("/home/ann\\mixed/x\\nav.orv"), "/home/ann\\mixed/x\\");
    EXPECT_EQ(folderOf("nav.orv") + folderOf(""), "");
}

TEST(ProgramFolder, TheChosenFolderWinsOverTheEnvironmentWhichWinsOverTheExecutablesFolder) {
    const orvelin::testing::TempFolder folder;
    ScopedEnvironment env("ORVELIN_PROGRAM_DIR", "/from/environment");
    EXPECT_EQ(findProgramFolder(), "/from/environment");
    EXPECT_EQ(findProgramFolder(folder.dir().string()), folder.dir().string());
    EXPECT_EQ(writableProgramFolder(folder.dir().string()), folder.dir().string());
    // Test programs are built into bin/, where the build copies the data files.
    for (const std::optional<std::string>& value : {std::optional<std::string>(), {""}}) {
        ScopedEnvironment unset("ORVELIN_PROGRAM_DIR", value);
        ASSERT_TRUE(fs::exists(fs::path(ORVELIN_BIN_DIR) / "Orvel.ini"));
        EXPECT_TRUE(fs::equivalent(findProgramFolder(), ORVELIN_BIN_DIR)) << findProgramFolder();
    }
}

TEST(ProgramFolder, AMissingProgramFolderWritesIntoTheUserDataFolder) {
    const orvelin::testing::TempFolder folder;
    const std::string missing = folder.path("not-there");
    {
        ScopedEnvironment data("XDG_DATA_HOME", folder.path("data"));
        EXPECT_EQ(writableProgramFolder(missing), folder.path("data/Orvelin"));
        EXPECT_TRUE(fs::is_directory(folder.path("data/Orvelin")));
    }
    ScopedEnvironment data("XDG_DATA_HOME", std::nullopt);
    ScopedEnvironment home("HOME", folder.path("home"));
    EXPECT_EQ(writableProgramFolder(missing), folder.path("home/.local/share/Orvelin"));
    EXPECT_FALSE(fs::exists(missing));
}
