#include "texthelpers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

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

} // namespace

std::string EncodeLabel(std::string_view text) {
    std::string bars(text);
    std::replace(bars.begin(), bars.end(), '|', 'I');
    return ReplaceAll(ReplaceAll(bars, " ", "&nbsp"), "\"", "&y02");
}

std::string DecodeLabel(std::string_view text) {
    return ReplaceAll(ReplaceAll(ReplaceAll(text, "&nbsp", " "), "&y01", ";"), "&y02", "\"");
}

std::string ReplaceAll(std::string_view text, std::string_view search,
                       std::string_view replacement) {
    std::string current(text);
    if (search.empty())
        return current;
    const bool endless = replacement.find(search) != std::string_view::npos;
    const std::size_t m = search.size();
    for (;;) {
        // One pass: positions before `out.size()` are settled; the text still
        // to look at is `pending` (read from its back) followed by `current[rest..]`.
        const std::size_t passEnd = current.size();
        std::string out;
        out.reserve(current.size());
        std::string pending;
        std::size_t rest = 0;
        auto at = [&](std::size_t k) -> int {
            if (k < pending.size())
                return static_cast<unsigned char>(pending[pending.size() - 1 - k]);
            k -= pending.size();
            return rest + k < current.size() ? static_cast<unsigned char>(current[rest + k]) : -1;
        };
        auto drop = [&](std::size_t count) {
            const std::size_t fromPending = std::min(count, pending.size());
            pending.resize(pending.size() - fromPending);
            rest += count - fromPending;
        };
        bool changed = false;
        while (out.size() < passEnd && (!pending.empty() || rest < current.size())) {
            bool match = true;
            for (std::size_t k = 0; k < m && match; ++k)
                match = at(k) == static_cast<unsigned char>(search[k]);
            if (match) {
                changed = true;
                drop(m);
                pending.append(replacement.rbegin(), replacement.rend());
            }
            if (pending.empty() && rest >= current.size())
                break;
            out += static_cast<char>(at(0));
            drop(1);
        }
        out.append(pending.rbegin(), pending.rend());
        out.append(current, rest, std::string::npos);
        const bool sameLength = out.size() == current.size();
        current = std::move(out);
        if (!changed || sameLength || endless)
            return current;
    }
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

WholeNumber ParseWholeNumber(std::string_view text, std::int64_t min, std::int64_t max) {
    const std::optional<DecimalText> number = ScanDecimal(text);
    if (!number)
        return {0, NumberError::TypeMismatch};
    // All significant digits in one string; the decimal point sits after `pointAt` of them.
    std::string digits(number->whole);
    digits += number->fraction;
    std::int64_t pointAt = static_cast<std::int64_t>(number->whole.size()) + number->exponent;
    const std::size_t firstNonZero = digits.find_first_not_of('0');
    if (firstNonZero == std::string::npos)
        return {0, NumberError::None};
    digits.erase(0, firstNonZero);
    pointAt -= static_cast<std::int64_t>(firstNonZero);
    // More than 19 whole digits cannot fit in 64 bits, let alone in [min, max].
    if (pointAt > 19)
        return {0, NumberError::Overflow};
    std::uint64_t magnitude = 0;
    for (std::int64_t k = 0; k < pointAt; ++k) {
        const std::size_t index = static_cast<std::size_t>(k);
        const unsigned digit = index < digits.size() ? unsigned(digits[index] - '0') : 0;
        if (magnitude > (std::numeric_limits<std::uint64_t>::max() - digit) / 10)
            return {0, NumberError::Overflow};
        magnitude = magnitude * 10 + digit;
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
