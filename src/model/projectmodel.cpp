#include "projectmodel.h"

#include <utility>

namespace orvelin {

ButtonState ProjectModel::EditedState() const {
    ButtonState state = ButtonState::UP;
    StateFromName(CurrentState, state);
    return state;
}

void ProjectModel::Reset() {
    ButtonCount = 0;
    CurrentButton = 0;
    BackImg.clear();
    AppletProgramStart.clear();
    AppletProgramOVER.clear();
    AppletProgramDOWN.clear();
    AppletProgramOUT.clear();
    ProjectFileName.clear();
    LoadedFrom.clear();
    Saved = true;
}

ProjectModel::AddResult ProjectModel::AddButton(std::string_view defaultButton, FieldError* error) {
    if (ButtonCount >= kMaxButtons)
        return AddResult::LimitReached;
    ButtonRecord record = Button(ButtonCount + 1);
    // A fresh record first, so that fields the default string lacks are the defaults.
    const std::int16_t keepX = record.x;
    const std::int16_t keepY = record.y;
    record = ButtonRecord{};
    record.x = keepX;
    record.y = keepY;
    if (FieldError e = ParseButton(defaultButton, record, false)) {
        if (error)
            *error = e;
        return AddResult::CorruptDefault;
    }
    ++ButtonCount;
    Button(ButtonCount) = std::move(record);
    CurrentButton = ButtonCount;
    Saved = false;
    return AddResult::Added;
}

ProjectModel::AddResult ProjectModel::DuplicateButton(int source) {
    if (ButtonCount >= kMaxButtons)
        return AddResult::LimitReached;
    ButtonRecord copy = Button(source);
    ++ButtonCount;
    Button(ButtonCount) = std::move(copy);
    CurrentButton = ButtonCount;
    Saved = false;
    return AddResult::Added;
}

void ProjectModel::RemoveButton(int index) {
    if (index < 1 || index > ButtonCount)
        return;
    for (int i = index; i < ButtonCount; ++i)
        Button(i) = Button(i + 1);
    --ButtonCount;
    Saved = false;
}

bool IsButtonProgramKind(std::string_view kind) {
    return kind == "ProgramUP" || kind == "ProgramOVER" || kind == "ProgramDOWN";
}

bool IsAppletProgramKind(std::string_view kind) {
    return kind == "AppletProgramStart" || kind == "AppletProgramOVER" ||
           kind == "AppletProgramDOWN" || kind == "AppletProgramOUT";
}

std::string* ProjectModel::ProgramSlot(std::string_view kind, int button) {
    if (kind == "AppletProgramStart")
        return &AppletProgramStart;
    if (kind == "AppletProgramOVER")
        return &AppletProgramOVER;
    if (kind == "AppletProgramDOWN")
        return &AppletProgramDOWN;
    if (kind == "AppletProgramOUT")
        return &AppletProgramOUT;
    if (!IsButtonProgramKind(kind) || button < 1 || button >= kButtonSlots)
        return nullptr;
    ButtonRecord& b = Button(button);
    if (kind == "ProgramUP")
        return &b.ProgramUP;
    if (kind == "ProgramOVER")
        return &b.ProgramOVER;
    return &b.ProgramDOWN;
}

} // namespace orvelin
