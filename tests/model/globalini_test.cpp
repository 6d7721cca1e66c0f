#include "globalini.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

using namespace orvelin;
namespace fs = std::filesystem;

namespace {

const std::string kIni = "[JSCALLER]\r\n"
                         "function go(a) { x = a; }\r\n"
                         "[END OF JSCALLER]\r\n"
                         "\r\n"
                         "[global]\r\n"
                         "CHKNOBACKGROUND = 1\r\n"
                         "\r\n"
                         "[Tail]\r\n"
                         "z=9\r\n";

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

/// A program folder and a per-user folder of its own for every test.
class GlobalIniTest : public ::testing::Test {
protected:
    void SetUp() override {
        root = fs::temp_directory_path() /
               ("globalini-" +
                std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
        program = root / "program";
        user = root / "user";
        fs::remove_all(root);
        fs::create_directories(program);
        fs::create_directories(user);
    }
    void TearDown() override { fs::remove_all(root); }

    fs::path root;
    fs::path program;
    fs::path user;
};

} // namespace

TEST_F(GlobalIniTest, ReadsTheFlagByPrivateProfileRules) {
    writeFile(program / "Orvel.ini", kIni);
    const GlobalIni ini(program.string(), program.string());
    EXPECT_TRUE(ini.NoBackGround());
    EXPECT_EQ(ini.value("Missing", "dflt"), "dflt");

    const GlobalIni none((root / "nowhere").string(), (root / "nowhere").string());
    EXPECT_FALSE(none.NoBackGround());
}

TEST_F(GlobalIniTest, WritingInAWritableProgramFolderChangesOnlyThatLine) {
    writeFile(program / "Orvel.ini", kIni);
    GlobalIni ini(program.string(), program.string());
    ASSERT_TRUE(ini.SetNoBackGround(false));
    EXPECT_FALSE(ini.NoBackGround());
    std::string expected = kIni;
    expected.replace(expected.find("CHKNOBACKGROUND = 1"), 19, "CHKNOBACKGROUND=0");
    EXPECT_EQ(readFile(program / "Orvel.ini"), expected);
}

TEST_F(GlobalIniTest, AnUnwritableProgramFolderIsShadowedByThePerUserCopy) {
    writeFile(program / "Orvel.ini", kIni);
    GlobalIni ini(program.string(), user.string());
    EXPECT_TRUE(ini.NoBackGround()); // nothing in the copy yet
    ASSERT_TRUE(ini.SetNoBackGround(false));
    EXPECT_FALSE(ini.NoBackGround());
    EXPECT_EQ(readFile(program / "Orvel.ini"), kIni);
    EXPECT_EQ(readFile(user / "Orvel.ini"), "[Global]\r\nchkNoBackGround=0\r\n");
    ASSERT_TRUE(ini.SetNoBackGround(true));
    EXPECT_TRUE(GlobalIni(program.string(), user.string()).NoBackGround());
}

TEST_F(GlobalIniTest, AFailedWriteReportsAndKeepsTheOldValue) {
    writeFile(program / "Orvel.ini", kIni);
    writeFile(root / "blocker", "a file where a folder should be");
    GlobalIni ini(program.string(), (root / "blocker").string());
    TextFileError error;
    EXPECT_FALSE(ini.SetNoBackGround(false, &error));
    EXPECT_FALSE(error.description.empty());
    EXPECT_TRUE(ini.NoBackGround());
    EXPECT_EQ(readFile(program / "Orvel.ini"), kIni);
}
