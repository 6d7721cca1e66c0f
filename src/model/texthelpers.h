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

/// EncodeLabel(text) and DecodeLabel(text) appended to `out`, which keeps its storage;
/// `text` must not lie inside `out`.
void appendEncodedLabel(std::string& out, std::string_view text);
void appendDecodedLabel(std::string& out, std::string_view text);

/**
 * Replaces `search` by `replacement` in whole passes, repeated until a pass
 * leaves the length unchanged. A pass looks at the positions below the length
 * the text had when it began; after a replacement at i it goes on at i + 1 in
 * the changed text, so a match may start inside a fresh replacement, while one
 * formed behind the scan or pushed beyond the pass's end waits for the next
 * pass ("abb", "ab" -> "a" gives "a"). A replacement of the same length as the
 * search makes one pass. An empty search changes nothing.
 *
 * A replacement that holds the search text would be replaced again forever;
 * it gets one pass. Some other pairs (such as "ab" -> "bbaa") grow without
 * practical end as well; no caller passes such a pair.
 *
 * Pairs that cannot form new matches take one plain left-to-right replace, which
 * gives the same text; no caller passes any other pair.
 */
std::string ReplaceAll(std::string_view text, std::string_view search,
                       std::string_view replacement);

/// Safe applet name: "_" before a leading digit, 29 punctuation characters to "_".
std::string MakeIdentifier(std::string_view text);

/**
 * The n-th field (from 1) of `text`, made for a two-character separator such
 * as "\r\n". With a one-character separator every field but the last loses
 * its last character; an empty separator gives empty fields.
 */
std::string GetToken(std::string_view text, std::string_view separator, int n);

/// Occurrences of `search` in `text`, overlapping ones included; saturates at 32767.
std::int16_t CountOccurrences(std::string_view text, std::string_view search);

bool StartsWith(std::string_view text, std::string_view prefix);

/**
 * Converts a decimal number to a whole number the way the designer converts
 * typed text: [blanks][+|-]digits[.digits][e|E[+|-]digits][blanks], with at
 * least one digit before or after the point; the decimal separator is ".".
 * Exponents are accepted ("1e3" is 1000) as typed-number conversion has always
 * accepted them. A fraction rounds to the nearest whole number, halves to the
 * even one, computed on the decimal digits themselves (no floating point).
 * An empty or non-numeric text is a type mismatch, a result outside
 * [min, max] an overflow; any length of digits or exponent is safe.
 */
enum class NumberError { None, TypeMismatch, Overflow };
struct WholeNumber {
    std::int64_t value = 0;
    NumberError error = NumberError::None;
};
WholeNumber parseWholeNumber(std::string_view text, std::int64_t min, std::int64_t max);

/// The text of a conversion error as the designer shows it ("Type mismatch", "Overflow").
std::string numberErrorText(NumberError error);

/// 16-bit conversion that gives 0 for anything it cannot convert.
std::int16_t MakeCInt(std::string_view text);

/// Absolute value of a decimal number (same grammar as ParseWholeNumber) as the
/// shortest text that reads back the same double; "5" when it is no number.
std::string MakePositive(std::string_view text);

/// Upper-case hexadecimal form of a 32-bit value without leading zeros ("0" for zero).
std::string hexText(std::int32_t value);

/**
 * Web colour text RRGGBB of a colour value (red in the low byte), taken from the
 * digits of HexText: a value of one digit gives "000000", one of 3, 5, 7 or 8
 * digits the empty text, as the applet code has always been written.
 */
std::string colorToWeb(std::int32_t colour);

/// What follows the last "/" or "\" of a path (the whole path without one).
std::string bareFileName(std::string_view path);

/// Upper-case and lower-case forms of ASCII letters only.
std::string toUpperAscii(std::string_view text);
std::string toLowerAscii(std::string_view text);

} // namespace orvelin
