#include "projectsnapshot.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace orvelin {

namespace {

// Calls f(name, a's member, b's member) for each applet setting, to name a step.
template <typename F>
void eachAppletSetting(const AppletSettings& a, const AppletSettings& b, F&& f) {
    f("Applet Width", a.AppletWidth, b.AppletWidth);
    f("Applet Height", a.AppletHeight, b.AppletHeight);
    f("Behaviour", a.Behaviour, b.Behaviour);
    f("DOWN Button", a.DOWNBtn, b.DOWNBtn);
    f("Background Color", a.BackGround, b.BackGround);
    f("Background Image", a.BackImg, b.BackImg);
    f("Background Image Placement", a.BackImgStyle, b.BackImgStyle);
    f("Applet Program", a.AppletProgramOVER, b.AppletProgramOVER);
    f("Applet Program", a.AppletProgramDOWN, b.AppletProgramDOWN);
    f("Applet Program", a.AppletProgramOUT, b.AppletProgramOUT);
    f("Background Offset", a.BgOffsetX, b.BgOffsetX);
    f("Background Offset", a.BgOffsetY, b.BgOffsetY);
    f("Applet Program", a.AppletProgramStart, b.AppletProgramStart);
    f("Applet Name", a.AppletName, b.AppletName);
}

// The name a step gives button field `pos`: the per-state triples share one name.
std::string fieldDisplayName(int pos) {
    std::string_view name = buttonFields()[static_cast<std::size_t>(pos)].name;
    for (std::string_view state : {"UP", "OVER", "DOWN"})
        if (name.size() > state.size() && name.ends_with(state)) {
            name.remove_suffix(state.size());
            break;
        }
    static const std::pair<std::string_view, const char*> kNames[] = {
        {"x", "Position"},
        {"y", "Position"},
        {"Width", "Size"},
        {"Height", "Size"},
        {"LabelPosX", "Label Position"},
        {"LabelPosY", "Label Position"},
        {"PositionText", "Label Placement"},
        {"noBackGround", "No Background"},
        {"ShowHand", "Hand Cursor"},
        {"Snd", "Sound"},
        {"ImgStyle", "Image Placement"},
        {"BackColor", "Back Color"},
        {"FontColor", "Font Color"},
        {"FontStyle", "Font Style"},
        {"FontSize", "Font Size"},
        {"Program", "Action Program"},
    };
    for (const auto& [field, display] : kNames)
        if (name == field)
            return display;
    return std::string(name);
}

// Every setting, button and free slot's position of `s` into the model.
void restoreAll(const ProjectSnapshot& s, ProjectModel& model);

} // namespace

std::string countedButtons(const char* verb, std::size_t n) {
    return n == 1 ? std::string(verb) + " Button"
                  : std::string(verb) + " " + std::to_string(n) + " Buttons";
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
            return countedButtons("Add", is - was);
        // A copy of a button, put elsewhere, is a duplicate.
        ButtonRecord added = after.buttons.back();
        for (const ButtonRecord& b : before.buttons) {
            added.x = b.x;
            added.y = b.y;
            if (added == b)
                return "Duplicate Button";
        }
        return "Add Button";
    }
    if (is < was)
        return countedButtons("Remove", was - is);

    const DocumentChange change = changeBetween(before, after);
    // The stacking commands move one button to either end of the table.
    const auto found = [&before](const ButtonRecord& r) {
        return std::find(before.buttons.begin(), before.buttons.end(), r) != before.buttons.end();
    };
    if (change.buttons.size() >= 2 && !change.applet) {
        if (change.buttons.back() == static_cast<int>(is) && found(after.buttons.back()))
            return "Bring to Front";
        if (change.buttons.front() == 1 && found(after.buttons.front()))
            return "Send to Back";
    }

    std::set<std::string> names;
    eachAppletSetting(before.applet, after.applet,
                      [&names](const char* name, const auto& a, const auto& b) {
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
    const auto only = [&names](std::initializer_list<const char*> allowed) {
        return !names.empty() && std::all_of(names.begin(), names.end(), [&](const auto& name) {
            return std::find(allowed.begin(), allowed.end(), name) != allowed.end();
        });
    };
    if (only({"Position"}))
        return countedButtons("Move", n);
    if (only({"Position", "Size"}))
        return countedButtons("Resize", n);
    if (only({"Label Position", "Label Placement"}))
        return "Place Label";
    if (names.size() == 1)
        return "Change " + *names.begin();
    return "Change Properties";
}

} // namespace orvelin
