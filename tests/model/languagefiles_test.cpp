#include "languagefiles.h"
#include "tempfolder.h"
#include "textcatalogue.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace orvelin {
namespace {

using testing::TempFolder;
using testing::WriteBytes;

std::vector<std::string> Lines(std::initializer_list<std::string> first, std::size_t more = 0,
                               const std::string& stem = "t") {
    std::vector<std::string> lines(first);
    for (std::size_t i = 1; i <= more; ++i)
        lines.push_back(stem + std::to_string(i));
    return lines;
}

// How many texts of `section` differ from English.
std::size_t Changed(const TextCatalogue& texts, TextSection section) {
    const SectionInfo& info = sectionInfo(section);
    std::size_t changed = 0;
    for (std::size_t p = 0; p < info.entries.size(); ++p)
        changed += texts.at(section, p) != englishText(info.entries[p]);
    return changed;
}

TEST(LanguageFiles, EveryTextHasOnePlaceAndTheFixedPartsTheirLength) {
    const std::pair<TextSection, std::size_t> fixed[] = {
        {TextSection::Main, 104},      {TextSection::Design, 16},   {TextSection::Html, 12},
        {TextSection::About, 8},       {TextSection::Advanced, 14}, {TextSection::BrowserSetup, 14},
        {TextSection::EditBrowser, 6}, {TextSection::SetAction, 22}};
    for (const auto& [section, lines] : fixed)
        EXPECT_EQ(sectionInfo(section).entries.size(), lines) << sectionInfo(section).header;

    std::set<std::string> seen;
    std::vector<int> messages(static_cast<std::size_t>(Msg::Count));
    for (const SectionInfo& info : textSections()) {
        EXPECT_EQ(&sectionInfo(info.section), &info);
        for (const TextEntry& entry : info.entries) {
            if (entry.isMessage())
                ++messages[static_cast<std::size_t>(entry.message)];
            else
                EXPECT_TRUE(seen.insert(entryLabel(entry)).second) << entryLabel(entry);
        }
    }
    for (std::size_t m = 0; m < messages.size(); ++m)
        EXPECT_EQ(messages[m], 1) << messageName(static_cast<Msg>(m));

    // The template is a complete language file that gives back every English text,
    // line breaks inside texts included.
    TempFolder folder;
    WriteBytes(folder.dir() / "tpl", languageTemplate());
    const auto lines = readLanguageLines((folder.dir() / "tpl").string());
    ASSERT_TRUE(lines);
    const LanguageReport report = checkLanguageFile(*lines);
    EXPECT_TRUE(report.problems.empty()) << report.problems.front();
    TextCatalogue texts;
    for (const SectionInfo& info : textSections())
        applySection(texts, info.section, *lines);
    for (const SectionInfo& info : textSections())
        EXPECT_EQ(Changed(texts, info.section), 0u) << info.header;
}

TEST(LanguageFiles, ASectionIsReadTheWayTheProgramAlwaysReadIt) {
    TextCatalogue texts;
    // Sixteen texts change, the four lines after them are read and ignored, and the
    // header itself is never a text.
    applySection(texts, TextSection::Design, Lines({"x", "[frmDesign]"}, 20));
    EXPECT_EQ(Changed(texts, TextSection::Design), 16u);
    EXPECT_EQ(texts.at(TextSection::Design, 0), "t1");
    EXPECT_EQ(texts.at(TextSection::Design, 15), "t16");
    EXPECT_EQ(Changed(texts, TextSection::Html), 0u);

    // A header that differs in case is not the header.
    TextCatalogue misspelt;
    applySection(misspelt, TextSection::Design, Lines({"[FrmDesign]"}, 20));
    EXPECT_EQ(Changed(misspelt, TextSection::Design), 0u);

    // A file that ends early leaves the rest as it was; a second header starts again.
    TextCatalogue shortFile;
    applySection(shortFile, TextSection::Design,
                 Lines({"[frmDesign]", "a", "b", "[frmDesign]"}, 3));
    EXPECT_EQ(Changed(shortFile, TextSection::Design), 3u);
    EXPECT_EQ(shortFile.at(TextSection::Design, 0), "t1");
    EXPECT_EQ(shortFile.at(TextSection::Design, 3),
              englishText(sectionInfo(TextSection::Design).entries[3]));

    // The main block is the file's first 104 lines, whatever they hold.
    TextCatalogue main;
    applyMainBlock(main, Lines({"[frmDesign]"}, 110));
    EXPECT_EQ(main.at(TextSection::Main, 0), "[frmDesign]");
    EXPECT_EQ(main.at(TextSection::Main, 103), "t103");
    EXPECT_EQ(Changed(main, TextSection::Design), 0u);
}

TEST(LanguageFiles, TheCheckNamesWhatTheProgramWouldReadWrongly) {
    std::vector<std::string> lines = Lines({}, 104, "m");
    lines.push_back("[FrmDesign]");
    lines.push_back("[frmHTML]");
    for (int i = 0; i < 3; ++i)
        lines.push_back("h");
    const LanguageReport report = checkLanguageFile(lines);
    const auto said = [&](const std::string& part) {
        return std::any_of(report.problems.begin(), report.problems.end(),
                           [&](const std::string& p) { return p.find(part) != std::string::npos; });
    };
    EXPECT_TRUE(said("line 105: \"[FrmDesign]\" is not recognised"));
    EXPECT_TRUE(said("section \"[frmHTML]\" has 3 of its 12 lines"));
    EXPECT_TRUE(said("section \"[frmAbout]\" is missing"));
    EXPECT_FALSE(said("main block"));
    // Each position with its English text and the file's beside it.
    EXPECT_NE(report.listing.find("[frmHTML]\n  1\tfrmHTML frmHTML\tApplet Code\th\n"),
              std::string::npos)
        << report.listing;

    // A section too short before the next header swallows that header as a text.
    const LanguageReport swallowed =
        checkLanguageFile(Lines({"[frmEditBrowser]", "a", "b", "[frmSetAction]"}));
    EXPECT_TRUE(std::any_of(swallowed.problems.begin(), swallowed.problems.end(), [](auto& p) {
        return p.starts_with("line 4: the header \"[frmSetAction]\" is read as text 3");
    }));
}

} // namespace
} // namespace orvelin
