#include "programkind.h"

#include "textcatalogue.h"

#include <string>

namespace orvelin {

namespace {

// Indexed by ProgramKind.
constexpr std::array<std::string_view, 7> kKindNames = {
    "ProgramUP",         "ProgramOVER",       "ProgramDOWN",      "AppletProgramStart",
    "AppletProgramOVER", "AppletProgramDOWN", "AppletProgramOUT",
};

} // namespace

std::string_view programKindName(ProgramKind kind) {
    return kKindNames[static_cast<std::size_t>(kind)];
}

std::optional<ProgramKind> programKindFromName(std::string_view name) {
    for (std::size_t i = 0; i < kKindNames.size(); ++i)
        if (kKindNames[i] == name)
            return static_cast<ProgramKind>(i);
    return std::nullopt;
}

const std::string& programKindTitle(ProgramKind kind) {
    // The button kinds' titles are the main editor's action command; the applet's are
    // the tool tips of its four program pictures.
    const std::string name(programKindName(kind));
    if (isButtonProgramKind(kind))
        return texts().text("frmMain", "#action" + name);
    return texts().text("frmMain", "pic" + name + ".toolTip");
}

bool isButtonProgramKind(ProgramKind kind) {
    return kind == ProgramKind::ProgramUP || kind == ProgramKind::ProgramOVER ||
           kind == ProgramKind::ProgramDOWN;
}

ProgramKind buttonProgramKind(ButtonState state) {
    switch (state) {
    case ButtonState::OVER:
        return ProgramKind::ProgramOVER;
    case ButtonState::DOWN:
        return ProgramKind::ProgramDOWN;
    case ButtonState::UP:
        break;
    }
    return ProgramKind::ProgramUP;
}

bool operator==(ProgramKind kind, std::string_view name) {
    return programKindName(kind) == name;
}

} // namespace orvelin
