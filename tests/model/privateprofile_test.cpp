#include "privateprofile.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>

using namespace orvelin;
namespace fs = std::filesystem;

namespace {

// The shape of Orvel.ini: a script block between markers beside the Global section.
const std::string kProgramIni = "[JSCALLER]\r\n"
                                "function go(a) { x = a; }\r\n"
                                "[END OF JSCALLER]\r\n"
                                "\r\n"
                                "[Global]\r\n"
                                "chkNoBackGround = 0\r\n"
                                "Other=1\r\n"
                                "\r\n"
                                "[Tail]\r\n"
                                "z=9\r\n";

std::string readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

} // namespace

TEST(PrivateProfile, NamesIgnoreCaseAndValuesLoseTheirBlanks) {
    const PrivateProfile p = PrivateProfile::fromText("[GLOBAL]\n  chkNoBackGround  =  1 \t\n");
    EXPECT_EQ(p.value("global", "CHKNOBACKGROUND", "x"), "1");
    EXPECT_EQ(p.value(" Global ", "chkNoBackGround", "x"), "1");
    EXPECT_TRUE(p.contains("Global", "chknobackground"));
}

TEST(PrivateProfile, FirstOccurrenceWinsAndMissingKeysGiveTheDefault) {
    const PrivateProfile p = PrivateProfile::fromText("stray=0\r\n[A]\r\nk=first\r\nK=second\r\n"
                                                      "; k=comment\r\nnovalue\r\n[B]\r\nk=b\r\n"
                                                      "[a]\r\nk=third\r\nlate=yes\r\n");
    EXPECT_EQ(p.value("A", "k", "d"), "first");
    EXPECT_EQ(p.value("B", "k", "d"), "b");
    EXPECT_EQ(p.value("A", "late", "d"), "yes");
    EXPECT_EQ(p.value("A", "missing", "d"), "d");
    EXPECT_EQ(p.value("A", "novalue", "d"), "d");
    EXPECT_EQ(p.value("C", "k", "d"), "d");
    EXPECT_EQ(p.value("", "stray", "d"), "d"); // keys before any section belong to none
    EXPECT_EQ(p.value("A", "k=x", "d"), "d");
}

TEST(PrivateProfile, EmptyValueIsAValue) {
    const PrivateProfile p = PrivateProfile::fromText("[S]\nk=\nm = a = b\n");
    EXPECT_EQ(p.value("S", "k", "d"), "");
    EXPECT_EQ(p.value("S", "m", "d"), "a = b");
}

TEST(PrivateProfile, RewritingAKeyChangesOnlyItsLine) {
    const std::string changed =
        PrivateProfile::withValue(kProgramIni, "global", "CHKNOBACKGROUND", "1");
    std::string expected = kProgramIni;
    expected.replace(expected.find("chkNoBackGround = 0"), 19, "chkNoBackGround=1");
    EXPECT_EQ(changed, expected);
}

TEST(PrivateProfile, NewKeyGoesAfterTheSectionsLastValue) {
    std::string expected = kProgramIni;
    expected.insert(expected.find("Other=1\r\n") + 9, "New=5\r\n");
    EXPECT_EQ(PrivateProfile::withValue(kProgramIni, "Global", "New", "5"), expected);

    EXPECT_EQ(PrivateProfile::withValue("[S]", "S", "k", "v"), "[S]\r\nk=v\r\n");
    EXPECT_EQ(PrivateProfile::withValue("[S]\nk=1\n[T]\n", "S", "j", "2"), "[S]\nk=1\nj=2\n[T]\n");
}

TEST(PrivateProfile, NewSectionIsAppended) {
    EXPECT_EQ(PrivateProfile::withValue(kProgramIni, "Fresh", "k", "v"),
              kProgramIni + "[Fresh]\r\nk=v\r\n");
    EXPECT_EQ(PrivateProfile::withValue("", "Global", "k", "v"), "[Global]\r\nk=v\r\n");
    EXPECT_EQ(PrivateProfile::withValue("a=1", "Global", "k", "v"), "a=1\r\n[Global]\r\nk=v\r\n");
    EXPECT_EQ(PrivateProfile::withValue("[x]\n", "Global", "k", "v"), "[x]\n[Global]\nk=v\n");
}

TEST(PrivateProfile, WrittenValueReadsBack) {
    const std::string text =
        PrivateProfile::withValue(kProgramIni, "Global", "chkNoBackGround", "1\r\ninjected=1");
    const PrivateProfile p = PrivateProfile::fromText(text);
    EXPECT_EQ(p.value("Global", "chkNoBackGround", "d"), "1");
    EXPECT_FALSE(p.contains("Global", "injected"));
}

TEST(PrivateProfile, WritesAFileSafely) {
    std::random_device entropy;
    const fs::path folder =
        fs::temp_directory_path() / ("orvelin-profile-" + std::to_string(entropy()));
    fs::create_directories(folder);
    const fs::path ini = folder / "Orvel.ini";

    // A missing file is created.
    ASSERT_TRUE(PrivateProfile::writeValue(ini.string(), "Global", "chkNoBackGround", "1"));
    EXPECT_EQ(readFile(ini), "[Global]\r\nchkNoBackGround=1\r\n");

    // Bytes in an old code page outside the changed line come through unchanged.
    const std::string old = kProgramIni + "label=Caf\xE9\r\n";
    std::ofstream(ini, std::ios::binary | std::ios::trunc) << old;
    ASSERT_TRUE(PrivateProfile::writeValue(ini.string(), "Global", "chkNoBackGround", "1"));
    EXPECT_EQ(readFile(ini), PrivateProfile::withValue(old, "Global", "chkNoBackGround", "1"));
    EXPECT_EQ(PrivateProfile::fromFile(ini.string()).value("Tail", "label", ""), "Café");

    // A read-only file stays as it is.
    const std::string before = readFile(ini);
    fs::permissions(ini, fs::perms::owner_read);
    TextFileError error;
    EXPECT_FALSE(PrivateProfile::writeValue(ini.string(), "Global", "x", "y", &error));
    EXPECT_EQ(readFile(ini), before);
    EXPECT_FALSE(error.description.empty());

    TextFileError missing;
    const PrivateProfile none = PrivateProfile::fromFile((folder / "none.ini").string(), &missing);
    EXPECT_EQ(none.value("Global", "chkNoBackGround", "0"), "0");
    EXPECT_EQ(missing.description, "File not found");

    fs::permissions(ini, fs::perms::owner_all);
    fs::remove_all(folder);
}
