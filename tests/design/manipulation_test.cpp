#include "manipulation.h"

#include <gtest/gtest.h>

using namespace orvelin;
using Ints = std::vector<int>;

namespace {

/// A surface of `count` buttons at distinct places, button 1 current and selected.
struct Surface {
    ProjectModel model;
    ButtonList list;
    DragState drag;

    explicit Surface(int count) {
        for (int i = 1; i <= count; ++i) {
            model.button(i).x = static_cast<std::int16_t>(10 + 30 * i + (i % 2));
            model.button(i).y = static_cast<std::int16_t>(5 + 7 * i);
            list.append();
        }
        model.ButtonCount = static_cast<std::int16_t>(count);
        model.CurrentButton = count > 0 ? 1 : 0;
        list.selectOnly(1);
    }
    PressOutcome press(int n, MouseButton b = MouseButton::Left, bool ctrl = false, double x = 5,
                       double y = 5) {
        return pressOnButton(model, list, drag, n, b, ctrl, x, y);
    }
    bool drag_to(double x, double y) { return dragOnButton(model, list, drag, x, y).moved; }
    PixelPoint at(int n) const { return {model.button(n).x, model.button(n).y}; }
};

/// One current, selected button of the given geometry, with handles of 7 by 7.
struct Sizing {
    Surface s{1};
    SizerState sizers;

    explicit Sizing(PixelRect r) {
        ButtonRecord& b = s.model.button(1);
        b.x = static_cast<std::int16_t>(r.left);
        b.y = static_cast<std::int16_t>(r.top);
        b.Width = static_cast<std::int16_t>(r.width);
        b.Height = static_cast<std::int16_t>(r.height);
    }
    /// Presses `handle` at (3, 3) of its own, moves the pointer by (dx, dy), releases.
    bool pull(int handle, double dx, double dy) {
        const PixelPoint at = sizerPosition(handle, rect(), 7, 7);
        pressSizer(sizers, handle, 3, 3);
        const bool changed = dragSizer(s.model, sizers, handle, at, 7, 7, 3 + dx, 3 + dy).changed;
        releaseSizer(sizers, handle);
        return changed;
    }
    PixelRect rect() const { return buttonRect(s.model, 1); }
};

} // namespace

TEST(PressOnButton, PlainClickSelectsAloneButKeepsAGroupItBelongsTo) {
    Surface s(4);
    s.list.addSelection(3);
    s.press(2, MouseButton::Left, false, 12.75, 8.5);
    EXPECT_EQ(s.model.CurrentButton, 2);
    EXPECT_EQ(s.list.selectedButtons(), Ints({2}));
    EXPECT_TRUE(s.drag.dragging);
    EXPECT_DOUBLE_EQ(s.drag.grabX, 12.75); // X kept as delivered, Y rounded
    EXPECT_EQ(s.drag.grabY, 8);

    s.list.addSelection(4);
    s.press(4);
    EXPECT_EQ(s.list.selectedButtons(), Ints({2, 4}));
    EXPECT_EQ(s.model.CurrentButton, 4);
}

TEST(PressOnButton, CtrlClickAddsRemovesAndMarksThePreviouslyCurrentButton) {
    Surface s(4);
    const PressOutcome add = s.press(3, MouseButton::Left, true);
    EXPECT_EQ(s.list.selectedButtons(), Ints({1, 3}));
    EXPECT_EQ(add.markPrevious, 1);
    EXPECT_EQ(s.model.CurrentButton, 3);
    // The group exists now: the next Ctrl+click marks only the added button.
    EXPECT_EQ(s.press(4, MouseButton::Left, true).markPrevious, 0);

    s.press(3, MouseButton::Left, true);
    EXPECT_EQ(s.list.selectedButtons(), Ints({1, 4}));
    EXPECT_EQ(s.model.CurrentButton, 3);
}

TEST(PressOnButton, RightClickSelectsAloneAndEnablesTheStackingCommandsThatApply) {
    Surface s(3);
    s.list.addSelection(3);
    const PressOutcome first = s.press(1, MouseButton::Right);
    EXPECT_TRUE(first.openMoveMenu && first.enableBringToFront && !first.enableSendBack);
    EXPECT_EQ(s.list.selectedButtons(), Ints({1}));
    EXPECT_FALSE(s.drag.dragging);

    const PressOutcome last = s.press(3, MouseButton::Right);
    EXPECT_TRUE(!last.enableBringToFront && last.enableSendBack);

    const PressOutcome middle = s.press(2, MouseButton::Middle);
    EXPECT_TRUE(middle.openMoveMenu && middle.enableBringToFront && middle.enableSendBack);
}

TEST(DragOnButton, AGroupDragKeepsRelativePositionsAndLeavesOthersAlone) {
    Surface s(5);
    s.list.addSelection(3);
    s.list.addSelection(4);
    const PixelPoint before1 = s.at(1), before2 = s.at(2), before3 = s.at(3), before4 = s.at(4);
    EXPECT_FALSE(s.drag_to(50, 50)); // not without a press
    s.press(3, MouseButton::Left, false, 10, 10);

    // Half-pixel offsets over buttons of odd and even left: rounding each button on its
    // own would pull the group apart.
    const MoveOutcome out = dragOnButton(s.model, s.list, s.drag, 17.5, 4.5);
    EXPECT_EQ(out.buttons, Ints({3, 1, 4}));
    ASSERT_TRUE(s.drag_to(10.5, 13.5));
    const int dx = s.at(3).x - before3.x, dy = s.at(3).y - before3.y;
    EXPECT_NE(dx, 0);
    EXPECT_EQ(s.at(1), (PixelPoint{before1.x + dx, before1.y + dy}));
    EXPECT_EQ(s.at(4), (PixelPoint{before4.x + dx, before4.y + dy}));
    EXPECT_EQ(s.at(2), before2);
    EXPECT_FALSE(s.model.Saved);
}

TEST(NudgeSelection, ArrowsMoveTheSelectionOnePixelOrTenWithShift) {
    Surface s(3);
    s.list.addSelection(3);
    const PixelPoint one = s.at(1), two = s.at(2), three = s.at(3);
    nudgeSelection(s.model, s.list, NudgeDirection::Right, false);
    nudgeSelection(s.model, s.list, NudgeDirection::Down, true);
    nudgeSelection(s.model, s.list, NudgeDirection::Up, false);
    nudgeSelection(s.model, s.list, NudgeDirection::Left, true);
    EXPECT_EQ(s.at(1), (PixelPoint{one.x - 9, one.y + 9}));
    EXPECT_EQ(s.at(3), (PixelPoint{three.x - 9, three.y + 9}));
    EXPECT_EQ(s.at(2), two);
    EXPECT_FALSE(s.model.Saved);

    Surface none(0);
    EXPECT_FALSE(nudgeSelection(none.model, none.list, NudgeDirection::Right, false).moved);
    EXPECT_TRUE(none.model.Saved);
}

TEST(PressOnSurface, ALeftClickCollapsesAGroupToTheCurrentButtonARightClickNot) {
    Surface s(4);
    s.press(2);
    s.press(3, MouseButton::Left, true);
    s.press(4, MouseButton::Left, true);
    EXPECT_EQ(pressOnSurface(s.model, s.list, MouseButton::Right), 0);
    EXPECT_EQ(s.list.selectedCount(), 3);
    EXPECT_EQ(pressOnSurface(s.model, s.list, MouseButton::Left), 4);
    EXPECT_EQ(s.list.selectedButtons(), Ints({4}));

    Surface empty(0);
    EXPECT_EQ(pressOnSurface(empty.model, empty.list, MouseButton::Left), 0);
}

TEST(Stacking, SwapsWithTheNeighbourFollowsTheButtonAndStopsAtTheEnds) {
    Surface s(3);
    s.press(2, MouseButton::Right);
    const ButtonRecord one = s.model.button(1), two = s.model.button(2), three = s.model.button(3);
    EXPECT_EQ(BringToFront(s.model, s.list), 3);
    EXPECT_EQ(s.model.button(3), two);
    EXPECT_EQ(s.model.button(2), three);
    EXPECT_EQ(s.model.CurrentButton, 3);
    EXPECT_EQ(s.list.selectedButtons(), Ints({3}));
    EXPECT_FALSE(s.model.Saved);
    EXPECT_EQ(BringToFront(s.model, s.list), 0);

    s.press(2, MouseButton::Right);
    EXPECT_EQ(SendBack(s.model, s.list), 1);
    EXPECT_EQ(s.model.button(1), three);
    EXPECT_EQ(s.model.button(2), one);
    EXPECT_EQ(s.model.CurrentButton, 1);
    EXPECT_EQ(SendBack(s.model, s.list), 0);
    EXPECT_EQ(s.model.button(1), three);
}

TEST(DragSizer, TheTopHandleRefusesAHeightOfFourWhileTheBottomOneClampsAtFive) {
    Sizing top({40, 60, 50, 6});
    EXPECT_FALSE(top.pull(SizerTop, 0, 2)); // 6 - 2 = 4
    EXPECT_EQ(top.rect(), (PixelRect{40, 60, 50, 6}));
    EXPECT_TRUE(top.s.model.Saved);
    ASSERT_TRUE(top.pull(SizerTop, 3, 1));             // X plays no part
    EXPECT_EQ(top.rect(), (PixelRect{40, 61, 50, 5})); // the bottom edge stays at 66
    EXPECT_FALSE(top.s.model.Saved);

    Sizing bottom({40, 60, 50, 6});
    ASSERT_TRUE(bottom.pull(SizerBottom, 0, -7)); // would be 3
    EXPECT_EQ(bottom.rect(), (PixelRect{40, 60, 50, 5}));

    // The first pull of the bottom or right handle adds four pixels.
    Sizing b({10, 10, 107, 40});
    b.pull(SizerBottom, 0, 0);
    EXPECT_EQ(b.rect(), (PixelRect{10, 10, 107, 44}));
    b.pull(SizerBottom, 0, 3);
    EXPECT_EQ(b.rect(), (PixelRect{10, 10, 107, 51}));
    b.pull(SizerRight, -10, 0);
    EXPECT_EQ(b.rect(), (PixelRect{10, 10, 101, 51}));
    b.pull(SizerRight, -200, 0);
    EXPECT_EQ(b.rect().width, 5);
}

TEST(DragSizer, TheLeftHandleRefusesALeftOfZeroOrLessAndAWidthBelowFive) {
    Sizing l({20, 10, 40, 30});              // handle left = 20 - 7 - 2 = 11
    EXPECT_FALSE(l.pull(SizerLeft, -11, 0)); // handle left 0
    EXPECT_FALSE(l.pull(SizerLeft, -15, 0));
    EXPECT_EQ(l.rect(), (PixelRect{20, 10, 40, 30}));
    ASSERT_TRUE(l.pull(SizerLeft, -10, 0)); // handle left 1
    EXPECT_EQ(l.rect(), (PixelRect{10, 10, 50, 30}));
    EXPECT_FALSE(l.pull(SizerLeft, 47, 0)); // width 3
    ASSERT_TRUE(l.pull(SizerLeft, 45, 0));  // width 5
    EXPECT_EQ(l.rect(), (PixelRect{55, 10, 5, 30}));
}

TEST(LabelPositioner, DraggingSetsTheEditedStatesPositionAndTurnsCenteringOff) {
    Surface s(3);
    s.model.CurrentState = ButtonState::OVER;
    s.list.addSelection(2);
    PositionerState p;
    pressLabelPositioner(p, 2, 2);
    const LabelMoveOutcome out = dragLabelPositioner(s.model, s.list, p, 12, -8);
    EXPECT_EQ(out.buttons, Ints({1, 2}));
    EXPECT_EQ(out.position, (PixelPoint{63, 21}));
    for (int i : {1, 2}) {
        const ButtonRecord& b = s.model.button(i);
        EXPECT_EQ(b.LabelPosXOVER, 63);
        EXPECT_EQ(b.LabelPosYOVER, 21);
        EXPECT_EQ(b.PositionTextOVER, 1);
        EXPECT_EQ(b.PositionTextUP, 0); // other states untouched
        EXPECT_EQ(b.LabelPosYUP, 25);
    }
    EXPECT_EQ(s.model.button(3).PositionTextOVER, 0);
    EXPECT_FALSE(s.model.Saved);

    // It stays inside the button and does nothing unless held.
    dragLabelPositioner(s.model, s.list, p, 500, -500);
    EXPECT_EQ(labelAnchor(s.model, 1), (PixelPoint{41 + 107, 12}));
    releaseLabelPositioner(p);
    EXPECT_TRUE(dragLabelPositioner(s.model, s.list, p, -50, 0).buttons.empty());
}
