#include "textfile.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <vector>

using namespace orvelin;
namespace fs = std::filesystem;

namespace {

class TextFileTest : public ::testing::Test {
protected:
    void SetUp() override {
        std::random_device entropy;
        folder = fs::temp_directory_path() / ("orvelin-textfile-" + std::to_string(entropy()));
        fs::create_directories(folder);
    }
    void TearDown() override {
        std::error_code ec;
        for (const auto& entry : fs::recursive_directory_iterator(folder, ec))
            fs::permissions(entry.path(), fs::perms::owner_all, fs::perm_options::add, ec);
        fs::permissions(folder, fs::perms::owner_all, ec);
        fs::remove_all(folder, ec);
    }
    std::string file(const std::string& name) const { return (folder / name).string(); }
    static std::string read(const std::string& path) {
        std::ifstream in(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
    }
    std::size_t entries() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
    }

    fs::path folder;
};

} // namespace

TEST(TextEncoding, ValidUtf8PassesUnchanged) {
    const std::string text = "plain, é, €, 𝄞";
    EXPECT_EQ(ToUtf8(text), text);
}

TEST(TextEncoding, AnythingElseIsReadAsWindows1252) {
    EXPECT_EQ(ToUtf8("Caf\xE9"), "Café");
    EXPECT_EQ(ToUtf8("\x80\x93\x94\x9F"), "€“”Ÿ");
    EXPECT_EQ(ToUtf8("\x81"), "\xC2\x81"); // undefined in the code page: kept as a control
    // Malformed UTF-8 is not UTF-8: overlong forms, surrogates, cut-off sequences.
    EXPECT_EQ(ToUtf8("\xC0\xAF"), "À¯");
    EXPECT_EQ(ToUtf8("\xED\xA0\x80"), "í\xC2\xA0€");
    EXPECT_EQ(ToUtf8("\xE2\x82"), "â‚");
    EXPECT_EQ(ToUtf8("é\xFF"), "Ã©ÿ");
}

TEST(TextLines, BreakAtCrLfAndLoneLf) {
    bool terminated = false;
    EXPECT_EQ(SplitLines("a\r\nb\nc\r\n", &terminated),
              (std::vector<std::string_view>{"a", "b", "c"}));
    EXPECT_TRUE(terminated);
    EXPECT_EQ(SplitLines("a\r\n\r\nb", &terminated), (std::vector<std::string_view>{"a", "", "b"}));
    EXPECT_FALSE(terminated);
    EXPECT_EQ(SplitLines("x\ry\r", &terminated), (std::vector<std::string_view>{"x\ry\r"}));
    EXPECT_TRUE(SplitLines("").empty());
}

TEST_F(TextFileTest, ReadingDropsAByteOrderMarkAndConvertsOldText) {
    std::ofstream(file("bom.txt"), std::ios::binary) << "\xEF\xBB\xBFline é";
    EXPECT_EQ(ReadTextFile(file("bom.txt")), "line é");
    std::ofstream(file("old.txt"), std::ios::binary) << "na\xEFve";
    EXPECT_EQ(ReadTextFile(file("old.txt")), "naïve");
}

TEST_F(TextFileTest, ReadingTakesTheWholeFileWhateverItsSizeClaims) {
    std::string big;
    for (int line = 0; big.size() < 100000; ++line)
        big += "line " + std::to_string(line) + " \xC3\xA9\r\n";
    std::ofstream(file("big.txt"), std::ios::binary) << big;
    EXPECT_EQ(ReadTextFile(file("big.txt")), big);
    // The kernel's status files call themselves empty and still hold text.
    const std::optional<std::string> status = ReadTextFile("/proc/self/status");
    ASSERT_TRUE(status);
    EXPECT_NE(status->find("Name:"), std::string::npos);
    std::ofstream(file("empty.txt"), std::ios::binary).flush();
    EXPECT_EQ(ReadTextFile(file("empty.txt")), "");
}

TEST_F(TextFileTest, ReadingSomethingThatIsNoFileFails) {
    TextFileError error;
    EXPECT_FALSE(ReadTextFile(file("missing.txt"), &error));
    EXPECT_EQ(error.description, "File not found");
    EXPECT_FALSE(ReadTextFile(folder.string(), &error));
    EXPECT_FALSE(error.description.empty());
    EXPECT_FALSE(ReadTextFile("", &error));
}

TEST_F(TextFileTest, WritingCreatesAndReplacesWithoutLeftovers) {
    ASSERT_TRUE(WriteFileAtomically(file("a.txt"), "first"));
    ASSERT_TRUE(WriteFileAtomically(file("a.txt"), std::string("se\0cond", 7)));
    EXPECT_EQ(read(file("a.txt")), std::string("se\0cond", 7));
    EXPECT_EQ(entries(), 1u);
}

TEST_F(TextFileTest, WritingThroughALinkReplacesItsTarget) {
    ASSERT_TRUE(WriteFileAtomically(file("real.txt"), "old"));
    fs::create_symlink(folder / "real.txt", folder / "link.txt");
    ASSERT_TRUE(WriteFileAtomically(file("link.txt"), "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.txt"));
    EXPECT_EQ(read(file("real.txt")), "new");
}

TEST_F(TextFileTest, UnwritablePlacesFailAndKeepTheOldFile) {
    ASSERT_TRUE(WriteFileAtomically(file("ro.txt"), "keep me"));
    fs::permissions(file("ro.txt"), fs::perms::owner_read | fs::perms::group_read);
    TextFileError error;
    EXPECT_FALSE(WriteFileAtomically(file("ro.txt"), "lost", &error));
    EXPECT_EQ(error.description, "Permission denied");
    EXPECT_EQ(read(file("ro.txt")), "keep me");

    EXPECT_FALSE(WriteFileAtomically(file("no/such/folder.txt"), "x", &error));
    EXPECT_EQ(error.description, "Path not found");

    fs::create_directory(folder / "sub");
    EXPECT_FALSE(WriteFileAtomically(file("sub"), "x", &error));
    EXPECT_TRUE(fs::is_directory(folder / "sub"));

    fs::permissions(folder / "sub", fs::perms::owner_read | fs::perms::owner_exec);
    EXPECT_FALSE(WriteFileAtomically(file("sub/new.txt"), "x", &error));
    EXPECT_FALSE(fs::exists(folder / "sub" / "new.txt"));
    EXPECT_EQ(entries(), 2u);
}
