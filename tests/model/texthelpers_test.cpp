#include "texthelpers.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

using namespace orvelin;

namespace {

/**
 * The repeated-pass replace written out step by step, positions counted from
 * 0: whole passes until one leaves the length unchanged; a pass looks at the
 * positions below the length the text had when it began and, after a
 * replacement, goes on one position further in the changed text. A
 * replacement holding the search text gets a single pass (it would never
 * end). Gives up (returns false) after `passCap` passes or once the text grows
 * past `lengthCap`, for rules that blow up.
 */
bool LiteralReplaceAll(std::string& s, const std::string& search, const std::string& replacement,
                       int passCap = 400, std::size_t lengthCap = 4000) {
    if (search.empty())
        return true;
    const bool endless = replacement.find(search) != std::string::npos;
    for (int pass = 0; pass < passCap; ++pass) {
        const std::size_t passEnd = s.size();
        for (std::size_t i = 0; i < passEnd; ++i) {
            if (i + search.size() <= s.size() && s.compare(i, search.size(), search) == 0)
                s = s.substr(0, i) + replacement + s.substr(i + search.size());
        }
        if (s.size() == passEnd || endless)
            return true;
        if (s.size() > lengthCap)
            return false;
    }
    return false;
}

std::string Literal(std::string s, const std::string& search, const std::string& replacement) {
    EXPECT_TRUE(LiteralReplaceAll(s, search, replacement));
    return s;
}

std::string RandomText(std::mt19937& rng, std::string_view alphabet, std::size_t maxLength,
                       std::size_t minLength = 0) {
    std::uniform_int_distribution<std::size_t> length(minLength, maxLength);
    std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
    std::string out(length(rng), ' ');
    for (char& c : out)
        c = alphabet[pick(rng)];
    return out;
}

} // namespace

TEST(ReplaceAll, RepeatsPassesUntilNothingShortens) {
    EXPECT_EQ(ReplaceAll("abb", "ab", "a"), "a");
    EXPECT_EQ(ReplaceAll("abbbbbbbbb", "ab", "a"), "a");
    EXPECT_EQ(ReplaceAll("xabbbyabb", "ab", "a"), "xaya");
    EXPECT_EQ(ReplaceAll("aaaa", "aa", ""), "");
    EXPECT_EQ(ReplaceAll("aaabbb", "ab", ""), "");
}

TEST(ReplaceAll, GrowingReplacementFindsMatchesFormedBehindItInTheNextPass) {
    // "aab": the match at 1 gives "abbc", with a new "ab" at 0 behind the scan.
    EXPECT_EQ(Literal("aab", "ab", "bbc"), "bbcbc");
    EXPECT_EQ(ReplaceAll("aab", "ab", "bbc"), "bbcbc");
    // The second "ab" is pushed beyond the first pass's end and found by the second pass.
    EXPECT_EQ(ReplaceAll("abab", "ab", "bbbb"), "bbbbbbbb");
}

TEST(ReplaceAll, EqualLengthReplacementMakesOnePass) {
    // "aab" -> "aba" after one pass; the "ab" the pass left behind it stays.
    EXPECT_EQ(ReplaceAll("aab", "ab", "ba"), "aba");
    EXPECT_EQ(ReplaceAll("a-b-c", "-", "+"), "a+b+c");
}

TEST(ReplaceAll, PlainCasesReplaceEveryOccurrence) {
    EXPECT_EQ(ReplaceAll("a b  c ", " ", "&nbsp"), "a&nbspb&nbsp&nbspc&nbsp");
    EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(ReplaceAll("x-999y", "-999", "  "), "x  y");
    EXPECT_EQ(ReplaceAll("", "a", "b"), "");
    EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(ReplaceAll("abc", "abcd", "x"), "abc");
}

TEST(ReplaceAll, ReplacementHoldingTheSearchGetsOnePass) {
    // The pass looks at positions below 2 only, each time at a fresh "a".
    EXPECT_EQ(ReplaceAll("aa", "a", "aa"), "aaaa");
    EXPECT_EQ(ReplaceAll("xaby", "ab", "aab"), "xaaaaby");
}

TEST(ReplaceAll, AgreesWithThePassByPassReplaceOnRandomTexts) {
    std::mt19937 rng(20240611);
    const std::vector<std::string_view> alphabets = {"ab", "ab&n", "abc", "a"};
    int compared = 0;
    for (int round = 0; round < 60000; ++round) {
        const std::string_view alphabet = alphabets[static_cast<std::size_t>(round) % 4];
        const std::string text = RandomText(rng, alphabet, 14);
        const std::string search = RandomText(rng, alphabet, 3, 1);
        const std::string replacement = RandomText(rng, alphabet, 5);
        std::string expected = text;
        if (!LiteralReplaceAll(expected, search, replacement))
            continue; // a rule that grows without end in reasonable time
        ASSERT_EQ(ReplaceAll(text, search, replacement), expected)
            << "text \"" << text << "\" search \"" << search << "\" replacement \"" << replacement
            << '"';
        ++compared;
    }
    EXPECT_GT(compared, 55000);
}

TEST(ReplaceAll, AgreesWithThePassByPassReplaceOnLongerTexts) {
    std::mt19937 rng(77);
    int compared = 0;
    for (int round = 0; round < 3000; ++round) {
        const std::string text = RandomText(rng, "aab", 120);
        const std::string search = RandomText(rng, "ab", 4, 1);
        const std::string replacement = RandomText(rng, "ab", 6);
        std::string expected = text;
        if (!LiteralReplaceAll(expected, search, replacement, 2000, 2000))
            continue;
        ASSERT_EQ(ReplaceAll(text, search, replacement), expected)
            << "text \"" << text << "\" search \"" << search << "\" replacement \"" << replacement
            << '"';
        ++compared;
    }
    EXPECT_GT(compared, 2500);
}

TEST(LabelEncoding, BarBecomesCapitalIAndBlanksAndQuotesAreEscaped) {
    EXPECT_EQ(EncodeLabel("a|b c"), "aIb&nbspc");
    EXPECT_EQ(DecodeLabel("aIb&nbspc"), "aIb c");
    EXPECT_EQ(EncodeLabel("say \"hi\""), "say&nbsp&y02hi&y02");
    EXPECT_EQ(DecodeLabel("say&nbsp&y02hi&y02"), "say \"hi\"");
}

TEST(LabelEncoding, SemicolonIsDecodedButNeverEncoded) {
    EXPECT_EQ(DecodeLabel("x&y01y"), "x;y");
    EXPECT_EQ(EncodeLabel("x;y"), "x;y");
}

TEST(LabelEncoding, DecodeLeavesOtherEscapesAndLoneAmpersandsAlone) {
    EXPECT_EQ(DecodeLabel("&amp;&y03&nbs&"), "&amp;&y03&nbs&");
    EXPECT_EQ(DecodeLabel("&&nbspnbsp"), "& nbsp");
    EXPECT_EQ(DecodeLabel("&y0&y01"), "&y0;");
}

TEST(LabelEncoding, MatchesTheThreeReplacesOnRandomTexts) {
    std::mt19937 rng(5);
    for (int round = 0; round < 20000; ++round) {
        const std::string text = RandomText(rng, "a |\"&nbspy012;", 24);
        std::string bars = text;
        for (char& c : bars)
            c = c == '|' ? 'I' : c;
        std::string encoded = bars;
        LiteralReplaceAll(encoded, " ", "&nbsp");
        LiteralReplaceAll(encoded, "\"", "&y02");
        ASSERT_EQ(EncodeLabel(text), encoded) << text;
        std::string decoded = text;
        LiteralReplaceAll(decoded, "&nbsp", " ");
        LiteralReplaceAll(decoded, "&y01", ";");
        LiteralReplaceAll(decoded, "&y02", "\"");
        ASSERT_EQ(DecodeLabel(text), decoded) << text;
        if (text.find_first_of("&|") == std::string::npos) {
            ASSERT_EQ(DecodeLabel(EncodeLabel(text)), text);
        }
    }
}

TEST(LabelEncoding, LongTextsMatchTheThreeReplacesWhetherBuiltAloneOrAppended) {
    // Long enough for the word-at-a-time scans, with escapes at every offset and
    // cut short at every length near the end.
    std::mt19937 rng(11);
    for (int round = 0; round < 3000; ++round) {
        const std::string text = RandomText(rng, "ab |\"&nbspy012;", 150);
        std::string bars = text;
        for (char& c : bars)
            c = c == '|' ? 'I' : c;
        std::string encoded = bars;
        LiteralReplaceAll(encoded, " ", "&nbsp");
        LiteralReplaceAll(encoded, "\"", "&y02");
        std::string decoded = text;
        LiteralReplaceAll(decoded, "&nbsp", " ");
        LiteralReplaceAll(decoded, "&y01", ";");
        LiteralReplaceAll(decoded, "&y02", "\"");
        ASSERT_EQ(EncodeLabel(text), encoded) << text;
        ASSERT_EQ(DecodeLabel(text), decoded) << text;

        // Appending keeps what the string held, with or without room to spare.
        std::string roomy = "head|";
        roomy.reserve(2000);
        AppendEncodedLabel(roomy, text);
        ASSERT_EQ(roomy, "head|" + encoded) << text;
        std::string tight = "head|";
        tight.shrink_to_fit();
        AppendDecodedLabel(tight, text);
        ASSERT_EQ(tight, "head|" + decoded) << text;
    }
}

TEST(LabelEncoding, TextsWithNothingToReplaceComeBackUnchanged) {
    const std::string plain(300, 'x');
    EXPECT_EQ(EncodeLabel(plain), plain);
    EXPECT_EQ(DecodeLabel(plain), plain);
    std::string out = "a";
    AppendDecodedLabel(out, "");
    AppendEncodedLabel(out, "");
    EXPECT_EQ(out, "a");
    EXPECT_EQ(EncodeLabel(std::string(100, ' ')).size(), 500u);
}

TEST(MakeIdentifier, PrefixesLeadingDigitAndReplacesPunctuation) {
    EXPECT_EQ(MakeIdentifier("3 d-menu.x"), "_3_d_menu_x");
    EXPECT_EQ(MakeIdentifier(" '\"/\\|.;?`@~&!#$%^*()+-=:{}[]"), std::string(29, '_'));
    EXPECT_EQ(MakeIdentifier("a,b<c>"), "a,b<c>");
    EXPECT_EQ(MakeIdentifier(""), "");
    EXPECT_EQ(MakeIdentifier("x9"), "x9");
}

TEST(GetToken, SplitsAtLineBreaks) {
    const std::string text = "one\r\ntwo";
    EXPECT_EQ(GetToken(text, "\r\n", 1), "one");
    EXPECT_EQ(GetToken(text, "\r\n", 2), "two");
    EXPECT_EQ(GetToken(text, "\r\n", 3), "");
    EXPECT_EQ(GetToken(text, "\r\n", 0), "");
    EXPECT_EQ(GetToken("", "\r\n", 1), "");
    EXPECT_EQ(GetToken("a\r\n\r\nb", "\r\n", 2), "");
    EXPECT_EQ(GetToken("a\r\n\r\nb", "\r\n", 3), "b");
    EXPECT_EQ(GetToken("a\r\n", "\r\n", 2), "");
}

TEST(GetToken, OneCharacterSeparatorCutsTheLastCharacterOfEarlierFields) {
    EXPECT_EQ(GetToken("abc,de,fg", ",", 1), "ab");
    EXPECT_EQ(GetToken("abc,de,fg", ",", 2), "d");
    EXPECT_EQ(GetToken("abc,de,fg", ",", 3), "fg");
    EXPECT_EQ(GetToken(",x", ",", 1), "");
}

TEST(CountOccurrences, CountsOverlappingOnes) {
    EXPECT_EQ(CountOccurrences("aaa", "aa"), 2);
    EXPECT_EQ(CountOccurrences("a\\nb\\nc", "\\n"), 2);
    EXPECT_EQ(CountOccurrences("", "a"), 0);
    EXPECT_EQ(CountOccurrences("abc", "abcd"), 0);
    EXPECT_EQ(CountOccurrences(std::string(40000, 'a'), "a"), 32767);
}

TEST(StartsWith, ComparesTheLeadingCharacters) {
    EXPECT_TRUE(StartsWith("http://x", "http://"));
    EXPECT_TRUE(StartsWith("abc", ""));
    EXPECT_FALSE(StartsWith("ab", "abc"));
    EXPECT_FALSE(StartsWith("Http", "http"));
}

TEST(ParseWholeNumber, AcceptsBlanksSignFractionAndExponent) {
    EXPECT_EQ(ParseWholeNumber(" 42 ", 0, 100).value, 42);
    EXPECT_EQ(ParseWholeNumber("+7", 0, 100).value, 7);
    EXPECT_EQ(ParseWholeNumber("-7", -100, 100).value, -7);
    EXPECT_EQ(ParseWholeNumber("5.", 0, 100).value, 5);
    EXPECT_EQ(ParseWholeNumber(".6", 0, 100).value, 1);
    EXPECT_EQ(ParseWholeNumber("1e3", 0, 10000).value, 1000);
    EXPECT_EQ(ParseWholeNumber("25E-1", 0, 100).value, 2);
    EXPECT_EQ(ParseWholeNumber("000000000000000000000000012", 0, 100).value, 12);
    EXPECT_EQ(ParseWholeNumber("-0", 0, 100).error, NumberError::None);
}

TEST(ParseWholeNumber, PlainDigitsReadAsTheSameNumberWithAFraction) {
    // "digits" and "digits.0" must agree: the second form is always read the long way.
    std::mt19937 rng(3);
    std::uniform_int_distribution<int> length(1, 21);
    std::uniform_int_distribution<int> digit(0, 9);
    std::uniform_int_distribution<int> sign(0, 2);
    const std::int64_t bounds[] = {0, 1, 5, 32767, -32768, 2147483647, INT64_MAX, INT64_MIN};
    std::uniform_int_distribution<std::size_t> bound(0, std::size(bounds) - 1);
    for (int round = 0; round < 20000; ++round) {
        std::string text = sign(rng) == 0 ? "-" : sign(rng) == 0 ? "+" : "";
        const int digits = length(rng);
        for (int k = 0; k < digits; ++k)
            text += static_cast<char>('0' + (k == 0 && round % 2 ? 0 : digit(rng)));
        std::int64_t min = bounds[bound(rng)];
        std::int64_t max = bounds[bound(rng)];
        if (min > max)
            std::swap(min, max);
        const WholeNumber direct = ParseWholeNumber(text, min, max);
        const WholeNumber general = ParseWholeNumber(text + ".0", min, max);
        ASSERT_EQ(direct.error, general.error) << text << " in " << min << ".." << max;
        ASSERT_EQ(direct.value, general.value) << text << " in " << min << ".." << max;
    }
    EXPECT_EQ(ParseWholeNumber("0", 5, 10).error, NumberError::None) << "zero fits any range";
    EXPECT_EQ(ParseWholeNumber("+", -100, 100).error, NumberError::TypeMismatch);
    EXPECT_EQ(ParseWholeNumber("999999999999999999", 0, INT64_MAX).value, 999999999999999999);
}

TEST(ParseWholeNumber, RoundsHalvesToEven) {
    EXPECT_EQ(ParseWholeNumber("2.5", -100, 100).value, 2);
    EXPECT_EQ(ParseWholeNumber("3.5", -100, 100).value, 4);
    EXPECT_EQ(ParseWholeNumber("2.5000001", -100, 100).value, 3);
    EXPECT_EQ(ParseWholeNumber("-2.5", -100, 100).value, -2);
    EXPECT_EQ(ParseWholeNumber("-3.5", -100, 100).value, -4);
    EXPECT_EQ(ParseWholeNumber("0.5", -100, 100).value, 0);
    EXPECT_EQ(ParseWholeNumber("0.51", -100, 100).value, 1);
    EXPECT_EQ(ParseWholeNumber("0.05", -100, 100).value, 0);
    EXPECT_EQ(ParseWholeNumber("1.49999", -100, 100).value, 1);
}

TEST(ParseWholeNumber, NonNumbersAreTypeMismatch) {
    for (const char* text : {"", "   ", "abc", "12a", "1 2", "-", ".", "1e", "1e+", "0x10", "+-1",
                             "inf", "nan", "1,5"})
        EXPECT_EQ(ParseWholeNumber(text, -100, 100).error, NumberError::TypeMismatch) << text;
    EXPECT_EQ(NumberErrorText(NumberError::TypeMismatch), "Type mismatch");
}

TEST(ParseWholeNumber, ValuesOutsideTheRangeOverflow) {
    EXPECT_EQ(ParseWholeNumber("32768", -32768, 32767).error, NumberError::Overflow);
    EXPECT_EQ(ParseWholeNumber("-32769", -32768, 32767).error, NumberError::Overflow);
    EXPECT_EQ(ParseWholeNumber("-32768", -32768, 32767).value, -32768);
    EXPECT_EQ(ParseWholeNumber("32767.4", -32768, 32767).value, 32767);
    EXPECT_EQ(ParseWholeNumber("32767.5", -32768, 32767).error, NumberError::Overflow);
    EXPECT_EQ(ParseWholeNumber(std::string(5000, '9'), -32768, 32767).error, NumberError::Overflow);
    EXPECT_EQ(ParseWholeNumber("1e999999999999999999999", 0, 10).error, NumberError::Overflow);
    EXPECT_EQ(ParseWholeNumber("1e-999999999999999999999", 0, 10).value, 0);
    EXPECT_EQ(ParseWholeNumber("-9223372036854775808", INT64_MIN, INT64_MAX).value, INT64_MIN);
    EXPECT_EQ(ParseWholeNumber("9223372036854775808", INT64_MIN, INT64_MAX).error,
              NumberError::Overflow);
    EXPECT_EQ(ParseWholeNumber("-5", 0, 10).error, NumberError::Overflow);
    EXPECT_EQ(NumberErrorText(NumberError::Overflow), "Overflow");
    EXPECT_EQ(NumberErrorText(NumberError::None), "");
}

TEST(MakeCInt, GivesZeroForWhatItCannotConvert) {
    EXPECT_EQ(MakeCInt("2.5"), 2);
    EXPECT_EQ(MakeCInt("3.5"), 4);
    EXPECT_EQ(MakeCInt(" 12 "), 12);
    EXPECT_EQ(MakeCInt("-32768"), -32768);
    EXPECT_EQ(MakeCInt("40000"), 0);
    EXPECT_EQ(MakeCInt("abc"), 0);
    EXPECT_EQ(MakeCInt(""), 0);
}

TEST(MakePositive, GivesTheShortestTextOfTheAbsoluteValue) {
    EXPECT_EQ(MakePositive("-250"), "250");
    EXPECT_EQ(MakePositive("2.50"), "2.5");
    EXPECT_EQ(MakePositive(" -0.125 "), "0.125");
    EXPECT_EQ(MakePositive("+3"), "3");
    EXPECT_EQ(MakePositive("-0"), "0");
    EXPECT_EQ(MakePositive("1e3"), "1000");
    EXPECT_EQ(MakePositive("0.1"), "0.1");
    EXPECT_EQ(MakePositive("-1e-400"), "0");
}

TEST(MakePositive, GivesFiveForWhatIsNoNumber) {
    EXPECT_EQ(MakePositive(""), "5");
    EXPECT_EQ(MakePositive("abc"), "5");
    EXPECT_EQ(MakePositive("1e999"), "5");
    EXPECT_EQ(MakePositive("2e308"), "5");
    EXPECT_EQ(MakePositive("inf"), "5");
}

TEST(HexText, WritesTheUnsignedValueWithoutLeadingZeros) {
    EXPECT_EQ(HexText(0), "0");
    EXPECT_EQ(HexText(255), "FF");
    EXPECT_EQ(HexText(256), "100");
    EXPECT_EQ(HexText(0xABCDEF), "ABCDEF");
    EXPECT_EQ(HexText(-1), "FFFFFFFF");
    EXPECT_EQ(HexText(INT32_MIN), "80000000");
}

TEST(ColorToHex, SplitsTheTextByItsLength) {
    EXPECT_EQ(ColorToHex("FF", "NORMAL"), "FF0000");
    EXPECT_EQ(ColorToHex("5", "NORMAL"), "000000");
    EXPECT_EQ(ColorToHex("", "normal"), "000000");
    EXPECT_EQ(ColorToHex("ABC", "NORMAL"), "");
    EXPECT_EQ(ColorToHex("12345", "NORMAL"), "");
    EXPECT_EQ(ColorToHex("1234567", "NORMAL"), "");
    EXPECT_EQ(ColorToHex("1234", "Normal"), "341200");
    EXPECT_EQ(ColorToHex("123456", "NORMAL"), "563412");
}

TEST(ColorToHex, ModeSelectsOneComponentWithoutRegardToCase) {
    EXPECT_EQ(ColorToHex("123456", "red"), "56");
    EXPECT_EQ(ColorToHex("123456", "Green"), "34");
    EXPECT_EQ(ColorToHex("123456", "BLUE"), "12");
    EXPECT_EQ(ColorToHex("1234", "blue"), "00");
    EXPECT_EQ(ColorToHex("ABC", "red"), "");
    EXPECT_EQ(ColorToHex("123456", "purple"), "");
}

TEST(ColorToWeb, GivesRedGreenBlueDigits) {
    EXPECT_EQ(ColorToWeb(0), "000000");
    EXPECT_EQ(ColorToWeb(255), "FF0000");
    EXPECT_EQ(ColorToWeb(65280), "00FF00");
    EXPECT_EQ(ColorToWeb(16711680), "0000FF");
    EXPECT_EQ(ColorToWeb(65535), "FFFF00");
    EXPECT_EQ(ColorToWeb(16777215), "FFFFFF");
    EXPECT_EQ(ColorToWeb(5), "000000");
    EXPECT_EQ(ColorToWeb(256), "");
    EXPECT_EQ(ColorToWeb(1048575), "");
    EXPECT_EQ(ColorToWeb(-1), "");
}

TEST(BareFileName, TakesWhatFollowsTheLastSeparator) {
    EXPECT_EQ(BareFileName("C:\\img\\a.gif"), "a.gif");
    EXPECT_EQ(BareFileName("/home/u/img/b.jpg"), "b.jpg");
    EXPECT_EQ(BareFileName("dir\\sub/c.au"), "c.au");
    EXPECT_EQ(BareFileName("plain.gif"), "plain.gif");
    EXPECT_EQ(BareFileName("dir/"), "");
}

TEST(AsciiCase, ChangesOnlyAsciiLetters) {
    EXPECT_EQ(ToUpperAscii("abZ1-\xc3\xa9"), "ABZ1-\xc3\xa9");
    EXPECT_EQ(ToLowerAscii("ABz1-\xc3\x89"), "abz1-\xc3\x89");
}

TEST(StringTokenizer, IsInert) {
    StringTokenizer tokenizer;
    tokenizer.init("a,b,c", ",", true);
    EXPECT_EQ(tokenizer.nextToken(), "");
    EXPECT_FALSE(tokenizer.hasMoreTokens());
    EXPECT_FALSE(tokenizer.hasMoreElements());
    EXPECT_EQ(tokenizer.countTokens(), 0);
}
