#include "texthelpers.h"

#include "replacepasses.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

namespace orvelin {

namespace {

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view Trim(std::string_view text) {
    while (!text.empty() && IsBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && IsBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// A decimal number split into its parts, as typed: sign, digits, fraction, exponent.
struct DecimalText {
    bool negative = false;
    std::string_view whole;
    std::string_view fraction;
    std::int64_t exponent = 0;
};

/**
 * Reads [blanks][sign]digits[.digits][(e|E)[sign]digits][blanks]; at least one
 * digit before or after the point. The exponent saturates instead of
 * overflowing, so absurd texts such as "1e99999999999999999999" stay defined.
 */
std::optional<DecimalText> ScanDecimal(std::string_view text) {
    text = Trim(text);
    DecimalText out;
    std::size_t p = 0;
    if (p < text.size() && (text[p] == '+' || text[p] == '-')) {
        out.negative = text[p] == '-';
        ++p;
    }
    const std::size_t wholeStart = p;
    while (p < text.size() && IsDigit(text[p]))
        ++p;
    out.whole = text.substr(wholeStart, p - wholeStart);
    if (p < text.size() && text[p] == '.') {
        ++p;
        const std::size_t fractionStart = p;
        while (p < text.size() && IsDigit(text[p]))
            ++p;
        out.fraction = text.substr(fractionStart, p - fractionStart);
    }
    if (out.whole.empty() && out.fraction.empty())
        return std::nullopt;
    if (p < text.size() && (text[p] == 'e' || text[p] == 'E')) {
        ++p;
        bool negativeExponent = false;
        if (p < text.size() && (text[p] == '+' || text[p] == '-')) {
            negativeExponent = text[p] == '-';
            ++p;
        }
        if (p >= text.size() || !IsDigit(text[p]))
            return std::nullopt;
        constexpr std::int64_t kExponentCap = 1'000'000'000;
        std::int64_t exponent = 0;
        while (p < text.size() && IsDigit(text[p])) {
            exponent = std::min(kExponentCap, exponent * 10 + (text[p] - '0'));
            ++p;
        }
        out.exponent = negativeExponent ? -exponent : exponent;
    }
    if (p != text.size())
        return std::nullopt;
    return out;
}

/// The significant digits of a number (no leading zeros; empty for zero) and
/// how many of them stand before the decimal point (negative for 0.00ddd).
struct Significant {
    std::string digits;
    std::int64_t pointAt = 0;
};

Significant SignificantDigits(const DecimalText& number) {
    Significant out;
    out.digits.assign(number.whole);
    out.digits += number.fraction;
    out.pointAt = static_cast<std::int64_t>(number.whole.size()) + number.exponent;
    const std::size_t firstNonZero = out.digits.find_first_not_of('0');
    if (firstNonZero == std::string::npos) {
        out.digits.clear();
        out.pointAt = 0;
        return out;
    }
    out.digits.erase(0, firstNonZero);
    out.pointAt -= static_cast<std::int64_t>(firstNonZero);
    return out;
}

} // namespace

namespace {

// The label coding reads eight bytes at a time: labels are long texts with an escape
// every few characters, where a search call per escape, or a branch per character
// that guesses wrong at every blank, would cost more than the text itself.

constexpr std::uint64_t kLowSevenBits = 0x7F7F7F7F7F7F7F7Full;

constexpr std::uint64_t everyByte(char c) {
    return 0x0101010101010101ull * static_cast<unsigned char>(c);
}

/// Eight bytes as a number whose lowest byte is the first, on any machine.
std::uint64_t loadWord(const char* p) {
    std::uint64_t word = 0;
    std::memcpy(&word, p, sizeof word);
    if constexpr (std::endian::native == std::endian::big) {
        std::uint64_t reversed = 0;
        for (int k = 0; k < 8; ++k, word >>= 8)
            reversed = (reversed << 8) | (word & 0xFF);
        word = reversed;
    }
    return word;
}

/// Four bytes as a number, compared only with other loaded quads.
std::uint32_t loadQuad(const char* p) {
    std::uint32_t quad = 0;
    std::memcpy(&quad, p, sizeof quad);
    return quad;
}

/// The top bit of each byte of `word` that equals the byte of `pattern`, and no other
/// bit (the exact form: the shorter test may also flag the byte after a match).
std::uint64_t matchingBytes(std::uint64_t word, std::uint64_t pattern) {
    const std::uint64_t x = word ^ pattern;
    return ~(((x & kLowSevenBits) + kLowSevenBits) | x | kLowSevenBits);
}

/// How many bytes matchingBytes flagged in `mask`: the flags summed by a
/// multiplication into the top byte.
std::size_t countMatches(std::uint64_t mask) {
    return static_cast<std::size_t>(((mask >> 7) * 0x0101010101010101ull) >> 56);
}

/// How much longer EncodeLabel makes `text`: four bytes per blank, three per quote.
std::size_t encodedGrowth(std::string_view text) {
    const std::uint64_t blanks = everyByte(' ');
    const std::uint64_t quotes = everyByte('"');
    std::size_t growth = 0;
    std::size_t base = 0;
    for (; base + 8 <= text.size(); base += 8) {
        const std::uint64_t word = loadWord(text.data() + base);
        growth += 4 * countMatches(matchingBytes(word, blanks)) +
                  3 * countMatches(matchingBytes(word, quotes));
    }
    for (; base < text.size(); ++base)
        growth += text[base] == ' ' ? 4 : text[base] == '"' ? 3 : 0;
    return growth;
}

/// What EncodeLabel makes of each byte, padded to eight bytes for fixed-size copies:
/// blanks and quotes alternate with text too irregularly for a branch per character.
struct EncodedByte {
    char text[8];
    std::uint8_t length;
};

constexpr std::array<EncodedByte, 256> kEncodedBytes = [] {
    std::array<EncodedByte, 256> table{};
    for (std::size_t b = 0; b < table.size(); ++b)
        table[b] = {{static_cast<char>(b)}, 1};
    table['|'] = {{'I'}, 1};
    table[' '] = {{'&', 'n', 'b', 's', 'p'}, 5};
    table['"'] = {{'&', 'y', '0', '2'}, 4};
    return table;
}();

/// Copies a run of `length` bytes. Runs between escapes are short: where `slack` says
/// 16 bytes may be read at `from` and written at `to`, one fixed-size copy does, its
/// excess overwritten later.
void copyRun(char* to, const char* from, std::size_t length, bool slack) {
    if (length <= 16 && slack)
        std::memcpy(to, from, 16);
    else
        std::memcpy(to, from, length);
}

/// The escape starting at text[amp] ("&"): what it stands for and its length, or none.
/// `Roomy` promises five bytes from amp. Branches, not arithmetic, tell the escapes
/// apart: a guessed branch lets the next escape start before this one is read.
template <bool Roomy>
bool escapeAt(std::string_view text, std::size_t amp, char& decoded, std::size_t& length) {
    const std::size_t left = text.size() - amp;
    if (!Roomy && left < 4)
        return false;
    const std::uint32_t head = loadQuad(text.data() + amp);
    if (head == loadQuad("&nbs") && (Roomy || left >= 5) && text[amp + 4] == 'p') {
        decoded = ' ';
        length = 5;
    } else if (head == loadQuad("&y02")) {
        decoded = '"';
        length = 4;
    } else if (head == loadQuad("&y01")) {
        decoded = ';';
        length = 4;
    } else {
        return false;
    }
    return true;
}

} // namespace

std::string EncodeLabel(std::string_view text) {
    std::string out;
    AppendEncodedLabel(out, text);
    return out;
}

std::string DecodeLabel(std::string_view text) {
    std::string out;
    AppendDecodedLabel(out, text);
    return out;
}

void AppendEncodedLabel(std::string& out, std::string_view text) {
    // One scan does the three steps at once: "|" to "I", then blanks, then double
    // quotes through the repeated replace. Neither "&nbsp" nor "&y02" holds a
    // blank or a double quote, so each replace finds just the characters of the
    // text itself, and those are the ones a single scan meets.
    //
    // Room for the longest outcome (every character a blank) where the string has it
    // already, else room for the exact outcome; cut to size at the end.
    const std::size_t start = out.size();
    const std::size_t longest = 5 * text.size();
    out.resize(start +
               (out.capacity() - start >= longest ? longest : text.size() + encodedGrowth(text)));
    char* const dest = out.data() + start;
    const char* const src = text.data();
    std::size_t written = 0;
    std::size_t at = 0;
    // Eight bytes are stored per character while eight remain to be read: each of them
    // gives at least one byte, so the output has room for the excess.
    const auto put = [&](std::size_t k, std::size_t size) {
        const EncodedByte& e = kEncodedBytes[static_cast<unsigned char>(src[k])];
        std::memcpy(dest + written, e.text, size);
        written += e.length;
    };
    for (; at + 11 <= text.size(); at += 4) {
        put(at, 8);
        put(at + 1, 8);
        put(at + 2, 8);
        put(at + 3, 8);
    }
    for (; at + 8 <= text.size(); ++at)
        put(at, 8);
    for (; at < text.size(); ++at)
        put(at, kEncodedBytes[static_cast<unsigned char>(src[at])].length);
    out.resize(start + written);
}

void AppendDecodedLabel(std::string& out, std::string_view text) {
    // One scan does the three replaces in their order: "&nbsp", "&y01", "&y02".
    // Their replacements hold none of the three, and two of them can never
    // overlap (each starts with the only "&" it has), so the occurrences the
    // three replaces find are exactly those of the text itself, and each "&"
    // can be judged on its own.
    const std::size_t first = text.find('&');
    if (first == std::string_view::npos) {
        out.append(text);
        return;
    }
    // The text goes in whole and is rewritten from its first "&": decoding only shortens.
    const std::size_t start = out.size();
    out.append(text);
    char* const dest = out.data() + start;
    const char* const src = text.data();
    std::size_t written = first;
    std::size_t from = first;
    // With `roomy` true the escape and a 16-byte run copy both fit in the text.
    const auto decodeAt = [&](std::size_t amp, auto roomy) {
        char decoded = 0;
        std::size_t length = 0;
        if (!escapeAt<decltype(roomy)::value>(text, amp, decoded, length))
            return;
        // The output lags the input: the slack holds for both.
        copyRun(dest + written, src + from, amp - from, roomy || from + 16 <= text.size());
        written += amp - from;
        dest[written++] = decoded;
        from = amp + length;
    };
    const std::uint64_t amps = everyByte('&');
    std::size_t base = first;
    // An "&" in a word is at most 7 bytes in and the run before it starts no later, so
    // both its escape and a 16-byte copy of that run end within 24 bytes of the word.
    for (; base + 24 <= text.size(); base += 8) {
        for (std::uint64_t found = matchingBytes(loadWord(src + base), amps); found != 0;
             found &= found - 1)
            decodeAt(base + static_cast<std::size_t>(std::countr_zero(found)) / 8,
                     std::true_type{});
    }
    for (; base < text.size(); ++base) {
        if (src[base] == '&')
            decodeAt(base, std::false_type{});
    }
    std::memcpy(dest + written, src + from, text.size() - from);
    out.resize(start + written + (text.size() - from));
}

namespace {

/**
 * Whether a match of `search` can ever use characters of `replacement`, or,
 * for an empty replacement, the join it leaves behind: some placement of
 * search across the replacement where the two agree on every character they
 * share. When none exists, each pass of the repeated replace only finds
 * matches of the original text, and the whole process gives what one plain
 * left-to-right replace gives.
 */
bool CanFormNewMatches(std::string_view search, std::string_view replacement) {
    const auto m = static_cast<std::ptrdiff_t>(search.size());
    const auto r = static_cast<std::ptrdiff_t>(replacement.size());
    if (r == 0)
        return m >= 2;
    for (std::ptrdiff_t offset = 1 - m; offset < r; ++offset) {
        bool agree = true;
        for (std::ptrdiff_t p = std::max<std::ptrdiff_t>(0, offset);
             p < std::min(r, offset + m) && agree; ++p)
            agree = replacement[static_cast<std::size_t>(p)] ==
                    search[static_cast<std::size_t>(p - offset)];
        if (agree)
            return true;
    }
    return false;
}

} // namespace

std::string ReplaceAll(std::string_view text, std::string_view search,
                       std::string_view replacement) {
    if (search.empty())
        return std::string(text);
    if (CanFormNewMatches(search, replacement)) {
        // A replacement holding the search text would be replaced again forever;
        // it gets one pass.
        const bool endless = replacement.find(search) != std::string_view::npos;
        return ReplacePasses(text, search, replacement).run(endless);
    }
    std::string out;
    out.reserve(text.size());
    std::size_t from = 0;
    for (std::size_t hit = text.find(search); hit != std::string_view::npos;
         hit = text.find(search, from)) {
        out.append(text, from, hit - from);
        out += replacement;
        from = hit + search.size();
    }
    out.append(text, from, std::string_view::npos);
    return out;
}

std::string MakeIdentifier(std::string_view text) {
    std::string out;
    if (!text.empty() && IsDigit(text.front()))
        out += '_';
    out += text;
    static constexpr std::string_view kReplaced = " '\"/\\|.;?`@~&!#$%^*()+-=:{}[]";
    for (char& c : out) {
        if (kReplaced.find(c) != std::string_view::npos)
            c = '_';
    }
    return out;
}

std::string GetToken(std::string_view text, std::string_view separator, int n) {
    if (text.empty())
        return {};
    std::string collector;
    int counter = 1;
    std::size_t p = 0;
    while (p < text.size()) {
        if (std::string_view(&text[p], 1) != separator)
            collector += text[p];
        if (text.substr(p, separator.size()) == separator) {
            if (counter == n) {
                if (!collector.empty())
                    collector.pop_back();
                return collector;
            }
            collector.clear();
            ++counter;
            // An empty separator would never move on; step over one character instead.
            p += std::max<std::size_t>(separator.size(), 1);
        } else {
            ++p;
        }
    }
    return counter == n ? collector : std::string();
}

std::int16_t CountOccurrences(std::string_view text, std::string_view search) {
    std::int64_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text.substr(i, search.size()) == search)
            ++count;
    }
    // The count is a 16-bit number; a larger one saturates rather than wraps.
    return static_cast<std::int16_t>(std::min<std::int64_t>(count, 32767));
}

bool StartsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

namespace {

/// Digits with at most a sign, as every saved number is written, read directly; none
/// for any other text. Up to 18 digits cannot overflow the 64-bit sum.
std::optional<WholeNumber> PlainWholeNumber(std::string_view text, std::int64_t min,
                                            std::int64_t max) {
    const bool negative = !text.empty() && text.front() == '-';
    const std::size_t first = negative || (!text.empty() && text.front() == '+') ? 1 : 0;
    if (text.size() == first || text.size() - first > 18)
        return std::nullopt;
    std::int64_t magnitude = 0;
    for (std::size_t p = first; p < text.size(); ++p) {
        if (!IsDigit(text[p]))
            return std::nullopt;
        magnitude = magnitude * 10 + (text[p] - '0');
    }
    // Zero is taken whatever the range, as the general reading takes it.
    if (magnitude == 0)
        return WholeNumber{0, NumberError::None};
    const std::int64_t value = negative ? -magnitude : magnitude;
    if (value < min || value > max)
        return WholeNumber{0, NumberError::Overflow};
    return WholeNumber{value, NumberError::None};
}

} // namespace

WholeNumber ParseWholeNumber(std::string_view text, std::int64_t min, std::int64_t max) {
    if (const std::optional<WholeNumber> plain = PlainWholeNumber(text, min, max))
        return *plain;
    const std::optional<DecimalText> number = ScanDecimal(text);
    if (!number)
        return {0, NumberError::TypeMismatch};
    const Significant significant = SignificantDigits(*number);
    const std::string& digits = significant.digits;
    const std::int64_t pointAt = significant.pointAt;
    if (digits.empty())
        return {0, NumberError::None};
    // More than 19 whole digits cannot fit in 64 bits, let alone in [min, max];
    // 19 digits stay below 10^19 < 2^64, so the sum below cannot wrap.
    if (pointAt > 19)
        return {0, NumberError::Overflow};
    std::uint64_t magnitude = 0;
    for (std::int64_t k = 0; k < pointAt; ++k) {
        const auto index = static_cast<std::size_t>(k);
        magnitude = magnitude * 10 + (index < digits.size() ? unsigned(digits[index] - '0') : 0U);
    }
    // Round the dropped fraction to nearest, halves to the even whole number.
    if (pointAt >= 0 && static_cast<std::size_t>(pointAt) < digits.size()) {
        const std::size_t first = static_cast<std::size_t>(pointAt);
        const int dropped = digits[first] - '0';
        const bool moreAfter = digits.find_first_not_of('0', first + 1) != std::string::npos;
        if (dropped > 5 || (dropped == 5 && (moreAfter || magnitude % 2 == 1)))
            ++magnitude;
    }
    constexpr auto kLargest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    std::int64_t value = 0;
    if (!number->negative) {
        if (magnitude > kLargest)
            return {0, NumberError::Overflow};
        value = static_cast<std::int64_t>(magnitude);
    } else {
        if (magnitude > kLargest + 1)
            return {0, NumberError::Overflow};
        value = magnitude == kLargest + 1 ? std::numeric_limits<std::int64_t>::min()
                                          : -static_cast<std::int64_t>(magnitude);
    }
    if (value < min || value > max)
        return {0, NumberError::Overflow};
    return {value, NumberError::None};
}

std::string NumberErrorText(NumberError error) {
    switch (error) {
    case NumberError::None:
        return {};
    case NumberError::TypeMismatch:
        return "Type mismatch";
    case NumberError::Overflow:
        return "Overflow";
    }
    return {};
}

std::int16_t MakeCInt(std::string_view text) {
    const WholeNumber n = ParseWholeNumber(text, std::numeric_limits<std::int16_t>::min(),
                                           std::numeric_limits<std::int16_t>::max());
    return n.error == NumberError::None ? static_cast<std::int16_t>(n.value) : 0;
}

std::string MakePositive(std::string_view text) {
    const std::string_view trimmed = Trim(text);
    if (!ScanDecimal(trimmed))
        return "5";
    std::string_view number = trimmed;
    if (number.front() == '+' || number.front() == '-')
        number.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        // Too small for a double reads as 0; too large is no number at all.
        if (SignificantDigits(*ScanDecimal(trimmed)).pointAt < 0)
            return "0";
        return "5";
    }
    if (error != std::errc() || end != number.data() + number.size() || !std::isfinite(value))
        return "5";
    value = std::fabs(value);
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string HexText(std::int32_t value) {
    static constexpr char kDigits[] = "0123456789ABCDEF";
    auto bits = static_cast<std::uint32_t>(value);
    std::string out;
    do {
        out += kDigits[bits & 0xF];
        bits >>= 4;
    } while (bits != 0);
    std::reverse(out.begin(), out.end());
    return out;
}

std::string ColorToHex(std::string_view hex, std::string_view mode) {
    std::string red, green, blue;
    switch (hex.size()) {
    case 0:
    case 1:
        red = green = blue = "00";
        break;
    case 2:
        red = hex;
        green = blue = "00";
        break;
    case 4:
        red = hex.substr(2, 2);
        green = hex.substr(0, 2);
        blue = "00";
        break;
    case 6:
        red = hex.substr(4, 2);
        green = hex.substr(2, 2);
        blue = hex.substr(0, 2);
        break;
    default:
        break;
    }
    const std::string lowered = ToLowerAscii(mode);
    if (lowered == "red")
        return red;
    if (lowered == "green")
        return green;
    if (lowered == "blue")
        return blue;
    if (lowered == "normal")
        return red + green + blue;
    return {};
}

std::string ColorToWeb(std::int32_t colour) {
    return ColorToHex(HexText(colour), "NORMAL");
}

std::string BareFileName(std::string_view path) {
    const std::size_t slash = path.find_last_of("/\\");
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string ToUpperAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return out;
}

std::string ToLowerAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

void StringTokenizer::init(std::string_view, std::string_view, bool) {
    m_text = "fds";
}

std::string StringTokenizer::nextToken() {
    return {};
}

bool StringTokenizer::hasMoreTokens() const {
    return false;
}

bool StringTokenizer::hasMoreElements() const {
    return false;
}

int StringTokenizer::countTokens() const {
    return 0;
}

} // namespace orvelin
