#pragma once

#include "buttonrecord.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace orvelin {

/// The seven program slots: three per button, one per state, and four of the applet.
enum class ProgramKind {
    ProgramUP,
    ProgramOVER,
    ProgramDOWN,
    AppletProgramStart,
    AppletProgramOVER,
    AppletProgramDOWN,
    AppletProgramOUT,
};

/// The applet's kinds in the order the " Set Action:" frame shows them.
inline constexpr std::array<ProgramKind, 4> kAppletProgramKinds = {
    ProgramKind::AppletProgramStart, ProgramKind::AppletProgramOVER, ProgramKind::AppletProgramDOWN,
    ProgramKind::AppletProgramOUT};

/// The kind's name, which is also the name of its field: "ProgramUP", "AppletProgramOUT".
std::string_view programKindName(ProgramKind kind);
/// The kind called `name`; nothing for an unknown name.
std::optional<ProgramKind> programKindFromName(std::string_view name);
/// The action editor's title for `kind` in the texts in force: "Set Action: On Leaving
/// Button...", "On Mouse Clicking the Applet".
const std::string& programKindTitle(ProgramKind kind);

/// True for the three kinds a button holds.
bool isButtonProgramKind(ProgramKind kind);
/// The button kind of `state`: ProgramUP for UP.
ProgramKind buttonProgramKind(ButtonState state);

/// Lets a kind be compared with its name where one arrives as text.
bool operator==(ProgramKind kind, std::string_view name);

} // namespace orvelin
