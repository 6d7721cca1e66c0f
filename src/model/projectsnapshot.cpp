#include "projectsnapshot.h"

#include "textcatalogue.h"
#include "texthelpers.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace orvelin {

namespace {

// Calls f(name, a's member, b's member) for each applet setting, to name a step.
template <typename F>
void eachAppletSetting(const AppletSettings& a, const AppletSettings& b, F&& f) {
    f(Msg::FieldAppletWidth, a.AppletWidth, b.AppletWidth);
    f(Msg::FieldAppletHeight, a.AppletHeight, b.AppletHeight);
    f(Msg::FieldBehaviour, a.Behaviour, b.Behaviour);
    f(Msg::FieldDownButton, a.DOWNBtn, b.DOWNBtn);
    f(Msg::FieldBackgroundColor, a.BackGround, b.BackGround);
    f(Msg::FieldBackgroundImage, a.BackImg, b.BackImg);
    f(Msg::FieldBackgroundImagePlacement, a.BackImgStyle, b.BackImgStyle);
    f(Msg::FieldAppletProgram, a.AppletProgramOVER, b.AppletProgramOVER);
    f(Msg::FieldAppletProgram, a.AppletProgramDOWN, b.AppletProgramDOWN);
    f(Msg::FieldAppletProgram, a.AppletProgramOUT, b.AppletProgramOUT);
    f(Msg::FieldBackgroundOffset, a.BgOffsetX, b.BgOffsetX);
    f(Msg::FieldBackgroundOffset, a.BgOffsetY, b.BgOffsetY);
    f(Msg::FieldAppletProgram, a.AppletProgramStart, b.AppletProgramStart);
    f(Msg::FieldAppletName, a.AppletName, b.AppletName);
}

// The name a step gives button field `pos`: the per-state triples share one name.
Msg fieldDisplayName(int pos) {
    std::string_view name = buttonFields()[static_cast<std::size_t>(pos)].name;
    for (std::string_view state : {"UP", "OVER", "DOWN"})
        if (name.size() > state.size() && name.ends_with(state)) {
            name.remove_suffix(state.size());
            break;
        }
    static constexpr std::pair<std::string_view, Msg> kNames[] = {
        {"x", Msg::FieldPosition},
        {"y", Msg::FieldPosition},
        {"Width", Msg::FieldSize},
        {"Height", Msg::FieldSize},
        {"Label", Msg::FieldLabel},
        {"URL", Msg::FieldURL},
        {"Status", Msg::FieldStatus},
        {"Target", Msg::FieldTarget},
        {"Border", Msg::FieldBorder},
        {"Hidden", Msg::FieldHidden},
        {"Image", Msg::FieldImage},
        {"Font", Msg::FieldFont},
        {"LabelPosX", Msg::FieldLabelPosition},
        {"LabelPosY", Msg::FieldLabelPosition},
        {"PositionText", Msg::FieldLabelPlacement},
        {"noBackGround", Msg::FieldNoBackground},
        {"ShowHand", Msg::FieldHandCursor},
        {"Snd", Msg::FieldSound},
        {"ImgStyle", Msg::FieldImagePlacement},
        {"BackColor", Msg::FieldBackColor},
        {"FontColor", Msg::FieldFontColor},
        {"FontStyle", Msg::FieldFontStyle},
        {"FontSize", Msg::FieldFontSize},
        {"Program", Msg::FieldActionProgram},
    };
    for (const auto& [field, display] : kNames)
        if (name == field)
            return display;
    return Msg::Count; // a field without a name: the step is "Change Properties"
}

// Every setting, button and free slot's position of `s` into the model.
void restoreAll(const ProjectSnapshot& s, ProjectModel& model);

} // namespace

std::string countedButtons(ButtonStep step, std::size_t n) {
    // Each step's message for one button, followed by the one for several.
    static constexpr std::pair<Msg, Msg> kSteps[] = {
        {Msg::StepAddButton, Msg::StepAddButtons},
        {Msg::StepRemoveButton, Msg::StepRemoveButtons},
        {Msg::StepMoveButton, Msg::StepMoveButtons},
        {Msg::StepResizeButton, Msg::StepResizeButtons},
    };
    const auto [one, several] = kSteps[static_cast<std::size_t>(step)];
    return n == 1 ? texts()[one] : ReplaceAll(texts()[several], "%1", std::to_string(n));
}

bool sameBackground(const AppletSettings& a, const AppletSettings& b) {
    return a.AppletWidth == b.AppletWidth && a.AppletHeight == b.AppletHeight &&
           a.BackGround == b.BackGround && a.BackImg == b.BackImg &&
           a.BackImgStyle == b.BackImgStyle && a.BgOffsetX == b.BgOffsetX &&
           a.BgOffsetY == b.BgOffsetY;
}

ProjectSnapshot makeSnapshot(const ProjectModel& model, const ButtonList& list) {
    ProjectSnapshot s;
    s.applet = model;
    const int count = std::clamp<int>(model.ButtonCount, 0, kMaxButtons);
    s.buttons.assign(model.Buttons.begin() + 1, model.Buttons.begin() + 1 + count);
    for (int i = 0; i < kButtonSlots; ++i)
        s.slotPositions[static_cast<std::size_t>(i)] = {model.button(i).x, model.button(i).y};
    s.currentButton = model.CurrentButton;
    s.selection = list.selectedButtons();
    return s;
}

void restoreSnapshot(const ProjectSnapshot& s, ProjectModel& model, ButtonList& list,
                     const DocumentChange* change) {
    const int count = static_cast<int>(s.buttons.size());
    if (change && !change->countChanged && model.ButtonCount == count) {
        // Only what differs is written back: a group move puts back 101 positions.
        if (change->applet)
            static_cast<AppletSettings&>(model) = s.applet;
        for (int i : change->buttons)
            model.button(i) = s.buttons[static_cast<std::size_t>(i - 1)];
    } else {
        restoreAll(s, model);
    }
    model.CurrentButton = s.currentButton;
    while (list.count() > count)
        list.removeLast();
    while (list.count() < count)
        list.append();
    for (int i = 1; i <= count; ++i)
        list.setSelected(i, std::binary_search(s.selection.begin(), s.selection.end(), i));
}

namespace {

void restoreAll(const ProjectSnapshot& s, ProjectModel& model) {
    static_cast<AppletSettings&>(model) = s.applet;
    const int count = static_cast<int>(s.buttons.size());
    for (int i = 0; i < kButtonSlots; ++i) {
        ButtonRecord& slot = model.button(i);
        if (i >= 1 && i <= count) {
            slot = s.buttons[static_cast<std::size_t>(i - 1)];
        } else {
            slot.x = s.slotPositions[static_cast<std::size_t>(i)].first;
            slot.y = s.slotPositions[static_cast<std::size_t>(i)].second;
        }
    }
    model.ButtonCount = static_cast<std::int16_t>(count);
}

} // namespace

bool sameDocument(const ProjectSnapshot& s, const ProjectModel& model) {
    return model.ButtonCount == static_cast<int>(s.buttons.size()) &&
           static_cast<const AppletSettings&>(model) == s.applet &&
           std::equal(s.buttons.begin(), s.buttons.end(), model.Buttons.begin() + 1);
}

bool sameDocument(const ProjectSnapshot& a, const ProjectSnapshot& b) {
    return a.applet == b.applet && a.buttons == b.buttons;
}

DocumentChange changeBetween(const ProjectSnapshot& before, const ProjectSnapshot& after) {
    DocumentChange change;
    change.applet = before.applet != after.applet;
    change.background = !sameBackground(before.applet, after.applet);
    change.countChanged = before.buttons.size() != after.buttons.size();
    change.countBefore = static_cast<int>(before.buttons.size());
    change.selection =
        before.selection != after.selection || before.currentButton != after.currentButton;
    for (std::size_t i = 0; i < after.buttons.size(); ++i) {
        if (i < before.buttons.size() && before.buttons[i] == after.buttons[i])
            continue;
        change.buttons.push_back(static_cast<int>(i) + 1);
        if (i < before.buttons.size()) {
            ButtonRecord placed = before.buttons[i];
            placed.x = after.buttons[i].x;
            placed.y = after.buttons[i].y;
            if (placed == after.buttons[i])
                change.moved.push_back(static_cast<int>(i) + 1);
        }
    }
    return change;
}

std::string describeChange(const ProjectSnapshot& before, const ProjectSnapshot& after) {
    const std::size_t was = before.buttons.size();
    const std::size_t is = after.buttons.size();
    if (is > was) {
        if (is - was > 1)
            return countedButtons(ButtonStep::Add, is - was);
        // A copy of a button, put elsewhere, is a duplicate.
        ButtonRecord added = after.buttons.back();
        for (const ButtonRecord& b : before.buttons) {
            added.x = b.x;
            added.y = b.y;
            if (added == b)
                return texts()[Msg::StepDuplicateButton];
        }
        return texts()[Msg::StepAddButton];
    }
    if (is < was)
        return countedButtons(ButtonStep::Remove, was - is);

    const DocumentChange change = changeBetween(before, after);
    // The stacking commands move one button to either end of the table.
    const auto found = [&before](const ButtonRecord& r) {
        return std::find(before.buttons.begin(), before.buttons.end(), r) != before.buttons.end();
    };
    if (change.buttons.size() >= 2 && !change.applet) {
        if (change.buttons.back() == static_cast<int>(is) && found(after.buttons.back()))
            return texts()[Msg::StepBringToFront];
        if (change.buttons.front() == 1 && found(after.buttons.front()))
            return texts()[Msg::StepSendToBack];
    }

    std::set<Msg> names;
    eachAppletSetting(before.applet, after.applet,
                      [&names](Msg name, const auto& a, const auto& b) {
                          if (a != b)
                              names.insert(name);
                      });
    for (int index : change.buttons) {
        const ButtonRecord& a = before.buttons[static_cast<std::size_t>(index - 1)];
        const ButtonRecord& b = after.buttons[static_cast<std::size_t>(index - 1)];
        for (int pos = 0; pos < kButtonFieldCount; ++pos)
            if (fieldText(a, pos) != fieldText(b, pos))
                names.insert(fieldDisplayName(pos));
    }
    const std::size_t n = change.buttons.size();
    const auto only = [&names](std::initializer_list<Msg> allowed) {
        return !names.empty() && std::all_of(names.begin(), names.end(), [&](const auto& name) {
            return std::find(allowed.begin(), allowed.end(), name) != allowed.end();
        });
    };
    if (only({Msg::FieldPosition}))
        return countedButtons(ButtonStep::Move, n);
    if (only({Msg::FieldPosition, Msg::FieldSize}))
        return countedButtons(ButtonStep::Resize, n);
    if (only({Msg::FieldLabelPosition, Msg::FieldLabelPlacement}))
        return texts()[Msg::StepPlaceLabel];
    if (names.size() == 1 && *names.begin() != Msg::Count)
        return ReplaceAll(texts()[Msg::StepChange], "%1", texts()[*names.begin()]);
    return texts()[Msg::StepChangeProperties];
}

} // namespace orvelin
