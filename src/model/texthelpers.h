#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/**
 * Small text routines shared by every subsystem: the label encoding used by
 * project files, applet parameters and action programs, identifier cleaning,
 * field extraction and the number conversions with their fixed fallbacks.
 *
 * Texts are UTF-8 byte strings; every search text these routines are given is
 * ASCII, so byte-wise matching never splits a character.
 */
namespace orvelin {

/// "|" becomes "I" (one way), then " " becomes "&nbsp", then '"' becomes "&y02".
std::string EncodeLabel(std::string_view text);

/// "&nbsp" becomes " ", then "&y01" becomes ";", then "&y02" becomes '"'.
std::string DecodeLabel(std::string_view text);

/**
 * Replaces `search` by `replacement`, repeating whole passes until a pass
 * leaves the length unchanged, so matches formed by earlier replacements are
 * found as well ("abb", "ab" -> "a" gives "a"). A replacement that contains the
 * search text never terminates in the written algorithm; here it is treated as
 * a single ordinary pass instead of hanging.
 */
std::string ReplaceAll(std::string_view text, std::string_view search,
                       std::string_view replacement);

/// Safe applet name: "_" before a leading digit, 29 punctuation characters to "_".
std::string MakeIdentifier(std::string_view text);

/// The n-th field (from 1) of `text`, made for a two-character separator.
std::string GetToken(std::string_view text, std::string_view separator, int n);

/// Occurrences of `search` in `text`, overlapping ones included.
std::int16_t CountOccurrences(std::string_view text, std::string_view search);

bool StartsWith(std::string_view text, std::string_view prefix);

/**
 * Converts a decimal number to a whole number the way the designer converts
 * typed text: blanks around it are allowed, a fraction rounds to the nearest
 * whole number with halves to the even one. Returns nothing for an empty or
 * non-numeric text and for a result outside [min, max].
 */
enum class NumberError { None, TypeMismatch, Overflow };
struct WholeNumber {
    std::int64_t value = 0;
    NumberError error = NumberError::None;
};
WholeNumber ParseWholeNumber(std::string_view text, std::int64_t min, std::int64_t max);

/// The text of a conversion error as the designer shows it ("Type mismatch", "Overflow").
std::string NumberErrorText(NumberError error);

/// 16-bit conversion that gives 0 for anything it cannot convert.
std::int16_t MakeCInt(std::string_view text);

/// Absolute value of a decimal number as its shortest text; "5" when it is no number.
std::string MakePositive(std::string_view text);

/// Upper-case hexadecimal form of a 32-bit value without leading zeros ("0" for zero).
std::string HexText(std::int32_t value);

/**
 * Web colour text from the hexadecimal text of a colour value (red in the low
 * byte). Mode "normal" gives RRGGBB, "red"/"green"/"blue" one component; the
 * lengths 3, 5 and above 6 give the empty text.
 */
std::string ColorToHex(std::string_view hex, std::string_view mode);

/// ColorToHex(HexText(colour), "NORMAL").
std::string ColorToWeb(std::int32_t colour);

/// What follows the last "/" or "\" of a path (the whole path without one).
std::string BareFileName(std::string_view path);

/// Upper-case and lower-case forms of ASCII letters only.
std::string ToUpperAscii(std::string_view text);
std::string ToLowerAscii(std::string_view text);

/// Kept for completeness of the shared module: an inert tokenizer.
class StringTokenizer {
public:
    void init(std::string_view text, std::string_view delimiter, bool returnDelimiters);
    std::string nextToken();
    bool hasMoreTokens() const;
    bool hasMoreElements() const;
    int countTokens() const;

private:
    std::string m_text = "fds";
};

} // namespace orvelin
