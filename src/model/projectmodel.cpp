#include "projectmodel.h"

#include <utility>

namespace orvelin {

namespace {

using P = ProjectModel;
using K = FieldKind;
// clang-format off
constexpr std::array<AppletField, kAppletFieldCount> kAppletFields = {{
    Field<P>("AppletWidth", K::Int16, &P::AppletWidth),                    //  0
    Field<P>("AppletHeight", K::Int16, &P::AppletHeight),                  //  1
    Field<P>("ButtonCount", K::Int16, &P::ButtonCount),                    //  2
    Field<P>("Behaviour", K::Int16, &P::Behaviour),                        //  3
    Field<P>("DOWNBtn", K::Int16, &P::DOWNBtn),                            //  4
    Field<P>("BackGround", K::Color, &P::BackGround),                      //  5
    Field<P>("BackImg", K::File, &P::BackImg),                   //  6
    Field<P>("BackImgStyle", K::Int16, &P::BackImgStyle),                  //  7
    Field<P>("AppletProgramOVER", K::Raw, &P::AppletProgramOVER),  //  8
    Field<P>("AppletProgramDOWN", K::Raw, &P::AppletProgramDOWN),  //  9
    Field<P>("AppletProgramOUT", K::Raw, &P::AppletProgramOUT),    // 10
    Field<P>("BgOffsetX", K::Int16, &P::BgOffsetX),                        // 11
    Field<P>("BgOffsetY", K::Int16, &P::BgOffsetY),                        // 12
    Field<P>("AppletProgramStart", K::Raw, &P::AppletProgramStart), // 13
    Field<P>("AppletName", K::Raw, &P::AppletName),              // 14
}};
static_assert(kindsMatchMembers(kAppletFields));

constexpr const AppletField* at(int pos) { return &kAppletFields[static_cast<std::size_t>(pos)]; }

const std::array<AppletParameterField, kAppletParameterFieldCount> kAppletParameterFields = {{
    {at(14), nullptr}, {at(2), nullptr}, {at(3), nullptr}, {at(4), nullptr},
    {at(5), nullptr},  {at(6), nullptr}, {at(7), nullptr},
    {nullptr, "0"},
    {nullptr, ""},     // reserved for the applet build; kept empty
    {at(8), nullptr},  {at(9), nullptr}, {at(10), nullptr},
    {at(11), nullptr}, {at(12), nullptr},
    {nullptr, "\\n"}, // the applet reads a literal backslash-n here, not a line break
    {at(13), nullptr},
    {nullptr, ""},     // reserved for the applet build; kept empty
}};
// clang-format on

} // namespace

const std::array<AppletField, kAppletFieldCount>& appletFields() {
    return kAppletFields;
}

const std::array<AppletParameterField, kAppletParameterFieldCount>& appletParameterFields() {
    return kAppletParameterFields;
}

const AppletField* appletFieldNamed(std::string_view name) {
    for (const AppletField& f : kAppletFields)
        if (name == f.name)
            return &f;
    return nullptr;
}

void ProjectModel::reset() {
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

ProjectModel::AddResult ProjectModel::addButton(std::string_view defaultButton, FieldError* error) {
    if (ButtonCount >= kMaxButtons)
        return AddResult::LimitReached;
    ButtonRecord record = button(ButtonCount + 1);
    // A fresh record first, so that fields the default string lacks are the defaults.
    const std::int16_t keepX = record.x;
    const std::int16_t keepY = record.y;
    record = ButtonRecord{};
    record.x = keepX;
    record.y = keepY;
    if (FieldError e = parseButton(defaultButton, record, false)) {
        if (error)
            *error = e;
        return AddResult::CorruptDefault;
    }
    ++ButtonCount;
    button(ButtonCount) = std::move(record);
    CurrentButton = ButtonCount;
    Saved = false;
    return AddResult::Added;
}

ProjectModel::AddResult ProjectModel::duplicateButton(int source) {
    if (ButtonCount >= kMaxButtons)
        return AddResult::LimitReached;
    ButtonRecord copy = button(source);
    ++ButtonCount;
    button(ButtonCount) = std::move(copy);
    CurrentButton = ButtonCount;
    Saved = false;
    return AddResult::Added;
}

void ProjectModel::removeButton(int index) {
    if (index < 1 || index > ButtonCount)
        return;
    for (int i = index; i < ButtonCount; ++i)
        button(i) = button(i + 1);
    --ButtonCount;
    Saved = false;
}

std::string* ProjectModel::programSlot(ProgramKind kind, int button) {
    switch (kind) {
    case ProgramKind::AppletProgramStart:
        return &AppletProgramStart;
    case ProgramKind::AppletProgramOVER:
        return &AppletProgramOVER;
    case ProgramKind::AppletProgramDOWN:
        return &AppletProgramDOWN;
    case ProgramKind::AppletProgramOUT:
        return &AppletProgramOUT;
    case ProgramKind::ProgramUP:
    case ProgramKind::ProgramOVER:
    case ProgramKind::ProgramDOWN:
        break;
    }
    if (button < 1 || button >= kButtonSlots)
        return nullptr;
    ButtonRecord& b = this->button(button);
    if (kind == ProgramKind::ProgramUP)
        return &b.ProgramUP;
    if (kind == ProgramKind::ProgramOVER)
        return &b.ProgramOVER;
    return &b.ProgramDOWN;
}

const std::string* ProjectModel::programSlot(ProgramKind kind, int button) const {
    return const_cast<ProjectModel*>(this)->programSlot(kind, button);
}

} // namespace orvelin
