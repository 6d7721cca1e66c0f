#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/**
 * The text form of an action program: command lines, each closed by ";", whose
 * fields are separated by single blanks. Standard library only; the editor and
 * the applet code both rely on these rules.
 */
namespace orvelin {

/**
 * Splits program text into its command lines. Every ";" closes a line, empty
 * ones included ("1 2;;" gives "1 2" and ""); text after the last ";" is
 * dropped, so a program that lost its final ";" loses its last command.
 */
std::vector<std::string> splitProgram(std::string_view text);

/// Program text from command lines: each line followed by ";".
std::string joinProgram(const std::vector<std::string>& lines);

/**
 * The n-th blank-separated word of `line`, counted from 1; empty when there is
 * none. Two blanks in a row hold an empty word between them.
 */
std::string GetWord(std::string_view line, int n);

/// The command number (1 to 7) a command line starts with, 0 for none.
int commandNumber(std::string_view line);

/// The 0-based entry of a list that a 1-based number word names, -1 for none.
int entryIndex(std::string_view word, std::size_t listSize);

/// The texts a readable line is made of; a language file may have changed them all.
struct ReadableTexts {
    std::vector<std::string> commands; ///< "Show" ... "Call JavaScript", command 1 first
    std::vector<std::string> buttons;  ///< "Button 1" ..., button 1 first
    std::vector<std::string> states;   ///< "Up State", "Mouse-Over", "Down State"
    std::string widthCaption;          ///< "width:"
    std::string heightCaption;         ///< "height:"
};

/**
 * The one-line description the editor lists for a command line, such as
 * "Show Button 2" or "Wait: 500 ms". Nothing when the first word is not one of
 * "1" to "7". A button or state number outside its list shows as empty text.
 */
std::optional<std::string> readableLine(std::string_view line, const ReadableTexts& texts);

} // namespace orvelin
