#include "privateprofile.h"
#include "tempfolder.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>
#include <tuple>

using namespace orvelin;
namespace fs = std::filesystem;

namespace {

// The shape of Orvel.ini: a script block between markers beside the Global section.
const std::string kProgramIni = "[JSCALLER]\r\nfunction go(a) { x = a; }\r\n[END OF JSCALLER]\r\n"
                                "\r\n[Global]\r\nchkNoBackGround = 0\r\nOther=1\r\n\r\n"
                                "[Tail]\r\nz=9\r\n";

} // namespace

TEST(PrivateProfile, NamesIgnoreCaseBlanksAreTrimmedAndTheFirstOccurrenceWins) {
    const PrivateProfile p = PrivateProfile::fromText(
        "stray=0\r\n[A]\r\n  k  =  first \t\r\nK=second\r\n; j=comment\r\nnovalue\r\n"
        "empty=\r\nm = a = b\r\n[B]\r\nk=b\r\n[a]\r\nk=third\r\nlate=yes\r\n");
    const std::pair<const char*, const char*> keys[] = {
        {"k", "first"}, {"K", "first"}, {"late", "yes"}, {"missing", "d"}, {"novalue", "d"},
        {"j", "d"},     {"; j", "d"},   {"empty", ""},   {"m", "a = b"},   {"k=x", "d"}};
    for (const auto& [key, value] : keys)
        EXPECT_EQ(p.value(" a ", key, "d"), value) << key;
    EXPECT_EQ(p.value("B", "k", "d"), "b");
    EXPECT_EQ(p.value("C", "k", "d"), "d");
    EXPECT_EQ(p.value("", "stray", "d"), "d") << "keys before any section belong to none";
    EXPECT_TRUE(p.contains("A", "EMPTY"));
    EXPECT_FALSE(p.contains("A", "novalue"));
}

TEST(PrivateProfile, WritingAValueChangesOnlyItsLineOrAddsWhereItBelongs) {
    std::string rewritten = kProgramIni;
    rewritten.replace(rewritten.find("chkNoBackGround = 0"), 19, "chkNoBackGround=1");
    EXPECT_EQ(PrivateProfile::withValue(kProgramIni, "global", "CHKNOBACKGROUND", "1"), rewritten);
    std::string added = kProgramIni;
    added.insert(added.find("Other=1\r\n") + 9, "New=5\r\n");
    EXPECT_EQ(PrivateProfile::withValue(kProgramIni, "Global", "New", "5"), added);
    EXPECT_EQ(PrivateProfile::withValue(kProgramIni, "Fresh", "k", "v"),
              kProgramIni + "[Fresh]\r\nk=v\r\n");
    const std::tuple<const char*, const char*, const char*> texts[] = {
        {"[S]", "S", "[S]\r\nk=v\r\n"},
        {"[S]\nj=1\n[T]\n", "S", "[S]\nj=1\nk=v\n[T]\n"},
        {"", "Global", "[Global]\r\nk=v\r\n"},
        {"a=1", "Global", "a=1\r\n[Global]\r\nk=v\r\n"},
        {"[x]\n", "Global", "[x]\n[Global]\nk=v\n"}};
    for (const auto& [text, section, expected] : texts)
        EXPECT_EQ(PrivateProfile::withValue(text, section, "k", "v"), expected) << text;
    // A line break in the value cannot smuggle in another key.
    const PrivateProfile p = PrivateProfile::fromText(
        PrivateProfile::withValue(kProgramIni, "Global", "chkNoBackGround", "1\r\ninjected=1"));
    EXPECT_EQ(p.value("Global", "chkNoBackGround", "d"), "1");
    EXPECT_FALSE(p.contains("Global", "injected"));
}

TEST(PrivateProfile, WritingOneKeyLeavesEveryOtherValueAsItWasRead) {
    // Random texts of sections, values, blanks and every line end, a lone CR included.
    const char* pieces[] = {"[Global]", "[other]", "k=1", "j = two ", "K=3", "; c=4", "v=",
                            "x",        "\r\n",    "\n",  "\r",       " ",   "\r\n",  "\n"};
    const char* keys[] = {"k", "j", "v", "c", "new"};
    std::mt19937 random(8);
    for (int round = 0; round < 2000; ++round) {
        std::string text;
        for (int n = static_cast<int>(random() % 13); n > 0; --n)
            text += pieces[random() % std::size(pieces)];
        const std::string key = keys[random() % std::size(keys)];
        const PrivateProfile before = PrivateProfile::fromText(text);
        const PrivateProfile after =
            PrivateProfile::fromText(PrivateProfile::withValue(text, "Global", key, "w"));
        for (const char* section : {"Global", "Other"})
            for (const char* other : keys)
                ASSERT_EQ(after.value(section, other, "-"),
                          section == std::string("Global") && other == key
                              ? "w"
                              : before.value(section, other, "-"))
                    << section << "/" << other << " after writing " << key << " into " << text;
    }
}

TEST(PrivateProfile, WritesAFileSafely) {
    orvelin::testing::TempFolder folder;
    const std::string ini = folder.path("Orvel.ini");
    ASSERT_TRUE(PrivateProfile::writeValue(ini, "Global", "chkNoBackGround", "1"));
    EXPECT_EQ(folder.read("Orvel.ini"), "[Global]\r\nchkNoBackGround=1\r\n");

    // Bytes in an old code page outside the changed line come through unchanged.
    folder.write("Orvel.ini", kProgramIni + "label=Caf\xE9\r\n");
    ASSERT_TRUE(PrivateProfile::writeValue(ini, "Global", "chkNoBackGround", "1"));
    const std::string written = folder.read("Orvel.ini");
    EXPECT_TRUE(written.ends_with("\r\nlabel=Caf\xE9\r\n"));
    EXPECT_EQ(PrivateProfile::fromFile(ini).value("Tail", "label", ""), "Café");

    fs::permissions(ini, fs::perms::owner_read);
    TextFileError error;
    EXPECT_FALSE(PrivateProfile::writeValue(ini, "Global", "x", "y", &error));
    EXPECT_EQ(folder.read("Orvel.ini"), written) << "a read-only file stays as it is";
    EXPECT_FALSE(error.description.empty());
    const PrivateProfile none = PrivateProfile::fromFile(folder.path("none.ini"), &error);
    EXPECT_EQ(none.value("Global", "chkNoBackGround", "0"), "0");
    EXPECT_EQ(error.description, "File not found");
}
