#include "programfolder.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace fs = std::filesystem;
using namespace orvelin;

namespace {

/// Sets or removes an environment variable for one test and restores it after.
class ScopedEnvironment {
public:
    ScopedEnvironment(const char* name, const std::optional<std::string>& value) : m_name(name) {
        if (const char* old = std::getenv(name))
            m_old = old;
        if (value)
            setenv(name, value->c_str(), 1);
        else
            unsetenv(name);
    }
    ~ScopedEnvironment() {
        if (m_old)
            setenv(m_name, m_old->c_str(), 1);
        else
            unsetenv(m_name);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;

private:
    const char* m_name;
    std::optional<std::string> m_old;
};

class ProgramFolderTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_dir = fs::temp_directory_path() /
                ("orvelin-folder-" +
                 std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        fs::remove_all(m_dir);
        fs::create_directories(m_dir);
    }
    void TearDown() override {
        SetProgramFolderOverride("");
        fs::remove_all(m_dir);
    }
    fs::path m_dir;
};

} // namespace

TEST(ProgramFolderPaths, JoinAcceptsBothSeparators) {
    EXPECT_EQ(JoinPath("/opt/orvelin", "Orvel.ini"), "/opt/orvelin/Orvel.ini");
    EXPECT_EQ(JoinPath("/opt/orvelin/", "Orvel.ini"), "/opt/orvelin/Orvel.ini");
    EXPECT_EQ(JoinPath("C:\\Orvelin\\", "Orvel.ini"), "C:\\Orvelin\\Orvel.ini");
    EXPECT_EQ(JoinPath("/opt/orvelin", "\\AppletTemp\\Temp.htm"),
              "/opt/orvelin/AppletTemp/Temp.htm");
    EXPECT_EQ(JoinPath("/opt/orvelin/", "/help/help.htm"), "/opt/orvelin/help/help.htm");
    EXPECT_EQ(JoinPath("", "images\\home.gif"), "images/home.gif");
    EXPECT_EQ(JoinPath("/srv", ""), "/srv");
}

TEST(ProgramFolderPaths, FolderOfKeepsTheLastSeparator) {
    EXPECT_EQ(FolderOf("C:\\Sites\\Top Menu.orv"), "C:\\Sites\\");
    EXPECT_EQ(FolderOf("/home/ann/web/nav.orv"), "/home/ann/web/");
    EXPECT_EQ(FolderOf("/home/ann\\mixed/x\\nav.orv"), "/home/ann\\mixed/x\\");
    EXPECT_EQ(FolderOf("nav.orv"), "");
    EXPECT_EQ(FolderOf(""), "");
}

TEST_F(ProgramFolderTest, OverrideWinsOverTheEnvironment) {
    ScopedEnvironment env("ORVELIN_PROGRAM_DIR", "/from/environment");
    EXPECT_EQ(ProgramFolder(), "/from/environment");
    SetProgramFolderOverride(m_dir.string());
    EXPECT_EQ(ProgramFolder(), m_dir.string());
    SetProgramFolderOverride("");
    EXPECT_EQ(ProgramFolder(), "/from/environment");
}

TEST_F(ProgramFolderTest, ExecutableFolderHoldingOrvelIniIsTheProgramFolder) {
    // Test programs are built into bin/, where the build copies the data files.
    ScopedEnvironment env("ORVELIN_PROGRAM_DIR", std::nullopt);
    ASSERT_TRUE(fs::exists(fs::path(ORVELIN_BIN_DIR) / "Orvel.ini"));
    EXPECT_TRUE(fs::equivalent(ProgramFolder(), ORVELIN_BIN_DIR)) << ProgramFolder();

    ScopedEnvironment empty("ORVELIN_PROGRAM_DIR", "");
    EXPECT_TRUE(fs::equivalent(ProgramFolder(), ORVELIN_BIN_DIR)) << ProgramFolder();
}

TEST_F(ProgramFolderTest, WritableProgramFolderIsUsedAsItIs) {
    SetProgramFolderOverride(m_dir.string());
    EXPECT_EQ(WritableProgramFolder(), m_dir.string());
}

TEST_F(ProgramFolderTest, MissingProgramFolderFallsBackToTheUserDataFolder) {
    SetProgramFolderOverride((m_dir / "not-there").string());
    {
        ScopedEnvironment data("XDG_DATA_HOME", (m_dir / "data").string());
        const std::string folder = WritableProgramFolder();
        EXPECT_EQ(folder, (m_dir / "data" / "Orvelin").string());
        EXPECT_TRUE(fs::is_directory(folder));
    }
    {
        ScopedEnvironment data("XDG_DATA_HOME", std::nullopt);
        ScopedEnvironment home("HOME", (m_dir / "home").string());
        EXPECT_EQ(WritableProgramFolder(), (m_dir / "home" / ".local/share/Orvelin").string());
    }
    EXPECT_FALSE(fs::exists(m_dir / "not-there"));
}
