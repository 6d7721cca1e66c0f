#include "programkind.h"

namespace orvelin {

namespace {

struct KindTexts {
    std::string_view name;
    std::string_view title;
};

// Indexed by ProgramKind.
constexpr std::array<KindTexts, 7> kKindTexts = {{
    {"ProgramUP", "Set Action: On Leaving Button..."},
    {"ProgramOVER", "Set Action: On Entering Button..."},
    {"ProgramDOWN", "Set Action: On Button Press..."},
    {"AppletProgramStart", "On Applet Start"},
    {"AppletProgramOVER", "On Mouse Moving above the Applet"},
    {"AppletProgramDOWN", "On Mouse Clicking the Applet"},
    {"AppletProgramOUT", "On Mouse Exiting the Applet"},
}};

const KindTexts& texts(ProgramKind kind) {
    return kKindTexts[static_cast<std::size_t>(kind)];
}

} // namespace

std::string_view programKindName(ProgramKind kind) {
    return texts(kind).name;
}

std::optional<ProgramKind> programKindFromName(std::string_view name) {
    for (std::size_t i = 0; i < kKindTexts.size(); ++i)
        if (kKindTexts[i].name == name)
            return static_cast<ProgramKind>(i);
    return std::nullopt;
}

std::string_view programKindTitle(ProgramKind kind) {
    return texts(kind).title;
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
