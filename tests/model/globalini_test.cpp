#include "globalini.h"
#include "tempfolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

using namespace orvelin;
namespace fs = std::filesystem;

namespace {

const std::string kIni = "[JSCALLER]\r\nfunction go(a) { x = a; }\r\n[END OF JSCALLER]\r\n\r\n"
                         "[global]\r\nCHKNOBACKGROUND = 1\r\n\r\n[Tail]\r\nz=9\r\n";

// A program folder holding Orvel.ini and a per-user folder beside it.
class GlobalIniTest : public ::testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(program);
        fs::create_directories(user);
        orvelin::testing::WriteBytes(program / "Orvel.ini", kIni);
    }
    std::string read(const fs::path& folder) const {
        return orvelin::testing::ReadBytes(folder / "Orvel.ini");
    }

    orvelin::testing::TempFolder root;
    fs::path program = root.dir() / "program";
    fs::path user = root.dir() / "user";
};

} // namespace

TEST_F(GlobalIniTest, WritingInAWritableProgramFolderChangesOnlyThatLine) {
    GlobalIni ini(program.string(), program.string());
    EXPECT_TRUE(ini.noBackGround());
    EXPECT_EQ(ini.value("Missing", "dflt"), "dflt");
    EXPECT_FALSE(GlobalIni(root.path("nowhere"), root.path("nowhere")).noBackGround());
    ASSERT_TRUE(ini.setNoBackGround(false));
    EXPECT_FALSE(ini.noBackGround());
    std::string expected = kIni;
    expected.replace(expected.find("CHKNOBACKGROUND = 1"), 19, "CHKNOBACKGROUND=0");
    EXPECT_EQ(read(program), expected);
}

TEST_F(GlobalIniTest, AnUnwritableProgramFolderIsShadowedByThePerUserCopy) {
    GlobalIni ini(program.string(), user.string());
    EXPECT_TRUE(ini.noBackGround()) << "nothing in the copy yet";
    ASSERT_TRUE(ini.setNoBackGround(false));
    EXPECT_FALSE(ini.noBackGround());
    EXPECT_EQ(read(program), kIni);
    EXPECT_EQ(read(user), "[Global]\r\nchkNoBackGround=0\r\n");
    ASSERT_TRUE(ini.setNoBackGround(true));
    EXPECT_TRUE(GlobalIni(program.string(), user.string()).noBackGround());
}

TEST_F(GlobalIniTest, AFailedWriteReportsAndKeepsTheOldValue) {
    GlobalIni ini(program.string(), root.write("blocker", "a file where a folder should be"));
    TextFileError error;
    EXPECT_FALSE(ini.setNoBackGround(false, &error));
    EXPECT_FALSE(error.description.empty());
    EXPECT_TRUE(ini.noBackGround());
    EXPECT_EQ(read(program), kIni);
}
