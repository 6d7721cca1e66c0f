#include "actioncommands.h"

#include "texthelpers.h"

#include <array>

namespace orvelin {

namespace {

CommandResult lineResult(std::string line) {
    return {CommandResult::Outcome::Line, std::move(line), {}};
}

CommandResult refuse(CommandResult::Outcome outcome, std::string error = {}) {
    return {outcome, {}, std::move(error)};
}

std::string number(int n) {
    return std::to_string(n);
}

// Characters, not bytes: a UTF-8 continuation byte does not start one.
std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U)
            ++count;
    return count;
}

} // namespace

CommandResult buildShowHide(ActionCommand command, const CommandInputs& in) {
    if (!in.haveButtons)
        return refuse(CommandResult::Outcome::NoButtons);
    return lineResult(number(static_cast<int>(command)) + " " + number(in.button));
}

CommandResult buildMove(const CommandInputs& in) {
    if (!in.haveButtons)
        return refuse(CommandResult::Outcome::NoButtons);
    std::string line = number(static_cast<int>(ActionCommand::Move)) + " " + number(in.button);
    const std::array<const std::string*, 4> boxes = {&in.x, &in.y, &in.width, &in.height};
    for (std::size_t b = 0; b < boxes.size(); ++b) {
        const std::string& box = *boxes[b];
        if (box.empty()) {
            line += " -999";
            continue;
        }
        const WholeNumber n = parseWholeNumber(box, -32768, 32767);
        if (n.error != NumberError::None) {
            CommandResult wrong =
                refuse(CommandResult::Outcome::WrongParameters, numberErrorText(n.error));
            wrong.box = static_cast<int>(b);
            return wrong;
        }
        line += " " + std::to_string(n.value);
    }
    return lineResult(std::move(line));
}

CommandResult buildSetLabel(CommandInputs& in) {
    if (!in.haveButtons)
        return refuse(CommandResult::Outcome::NoButtons);
    // The user sees the blank appear: an empty label is stored as one "&nbsp".
    if (in.label.empty())
        in.label = " ";
    return lineResult(number(static_cast<int>(ActionCommand::SetLabel)) + " " + number(in.button) +
                      " " + number(in.state) + " " + EncodeLabel(in.label));
}

CommandResult buildSetColor(const CommandInputs& in) {
    if (!in.haveButtons)
        return refuse(CommandResult::Outcome::NoButtons);
    // Six characters, hexadecimal or not: typed colours are taken on trust.
    if (characterCount(in.label) != 6)
        return refuse(CommandResult::Outcome::Silent);
    return lineResult(number(static_cast<int>(ActionCommand::SetColor)) + " " + number(in.button) +
                      " " + number(in.state) + " " + EncodeLabel(in.label));
}

CommandResult buildWait(const CommandInputs& in) {
    return lineResult(number(static_cast<int>(ActionCommand::Wait)) + " " +
                      MakePositive(in.milliseconds));
}

CommandResult buildCallJavaScript(const CommandInputs& in) {
    if (in.javaScript.empty())
        return refuse(CommandResult::Outcome::Silent);
    // Only here is ";" escaped: it would otherwise end the command line.
    return lineResult(number(static_cast<int>(ActionCommand::CallJavaScript)) + " 0 " +
                      ReplaceAll(EncodeLabel(in.javaScript), ";", "&y01"));
}

CommandResult buildCommand(int command, CommandInputs& in) {
    switch (command) {
    case 1:
    case 2:
        return buildShowHide(static_cast<ActionCommand>(command), in);
    case 3:
        return buildMove(in);
    case 4:
        return buildSetLabel(in);
    case 5:
        return buildSetColor(in);
    case 6:
        return buildWait(in);
    case 7:
        return buildCallJavaScript(in);
    default:
        return refuse(CommandResult::Outcome::Silent);
    }
}

} // namespace orvelin
