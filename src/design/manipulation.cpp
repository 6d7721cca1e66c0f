#include "manipulation.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>

namespace orvelin {

namespace {

constexpr int kInt16Min = std::numeric_limits<std::int16_t>::min();
constexpr int kInt16Max = std::numeric_limits<std::int16_t>::max();

std::int16_t toInt16(long long value) {
    return static_cast<std::int16_t>(std::clamp<long long>(value, kInt16Min, kInt16Max));
}

void storeRect(ButtonRecord& record, const PixelRect& rect) {
    record.x = toInt16(rect.left);
    record.y = toInt16(rect.top);
    record.Width = toInt16(rect.width);
    record.Height = toInt16(rect.height);
}

} // namespace

PixelRect buttonRect(const ProjectModel& model, int index) {
    const ButtonRecord& b = model.button(index);
    return {b.x, b.y, b.Width, b.Height};
}

bool isButtonNumber(const ProjectModel& model, int index) {
    return index >= 1 && index <= model.ButtonCount;
}

int roundPixel(double value) {
    if (!std::isfinite(value))
        return 0;
    const double r = std::nearbyint(value);
    return static_cast<int>(std::clamp(r, double(INT_MIN), double(INT_MAX)));
}

PressOutcome pressOnButton(ProjectModel& model, ButtonList& list, DragState& drag, int number,
                           MouseButton button, bool ctrl, double x, double y) {
    PressOutcome out;
    if (!isButtonNumber(model, number))
        return out;

    if (button != MouseButton::Left) {
        model.CurrentButton = static_cast<std::int16_t>(number);
        list.selectOnly(number);
        out.showProp = true;
        out.placeSizer = number;
        const MoveMenuEnabling menu = moveMenuFor(model);
        out.openMoveMenu = true;
        out.enableBringToFront = menu.bringToFront;
        out.enableSendBack = menu.sendBack;
        return out;
    }

    // The first Ctrl+click while one button is selected starts a group: the button
    // that was current is part of it and must show the marker as well.
    const int previous = model.CurrentButton;
    if (ctrl && list.selectedCount() < 2 && previous != number && isButtonNumber(model, previous) &&
        list.isSelected(previous))
        out.markPrevious = previous;
    model.CurrentButton = static_cast<std::int16_t>(number);

    if (ctrl) {
        if (list.isSelected(number)) {
            list.removeSelection(number);
            out.redrawPressed = number;
        } else {
            list.addSelection(number);
            out.markPressed = number;
        }
    } else {
        // A press on a member of a group keeps the group, so that it can be dragged;
        // the handles still go to the pressed button, because they resize the current one.
        if (!list.isSelected(number))
            list.selectOnly(number);
        out.placeSizer = number;
    }

    drag.dragging = true;
    drag.moved = false;
    drag.grabX = x;
    drag.grabY = roundPixel(y);
    out.showProp = true;
    return out;
}

MoveOutcome moveSelection(ProjectModel& model, const ButtonList& list, int dx, int dy) {
    MoveOutcome out;
    const int current = model.CurrentButton;
    if (!isButtonNumber(model, current))
        return out;

    out.buttons.reserve(static_cast<std::size_t>(list.selectedCount()) + 1);
    out.buttons.push_back(current);
    for (int i = 1; i <= model.ButtonCount; ++i)
        if (i != current && list.isSelected(i))
            out.buttons.push_back(i);

    // Shorten the offset where a record would leave the 16-bit range: clamping each
    // button on its own would squeeze the group.
    long long ddx = dx;
    long long ddy = dy;
    for (int i : out.buttons) {
        const ButtonRecord& b = model.button(i);
        ddx = std::clamp<long long>(ddx, kInt16Min - b.x, kInt16Max - b.x);
        ddy = std::clamp<long long>(ddy, kInt16Min - b.y, kInt16Max - b.y);
    }
    out.dx = static_cast<int>(ddx);
    out.dy = static_cast<int>(ddy);

    for (int i : out.buttons) {
        ButtonRecord& b = model.button(i);
        b.x = static_cast<std::int16_t>(b.x + out.dx);
        b.y = static_cast<std::int16_t>(b.y + out.dy);
    }
    out.moved = true;
    model.Saved = false;
    return out;
}

MoveOutcome dragOnButton(ProjectModel& model, const ButtonList& list, DragState& drag, double x,
                         double y) {
    if (!drag.dragging)
        return {};
    // One offset for the whole group, rounded once, so that every button moves alike.
    const int dx = roundPixel(x - drag.grabX);
    const int dy = roundPixel(y - drag.grabY);
    MoveOutcome out = moveSelection(model, list, dx, dy);
    if (out.moved && (out.dx != 0 || out.dy != 0))
        drag.moved = true;
    return out;
}

MoveOutcome nudgeSelection(ProjectModel& model, const ButtonList& list, NudgeDirection direction,
                           bool shift) {
    const int step = shift ? 10 : 1;
    switch (direction) {
    case NudgeDirection::Left:
        return moveSelection(model, list, -step, 0);
    case NudgeDirection::Right:
        return moveSelection(model, list, step, 0);
    case NudgeDirection::Up:
        return moveSelection(model, list, 0, -step);
    case NudgeDirection::Down:
        return moveSelection(model, list, 0, step);
    }
    return {};
}

ReleaseOutcome releaseOnButton(const ProjectModel& model, const ButtonList& list, DragState& drag,
                               int number) {
    ReleaseOutcome out;
    const bool moved = drag.dragging && drag.moved;
    drag.dragging = false;
    drag.moved = false;
    if (!isButtonNumber(model, number))
        return out;
    if (list.selectedCount() < 2)
        out.placeSizer = number;
    if (model.button(number).noBackGround == 1)
        out.redrawReleased = number;
    if (moved) {
        for (int i = 1; i <= model.ButtonCount; ++i)
            if (i != number && list.isSelected(i) && model.button(i).noBackGround == 1)
                out.redrawMovedTransparent.push_back(i);
    }
    return out;
}

int pressOnSurface(const ProjectModel& model, ButtonList& list, MouseButton button) {
    if (model.ButtonCount < 1 || button == MouseButton::Right)
        return 0;
    list.selectOnly(model.CurrentButton);
    return isButtonNumber(model, model.CurrentButton) ? model.CurrentButton : 0;
}

MoveMenuEnabling moveMenuFor(const ProjectModel& model) {
    return {model.CurrentButton != model.ButtonCount, model.CurrentButton != 1};
}

namespace {

int swapCurrentWith(ProjectModel& model, ButtonList& list, int other) {
    const int current = model.CurrentButton;
    if (!isButtonNumber(model, current) || !isButtonNumber(model, other))
        return 0;
    std::swap(model.button(current), model.button(other));
    model.CurrentButton = static_cast<std::int16_t>(other);
    // The selection follows the button, or the editor would go on editing the one
    // that now lies in its old place.
    list.selectOnly(other);
    model.Saved = false;
    return other;
}

} // namespace

int BringToFront(ProjectModel& model, ButtonList& list) {
    if (!moveMenuFor(model).bringToFront)
        return 0;
    return swapCurrentWith(model, list, model.CurrentButton + 1);
}

int SendBack(ProjectModel& model, ButtonList& list) {
    if (!moveMenuFor(model).sendBack)
        return 0;
    return swapCurrentWith(model, list, model.CurrentButton - 1);
}

PixelPoint sizerPosition(int handle, const PixelRect& b, int w, int h) {
    // Centred on the edge: L + W/2 - w/2, each half in whole pixels as the surface has them.
    const int centreLeft = b.left + b.width / 2 - w / 2;
    const int centreTop = b.top + b.height / 2 - h / 2;
    switch (handle) {
    case SizerBottom:
        return {centreLeft, b.top + b.height + 2};
    case SizerRight:
        return {b.left + b.width + 2, centreTop};
    case SizerTop:
        return {centreLeft, b.top - h - 2};
    case SizerLeft:
        return {b.left - w - 2, centreTop};
    default:
        return {};
    }
}

void pressSizer(SizerState& sizers, int handle, double x, double y) {
    if (handle < 0 || handle >= kSizerCount)
        return;
    sizers.tag[static_cast<std::size_t>(handle)] = kSizerTagDown;
    sizers.grabX = x;
    sizers.grabY = roundPixel(y);
}

ResizeOutcome dragSizer(ProjectModel& model, SizerState& sizers, int handle, PixelPoint handleAt,
                        int w, int h, double x, double y) {
    ResizeOutcome out;
    if (handle < 0 || handle >= kSizerCount ||
        sizers.tag[static_cast<std::size_t>(handle)] != kSizerTagDown)
        return out;
    const int current = model.CurrentButton;
    if (!isButtonNumber(model, current))
        return out;

    PixelRect r = buttonRect(model, current);
    const double dx = x - sizers.grabX;
    const double dy = y - sizers.grabY;
    switch (handle) {
    case SizerBottom:
        r.height = std::max(kSmallestSize, roundPixel(handleAt.y + dy - r.top + 2));
        break;
    case SizerRight:
        r.width = std::max(kSmallestSize, roundPixel(handleAt.x + dx - r.left + 2));
        break;
    case SizerTop: {
        const int newTop = roundPixel(handleAt.y + dy) + h + 2;
        const int newHeight = r.top + r.height - newTop;
        if (newHeight < kSmallestSize)
            return out;
        r.height = newHeight;
        r.top = newTop;
        break;
    }
    case SizerLeft: {
        const int handleLeft = roundPixel(handleAt.x + dx);
        const int newWidth = r.left + r.width - (handleLeft + w + 2);
        if (newWidth < kSmallestSize || handleLeft <= 0)
            return out;
        r.width = newWidth;
        r.left = std::max(kSmallestSize, handleLeft + w + 2);
        break;
    }
    default:
        return out;
    }

    storeRect(model.button(current), r);
    out.rect = buttonRect(model, current);
    out.changed = true;
    model.Saved = false;
    return out;
}

SizerReleaseOutcome releaseSizer(SizerState& sizers, int handle) {
    SizerReleaseOutcome out;
    if (handle < 0 || handle >= kSizerCount)
        return out;
    sizers.tag[static_cast<std::size_t>(handle)] = kSizerTagUp;
    out.updateTransparentButtons = handle == SizerTop || handle == SizerLeft;
    return out;
}

PixelPoint labelAnchor(const ProjectModel& model, int index) {
    const ButtonRecord& b = model.button(index);
    const ButtonState s = model.CurrentState;
    return {b.x + b.labelPosX(s), b.y + b.labelPosY(s)};
}

void pressLabelPositioner(PositionerState& positioner, double x, double y) {
    positioner.dragging = true;
    positioner.grabX = x;
    positioner.grabY = roundPixel(y);
}

LabelMoveOutcome dragLabelPositioner(ProjectModel& model, const ButtonList& list,
                                     PositionerState& positioner, double x, double y) {
    LabelMoveOutcome out;
    const int current = model.CurrentButton;
    if (!positioner.dragging || !isButtonNumber(model, current))
        return out;
    const ButtonState s = model.CurrentState;
    const ButtonRecord& b = model.button(current);
    // Inside the button, so that the positioner never gets lost under another one.
    const int px =
        std::clamp(b.labelPosX(s) + roundPixel(x - positioner.grabX), 0, std::max(0, int(b.Width)));
    const int py = std::clamp(b.labelPosY(s) + roundPixel(y - positioner.grabY), 0,
                              std::max(0, int(b.Height)));
    out.position = {px, py};
    if (px == b.labelPosX(s) && py == b.labelPosY(s) && b.positionText(s) == 1)
        return out;

    for (int i = 1; i <= model.ButtonCount; ++i) {
        if (i != current && !list.isSelected(i))
            continue;
        ButtonRecord& r = model.button(i);
        r.labelPosX(s) = static_cast<std::int16_t>(px);
        r.labelPosY(s) = static_cast<std::int16_t>(py);
        r.positionText(s) = 1;
        if (i == current)
            out.buttons.insert(out.buttons.begin(), i);
        else
            out.buttons.push_back(i);
    }
    model.Saved = false;
    return out;
}

void releaseLabelPositioner(PositionerState& positioner) {
    positioner.dragging = false;
}

} // namespace orvelin
