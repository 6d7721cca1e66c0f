#include "actioncommands.h"

#include "texthelpers.h"

#include <array>

namespace orvelin {

namespace {

CommandResult Line(std::string line) {
    return {CommandResult::Outcome::Line, std::move(line), {}};
}

CommandResult Refuse(CommandResult::Outcome outcome, std::string error = {}) {
    return {outcome, {}, std::move(error)};
}

std::string Number(int n) {
    return std::to_string(n);
}

// Characters, not bytes: a UTF-8 continuation byte does not start one.
std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    for (char c : text)
        if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U)
            ++count;
    return count;
}

} // namespace

CommandResult BuildShowHide(ActionCommand command, const CommandInputs& in) {
    if (!in.haveButtons)
        return Refuse(CommandResult::Outcome::NoButtons);
    return Line(Number(static_cast<int>(command)) + " " + Number(in.button));
}

CommandResult BuildMove(const CommandInputs& in) {
    if (!in.haveButtons)
        return Refuse(CommandResult::Outcome::NoButtons);
    std::string line = Number(static_cast<int>(ActionCommand::Move)) + " " + Number(in.button);
    const std::array<const std::string*, 4> boxes = {&in.x, &in.y, &in.width, &in.height};
    for (std::size_t b = 0; b < boxes.size(); ++b) {
        const std::string& box = *boxes[b];
        if (box.empty()) {
            line += " -999";
            continue;
        }
        const WholeNumber n = ParseWholeNumber(box, -32768, 32767);
        if (n.error != NumberError::None) {
            CommandResult wrong =
                Refuse(CommandResult::Outcome::WrongParameters, NumberErrorText(n.error));
            wrong.box = static_cast<int>(b);
            return wrong;
        }
        line += " " + std::to_string(n.value);
    }
    return Line(std::move(line));
}

CommandResult BuildSetLabel(CommandInputs& in) {
    if (!in.haveButtons)
        return Refuse(CommandResult::Outcome::NoButtons);
    // The user sees the blank appear: an empty label is stored as one "&nbsp".
    if (in.label.empty())
        in.label = " ";
    return Line(Number(static_cast<int>(ActionCommand::SetLabel)) + " " + Number(in.button) + " " +
                Number(in.state) + " " + EncodeLabel(in.label));
}

CommandResult BuildSetColor(const CommandInputs& in) {
    if (!in.haveButtons)
        return Refuse(CommandResult::Outcome::NoButtons);
    // Six characters, hexadecimal or not: typed colours are taken on trust.
    if (CharacterCount(in.label) != 6)
        return Refuse(CommandResult::Outcome::Silent);
    return Line(Number(static_cast<int>(ActionCommand::SetColor)) + " " + Number(in.button) + " " +
                Number(in.state) + " " + EncodeLabel(in.label));
}

CommandResult BuildWait(const CommandInputs& in) {
    return Line(Number(static_cast<int>(ActionCommand::Wait)) + " " +
                MakePositive(in.milliseconds));
}

CommandResult BuildCallJavaScript(const CommandInputs& in) {
    if (in.javaScript.empty())
        return Refuse(CommandResult::Outcome::Silent);
    // Only here is ";" escaped: it would otherwise end the command line.
    return Line(Number(static_cast<int>(ActionCommand::CallJavaScript)) + " 0 " +
                ReplaceAll(EncodeLabel(in.javaScript), ";", "&y01"));
}

CommandResult BuildCommand(int command, CommandInputs& in) {
    switch (command) {
    case 1:
    case 2:
        return BuildShowHide(static_cast<ActionCommand>(command), in);
    case 3:
        return BuildMove(in);
    case 4:
        return BuildSetLabel(in);
    case 5:
        return BuildSetColor(in);
    case 6:
        return BuildWait(in);
    case 7:
        return BuildCallJavaScript(in);
    default:
        return Refuse(CommandResult::Outcome::Silent);
    }
}

} // namespace orvelin
