#include "texthelpers.h"

#include "textcatalogue.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace orvelin {

namespace {

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view trim(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
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
std::optional<DecimalText> scanDecimal(std::string_view text) {
    text = trim(text);
    DecimalText out;
    std::size_t p = 0;
    if (p < text.size() && (text[p] == '+' || text[p] == '-')) {
        out.negative = text[p] == '-';
        ++p;
    }
    const std::size_t wholeStart = p;
    while (p < text.size() && isDigit(text[p]))
        ++p;
    out.whole = text.substr(wholeStart, p - wholeStart);
    if (p < text.size() && text[p] == '.') {
        ++p;
        const std::size_t fractionStart = p;
        while (p < text.size() && isDigit(text[p]))
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
        if (p >= text.size() || !isDigit(text[p]))
            return std::nullopt;
        constexpr std::int64_t kExponentCap = 1'000'000'000;
        std::int64_t exponent = 0;
        while (p < text.size() && isDigit(text[p])) {
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

Significant significantDigits(const DecimalText& number) {
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

std::string EncodeLabel(std::string_view text) {
    std::string out;
    appendEncodedLabel(out, text);
    return out;
}

std::string DecodeLabel(std::string_view text) {
    std::string out;
    appendDecodedLabel(out, text);
    return out;
}

void appendEncodedLabel(std::string& out, std::string_view text) {
    // One scan does the three steps at once: "|" to "I", then blanks, then double
    // quotes through the repeated replace. Neither "&nbsp" nor "&y02" holds a
    // blank or a double quote, so each replace finds just the characters of the
    // text itself, and those are the ones a single scan meets.
    out.reserve(out.size() + text.size());
    for (const char c : text) {
        if (c == ' ')
            out += "&nbsp";
        else if (c == '"')
            out += "&y02";
        else
            out += c == '|' ? 'I' : c;
    }
}

void appendDecodedLabel(std::string& out, std::string_view text) {
    // One scan does the three replaces in their order: "&nbsp", "&y01", "&y02".
    // Their replacements hold none of the three, and two of them can never
    // overlap (each starts with the only "&" it has), so the occurrences the
    // three replaces find are exactly those of the text itself, and each "&"
    // can be judged on its own.
    out.reserve(out.size() + text.size());
    std::size_t from = 0;
    for (std::size_t amp = text.find('&'); amp != std::string_view::npos;
         amp = text.find('&', from)) {
        out.append(text, from, amp - from);
        const std::string_view rest = text.substr(amp + 1, 4);
        from = amp + 4;
        if (rest == "nbsp") {
            out += ' ';
            from = amp + 5;
        } else if (rest.substr(0, 3) == "y01") {
            out += ';';
        } else if (rest.substr(0, 3) == "y02") {
            out += '"';
        } else {
            out += '&';
            from = amp + 1;
        }
    }
    out.append(text, from, std::string_view::npos);
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
bool canFormNewMatches(std::string_view search, std::string_view replacement) {
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

/// One pass: positions below the length the text had when it began, going on at
/// i + 1 in the changed text after a replacement at i.
void replacePass(std::string& text, std::string_view search, std::string_view replacement) {
    const std::size_t passEnd = text.size();
    for (std::size_t i = 0; i < passEnd && i < text.size(); ++i) {
        if (std::string_view(text).substr(i, search.size()) == search)
            text.replace(i, search.size(), replacement);
    }
}

} // namespace

std::string ReplaceAll(std::string_view text, std::string_view search,
                       std::string_view replacement) {
    if (search.empty())
        return std::string(text);
    if (canFormNewMatches(search, replacement)) {
        // A replacement holding the search text would be replaced again forever;
        // it gets one pass.
        const bool endless = replacement.find(search) != std::string_view::npos;
        std::string out(text);
        for (;;) {
            const std::size_t before = out.size();
            replacePass(out, search, replacement);
            if (endless || out.size() == before)
                return out;
        }
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
    if (!text.empty() && isDigit(text.front()))
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

WholeNumber parseWholeNumber(std::string_view text, std::int64_t min, std::int64_t max) {
    const std::optional<DecimalText> number = scanDecimal(text);
    if (!number)
        return {0, NumberError::TypeMismatch};
    const Significant significant = significantDigits(*number);
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

std::string numberErrorText(NumberError error) {
    switch (error) {
    case NumberError::None:
        return {};
    case NumberError::TypeMismatch:
        return texts()[Msg::CauseTypeMismatch];
    case NumberError::Overflow:
        return texts()[Msg::CauseOverflow];
    }
    return {};
}

std::int16_t MakeCInt(std::string_view text) {
    const WholeNumber n = parseWholeNumber(text, std::numeric_limits<std::int16_t>::min(),
                                           std::numeric_limits<std::int16_t>::max());
    return n.error == NumberError::None ? static_cast<std::int16_t>(n.value) : 0;
}

std::string MakePositive(std::string_view text) {
    const std::string_view trimmed = trim(text);
    if (!scanDecimal(trimmed))
        return "5";
    std::string_view number = trimmed;
    if (number.front() == '+' || number.front() == '-')
        number.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        // Too small for a double reads as 0; too large is no number at all.
        if (significantDigits(*scanDecimal(trimmed)).pointAt < 0)
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

std::string hexText(std::int32_t value) {
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

std::string colorToWeb(std::int32_t colour) {
    const std::string hex = hexText(colour);
    switch (hex.size()) {
    case 1:
        return "000000";
    case 2:
        return hex + "0000";
    case 4:
        return hex.substr(2, 2) + hex.substr(0, 2) + "00";
    case 6:
        return hex.substr(4, 2) + hex.substr(2, 2) + hex.substr(0, 2);
    default:
        return {};
    }
}

std::string bareFileName(std::string_view path) {
    const std::size_t slash = path.find_last_of("/\\");
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string toUpperAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
    return out;
}

std::string toLowerAscii(std::string_view text) {
    std::string out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

} // namespace orvelin
