#include "tempfolder.h"
#include "textfile.h"

#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/file.h>
#include <unistd.h>

using namespace orvelin;
namespace fs = std::filesystem;

TEST(TextEncoding, ValidUtf8PassesAndAnythingElseIsReadAsWindows1252) {
    const std::pair<std::string, std::string> cases[] = {
        {"plain, é, €, 𝄞", "plain, é, €, 𝄞"},
        {"Caf\xE9", "Café"},
        {"\x80\x93\x94\x9F", "€“”Ÿ"},
        // Malformed UTF-8 is not UTF-8: overlong forms, surrogates, cut-off sequences.
        {"\xC0\xAF", "À¯"},
        {"\xED\xA0\x80", "í\xC2\xA0€"},
        {"é\xFF", "Ã©ÿ"}};
    for (const auto& [bytes, text] : cases)
        EXPECT_EQ(toUtf8(bytes), text) << text;
}

TEST(TextFile, ReadingTakesTheWholeFileDropsAByteOrderMarkAndConvertsOldText) {
    orvelin::testing::TempFolder folder;
    EXPECT_EQ(readTextFile(folder.write("bom.txt", "\xEF\xBB\xBFline é")), "line é");
    EXPECT_EQ(readTextFile(folder.write("old.txt", "na\xEFve")), "naïve");
    EXPECT_EQ(readTextFile(folder.write("empty.txt", "")), "");
    std::string big;
    for (int line = 0; big.size() < 100000; ++line)
        big += "line " + std::to_string(line) + " \xC3\xA9\r\n";
    EXPECT_EQ(readTextFile(folder.write("big.txt", big)), big);
    // The kernel's status files call themselves empty and still hold text.
    EXPECT_NE(readTextFile("/proc/self/status").value_or("").find("Name:"), std::string::npos);

    TextFileError error;
    EXPECT_FALSE(readTextFile(folder.path("missing.txt"), &error));
    EXPECT_EQ(error.description, "File not found");
    error.description.clear();
    EXPECT_FALSE(readTextFile(folder.dir().string(), &error));
    EXPECT_FALSE(error.description.empty());
    EXPECT_FALSE(readTextFile("", &error));
}

TEST(TextFile, WritingReplacesSafelyThroughLinksAndNeverInUnwritablePlaces) {
    orvelin::testing::TempFolder folder;
    ASSERT_TRUE(writeFileAtomically(folder.path("a.txt"), "first"));
    ASSERT_TRUE(writeFileAtomically(folder.path("a.txt"), std::string("se\0cond", 7)));
    EXPECT_EQ(folder.read("a.txt"), std::string("se\0cond", 7));
    EXPECT_EQ(folder.entries(), 1) << "no temporary file is left behind";

    fs::create_symlink(folder.dir() / "a.txt", folder.dir() / "link.txt");
    ASSERT_TRUE(writeFileAtomically(folder.path("link.txt"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder.dir() / "link.txt"));
    EXPECT_EQ(folder.read("a.txt"), "new");

    fs::permissions(folder.path("a.txt"), fs::perms::owner_read | fs::perms::group_read);
    TextFileError error;
    EXPECT_FALSE(writeFileAtomically(folder.path("a.txt"), "lost", &error));
    EXPECT_EQ(error.description, "Permission denied");
    EXPECT_EQ(folder.read("a.txt"), "new");
    EXPECT_FALSE(writeFileAtomically(folder.path("no/such/folder.txt"), "x", &error));
    EXPECT_EQ(error.description, "Path not found");
    fs::create_directory(folder.dir() / "sub");
    EXPECT_FALSE(writeFileAtomically(folder.path("sub"), "x", &error));
    EXPECT_TRUE(fs::is_directory(folder.dir() / "sub"));
    fs::permissions(folder.dir() / "sub", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(writeFileAtomically(folder.path("sub/new.txt"), "x", &error));
    EXPECT_FALSE(fs::exists(folder.dir() / "sub" / "new.txt"));
    EXPECT_EQ(folder.entries(), 3);
}

TEST(TextFile, ASaveRemovesOnlyTheUnheldTemporaryFilesOfItsOwnTarget) {
    orvelin::testing::TempFolder folder;
    const std::string stale = folder.write(".p.orv.orvelin-save-aB3xY9", "left by a killed save");
    const int held = ::open(folder.write(".p.orv.orvelin-save-Held00", "").c_str(), O_RDONLY);
    ASSERT_EQ(::flock(held, LOCK_EX), 0);
    for (const char* name : {".p.orv.orvelin-save-aB3xY", ".p.orv.orvelin-save-a-3xY9",
                             ".q.orv.orvelin-save-aB3xY9", "p.orv.orvelin-save-aB3xY9"})
        folder.write(name, "not ours");
    ASSERT_TRUE(writeFileAtomically(folder.path("p.orv"), "saved"));
    ::close(held);
    EXPECT_FALSE(fs::exists(stale));
    EXPECT_EQ(folder.entries(), 6) << "the held one, the four others and p.orv";
}
