#include "texthelpers.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using namespace orvelin;

TEST(ReplaceAll, RepeatsPassesAsTheDesignerDoes) {
    // Text, search, replacement, result. A match formed behind the scan or pushed past the
    // pass's end waits for the next pass; equal lengths make one pass; a replacement that
    // holds the search gets one pass over the first length.
    const char* const cases[][4] = {{"abb", "ab", "a", "a"},
                                    {"xabbbyabb", "ab", "a", "xaya"},
                                    {"aaaa", "aa", "", ""},
                                    {"aab", "ab", "bbc", "bbcbc"},
                                    {"abab", "ab", "bbbb", "bbbbbbbb"},
                                    {"a b  c ", " ", "&nbsp", "a&nbspb&nbsp&nbspc&nbsp"},
                                    {"aaa", "aa", "b", "ba"},
                                    {"abc", "", "x", "abc"},
                                    {"xaby", "ab", "aab", "xaaaaby"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c[0]) + " " + c[1] + " -> " + c[2]);
        EXPECT_EQ(ReplaceAll(c[0], c[1], c[2]), c[3]);
    }
}

TEST(LabelEncoding, BarBecomesCapitalIAndOnlySemicolonIsDecodedButNeverEncoded) {
    EXPECT_EQ(EncodeLabel("a|b c"), "aIb&nbspc");
    EXPECT_EQ(DecodeLabel("aIb&nbspc"), "aIb c");
    EXPECT_EQ(EncodeLabel("say \"hi\""), "say&nbsp&y02hi&y02");
    EXPECT_EQ(DecodeLabel("say&nbsp&y02hi&y02"), "say \"hi\"");
    EXPECT_EQ(DecodeLabel("x&y01y"), "x;y");
    EXPECT_EQ(DecodeLabel("&amp;&y03&nbs&"), "&amp;&y03&nbs&");
    EXPECT_EQ(DecodeLabel("&&nbspnbsp"), "& nbsp");
    EXPECT_EQ(EncodeLabel(std::string(100, ' ')).size(), 500u);
    std::string appended = "head|";
    appendEncodedLabel(appended, "a b");
    appendDecodedLabel(appended, "&y02");
    EXPECT_EQ(appended, "head|a&nbspb\"");
}

TEST(TextHelpers, IdentifiersTokensCountsAndNames) {
    EXPECT_EQ(MakeIdentifier("3 d-menu.x"), "_3_d_menu_x");
    EXPECT_EQ(MakeIdentifier(" '\"/\\|.;?`@~&!#$%^*()+-=:{}[]"), std::string(29, '_'));
    EXPECT_EQ(MakeIdentifier("a,b<c>"), "a,b<c>");
    // Made for "\r\n": a one-character separator cuts the last character of earlier fields.
    const auto tokens = [](std::string_view text, std::string_view separator, int count) {
        std::vector<std::string> out;
        for (int n = 0; n < count; ++n)
            out.push_back(GetToken(text, separator, n));
        return out;
    };
    using Texts = std::vector<std::string>;
    EXPECT_EQ(tokens("one\r\ntwo", "\r\n", 4), (Texts{"", "one", "two", ""}));
    EXPECT_EQ(tokens("a\r\n\r\nb", "\r\n", 4), (Texts{"", "a", "", "b"}));
    EXPECT_EQ(tokens("a\r\n", "\r\n", 3), (Texts{"", "a", ""}));
    EXPECT_EQ(tokens("abc,de,fg", ",", 4), (Texts{"", "ab", "d", "fg"}));
    EXPECT_EQ(tokens(",x", ",", 2), (Texts{"", ""}));
    EXPECT_EQ(CountOccurrences("aaa", "aa"), 2);
    EXPECT_EQ(CountOccurrences("abc", "abcd") + CountOccurrences("", "a"), 0);
    EXPECT_EQ(CountOccurrences(std::string(40000, 'a'), "a"), 32767);
    for (const char* path : {"C:\\img\\a.gif", "/home/u/img/a.gif", "dir\\sub/a.gif", "a.gif"})
        EXPECT_EQ(bareFileName(path), "a.gif") << path;
    EXPECT_EQ(bareFileName("dir/"), "");
    EXPECT_EQ(toUpperAscii("abZ1-\xc3\xa9"), "ABZ1-\xc3\xa9");
    EXPECT_EQ(toLowerAscii("ABz1-\xc3\x89"), "abz1-\xc3\x89");
}

TEST(ParseWholeNumber, ReadsTypedNumbersRoundingHalvesToEven) {
    const std::pair<std::string, std::int64_t> values[] = {
        {" \t42 ", 42}, {"+7", 7},          {"-7", -7},         {"5.", 5},
        {".6", 1},      {"1e3", 1000},      {"25E-1", 2},       {"000000000000000000000000012", 12},
        {"2.5", 2},     {"3.5", 4},         {"2.5000001", 3},   {"-2.5", -2},
        {"-3.5", -4},   {"0.5", 0},         {"0.51", 1},        {"0.05", 0},
        {"1.49999", 1}, {"-32768", -32768}, {"32767.4", 32767}, {"1e-999999999999999999999", 0}};
    for (const auto& [text, value] : values) {
        const WholeNumber n = parseWholeNumber(text, -32768, 32767);
        EXPECT_EQ(n.error, NumberError::None) << text;
        EXPECT_EQ(n.value, value) << text;
    }
    for (const std::string& text :
         {std::string("32768"), std::string("-32769"), std::string("32767.5"),
          std::string(5000, '9'), std::string("1e999999999999999999999")})
        EXPECT_EQ(parseWholeNumber(text, -32768, 32767).error, NumberError::Overflow) << text;
    for (const char* text : {"", "   ", "abc", "12a", "1 2", "-", ".", "1e", "1e+", "0x10", "+-1",
                             "+", "inf", "nan", "1,5"})
        EXPECT_EQ(parseWholeNumber(text, -100, 100).error, NumberError::TypeMismatch) << text;
    EXPECT_EQ(parseWholeNumber("0", 5, 10).error, NumberError::None) << "zero fits any range";
    EXPECT_EQ(parseWholeNumber("-5", 0, 10).error, NumberError::Overflow);
    EXPECT_EQ(parseWholeNumber("-9223372036854775808", INT64_MIN, INT64_MAX).value, INT64_MIN);
    EXPECT_EQ(parseWholeNumber("9223372036854775808", INT64_MIN, INT64_MAX).error,
              NumberError::Overflow);
}

TEST(NumberFallbacks, CIntGivesZeroAndPositiveGivesFiveForWhatIsNoNumber) {
    const std::pair<const char*, int> ints[] = {
        {"2.5", 2},   {"3.5", 4}, {" 12 ", 12}, {"-32768", -32768},
        {"40000", 0}, {"abc", 0}, {"", 0}};
    for (const auto& [text, value] : ints)
        EXPECT_EQ(MakeCInt(text), value) << text;
    const std::pair<const char*, const char*> positives[] = {
        {"-250", "250"}, {"2.50", "2.5"}, {" -0.125 ", "0.125"}, {"+3", "3"}, {"-0", "0"},
        {"1e3", "1000"}, {"0.1", "0.1"},  {"-1e-400", "0"},      {"", "5"},   {"abc", "5"},
        {"1e999", "5"},  {"2e308", "5"},  {"inf", "5"}};
    for (const auto& [text, shortest] : positives)
        EXPECT_EQ(MakePositive(text), shortest) << text;
}

TEST(Colours, HexTextAndWebColoursSplitTheValueByItsTextsLength) {
    using Texts = std::vector<std::string>;
    EXPECT_EQ((Texts{hexText(0), hexText(256), hexText(0xABCDEF), hexText(-1), hexText(INT32_MIN)}),
              (Texts{"0", "100", "ABCDEF", "FFFFFFFF", "80000000"}));
    EXPECT_EQ((Texts{colorToWeb(65280), colorToWeb(16777215), colorToWeb(5), colorToWeb(256),
                     colorToWeb(1048575), colorToWeb(-1), colorToWeb(0x34), colorToWeb(0x1234),
                     colorToWeb(0x123456)}),
              (Texts{"00FF00", "FFFFFF", "000000", "", "", "", "340000", "341200", "563412"}));
}
