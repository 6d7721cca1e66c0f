#include "appletarea.h"
#include "buttonpicture.h"
#include "designinteraction.h"
#include "frmdesign.h"
#include "labelpositioner.h"
#include "sizerhandle.h"
#include "surfaceeditorlink.h"
#include "testapplication.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

QApplication& App() {
    return orvelin::testing::TestApplication();
}

/// The main editor as the surface sees it: every request is written down.
struct RecordingEditor : SurfaceEditorLink {
    QStringList calls;
    void ShowProp(int index) override { calls << QStringLiteral("prop %1").arg(index); }
    void ShowGeometry(int index) override { calls << QStringLiteral("geometry %1").arg(index); }
    void ShowSelection() override { calls << QStringLiteral("selection"); }
};

/// A design window with buttons 1..n in a row, button 1 current and selected.
struct Window {
    QApplication& app = App();
    ProjectModel model;
    ButtonList list;
    RecordingEditor editor;
    FrmDesign design{model, list};
    DesignInteraction interaction{design, model, list, editor};

    explicit Window(int count) {
        for (int i = 1; i <= count; ++i) {
            model.AddButton(kFactoryDefaultButton);
            model.Button(i).x = static_cast<std::int16_t>(10 + 120 * (i - 1));
            model.Button(i).y = 20;
            model.Button(i).Width = 100;
            model.Button(i).Height = 30;
            list.append();
            design.LoadButton(i);
        }
        model.CurrentButton = 1;
        list.selectOnly(1);
        model.Saved = true;
        design.show();
        design.MoveSizer(1);
    }

    ButtonPicture* picture(int i) const { return design.pButtons(i); }
    QPoint pictureAt(int i) const { return picture(i)->pos(); }
    QPoint recordAt(int i) const { return {model.Button(i).x, model.Button(i).y}; }

    void click(int i, Qt::KeyboardModifiers keys = {}, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mouseClick(picture(i), b, keys, QPoint(5, 5));
    }
    /// Presses button `i` at (5, 5) of its picture and drags the pointer by `delta`, in
    /// steps, always aiming at the picture where it is at that moment.
    void drag(int i, QPoint delta, int steps = 4) {
        ButtonPicture* p = picture(i);
        const QPoint grab(5, 5);
        const QPoint start = p->pos() + grab; // in the applet area
        QTest::mousePress(p, Qt::LeftButton, {}, grab);
        for (int s = 1; s <= steps; ++s)
            QTest::mouseMove(p, start + delta * s / steps - p->pos());
        QTest::mouseRelease(p, Qt::LeftButton, {}, start + delta - p->pos());
    }
    /// Drags handle `h` by `delta` the same way.
    void pull(int h, QPoint delta) {
        SizerHandle* s = design.picSizer(h);
        const QPoint grab(3, 3);
        const QPoint start = s->pos() + grab;
        QTest::mousePress(s, Qt::LeftButton, {}, grab);
        QTest::mouseMove(s, start + delta - s->pos());
        QTest::mouseRelease(s, Qt::LeftButton, {}, start + delta - s->pos());
    }
};

} // namespace

TEST(DesignInteraction, CtrlClicksMakeAGroupThatOneDragMovesTogether) {
    Window w(4);
    w.click(2, Qt::ControlModifier);
    w.click(4, Qt::ControlModifier);
    ASSERT_EQ(w.list.selectedButtons(), std::vector<int>({1, 2, 4}));
    EXPECT_TRUE(w.editor.calls.contains(QStringLiteral("selection")));
    const QPoint one = w.pictureAt(1), two = w.pictureAt(2), three = w.pictureAt(3),
                 four = w.pictureAt(4);

    w.editor.calls.clear();
    w.drag(2, QPoint(37, 51));
    const QPoint moved(37, 51);
    EXPECT_EQ(w.pictureAt(1), one + moved);
    EXPECT_EQ(w.pictureAt(2), two + moved);
    EXPECT_EQ(w.pictureAt(4), four + moved);
    EXPECT_EQ(w.pictureAt(3), three);
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(w.recordAt(i), w.pictureAt(i)) << i;
    EXPECT_EQ(w.model.CurrentButton, 2);
    EXPECT_FALSE(w.model.Saved);
    EXPECT_EQ(w.editor.calls.count(QStringLiteral("geometry 2")), 4); // every step
    // The handles follow the dragged button.
    EXPECT_EQ(w.design.picSizer(SizerBottom)->pos().y(),
              w.pictureAt(2).y() + FrmDesign::kMargin + 30 + 2);
}

TEST(DesignInteraction, RightClickOffersOnlyTheStackingCommandsThatApply) {
    Window w(3);
    w.click(1, {}, Qt::RightButton);
    EXPECT_TRUE(w.interaction.mnuMove()->isVisible());
    EXPECT_TRUE(w.interaction.mnuBringToFront()->isEnabled());
    EXPECT_FALSE(w.interaction.mnuSendBack()->isEnabled());
    w.interaction.mnuMove()->hide();

    w.click(3, {}, Qt::RightButton);
    EXPECT_FALSE(w.interaction.mnuBringToFront()->isEnabled());
    EXPECT_TRUE(w.interaction.mnuSendBack()->isEnabled());
    EXPECT_FALSE(w.interaction.dragState().dragging);

    // Send back: records change places, the pictures stay where the records say.
    w.model.Button(3).LabelUP = "third";
    const QPoint placeOfThree = w.pictureAt(3);
    w.interaction.mnuSendBack()->trigger();
    EXPECT_EQ(w.model.CurrentButton, 2);
    EXPECT_EQ(w.model.Button(2).LabelUP, "third");
    EXPECT_EQ(w.pictureAt(2), placeOfThree);
    EXPECT_EQ(w.list.selectedButtons(), std::vector<int>({2}));
    EXPECT_EQ(w.editor.calls.last(), QStringLiteral("prop 2"));
}

TEST(DesignInteraction, AClickOnTheEmptySurfaceCollapsesTheGroup) {
    Window w(3);
    w.click(2, Qt::ControlModifier);
    w.click(3, Qt::ControlModifier);
    ASSERT_EQ(w.list.selectedCount(), 3);
    const int paintsBefore = w.design.paintCount();
    QTest::mouseClick(w.design.appletArea(), Qt::RightButton, {}, QPoint(400, 120));
    EXPECT_EQ(w.list.selectedCount(), 3);
    QTest::mouseClick(w.design.appletArea(), Qt::LeftButton, {}, QPoint(400, 120));
    EXPECT_EQ(w.list.selectedButtons(), std::vector<int>({3}));
    // The two buttons that left the group lose their marker, the current one too.
    EXPECT_EQ(w.design.paintCount() - paintsBefore, 3);
}

TEST(DesignInteraction, HandlesResizeTheCurrentButtonAndReportOnRelease) {
    Window w(2);
    w.click(2);
    w.editor.calls.clear();
    w.pull(SizerBottom, QPoint(0, 10));
    EXPECT_EQ(w.picture(2)->geometry(), QRect(130, 20, 100, 44)); // 30 + 10 + 4
    EXPECT_EQ(w.model.Button(2).Height, 44);
    EXPECT_EQ(w.design.picSizer(SizerBottom)->tag(), QStringLiteral("Up"));
    EXPECT_EQ(w.editor.calls, QStringList({QStringLiteral("geometry 2")}));

    w.pull(SizerLeft, QPoint(-20, 0));
    EXPECT_EQ(w.picture(2)->geometry(), QRect(110, 20, 120, 44));
    w.pull(SizerTop, QPoint(0, 40)); // height 4: refused
    EXPECT_EQ(w.picture(2)->geometry(), QRect(110, 20, 120, 44));
    EXPECT_FALSE(w.model.Saved);
}

TEST(DesignInteraction, TransparentButtonsArePaintedAgainWhereTheyLand) {
    Window w(2);
    w.model.Button(1).noBackGround = 1;
    int paints = w.design.paintCount();
    w.drag(1, QPoint(15, 0));
    EXPECT_EQ(w.design.paintCount() - paints, 1); // on release, not on every step

    w.click(2);
    paints = w.design.paintCount();
    w.pull(SizerBottom, QPoint(0, 5));
    const int afterBottom = w.design.paintCount();
    EXPECT_EQ(afterBottom - paints, 1); // the resized button only
    w.pull(SizerTop, QPoint(0, -5));
    EXPECT_EQ(w.design.paintCount() - afterBottom, 2); // resized, then the transparent one
}

TEST(DesignInteraction, ArrowKeysMoveTheSelection) {
    Window w(3);
    w.click(3, Qt::ControlModifier);
    const QPoint one = w.pictureAt(1), three = w.pictureAt(3), two = w.pictureAt(2);
    w.design.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&w.design));
    QTest::keyClick(&w.design, Qt::Key_Right);
    QTest::keyClick(&w.design, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(w.pictureAt(1), one + QPoint(1, 10));
    EXPECT_EQ(w.pictureAt(3), three + QPoint(1, 10));
    EXPECT_EQ(w.pictureAt(2), two);
    EXPECT_EQ(w.recordAt(3), w.pictureAt(3));
}

TEST(DesignInteraction, DraggingTheLabelPositionerPlacesTheLabel) {
    Window w(1);
    w.model.Button(1).PositionTextUP = 1;
    w.design.MoveLabelPositioner(1);
    LabelPositioner* p = w.design.labelPositioner();
    ASSERT_TRUE(p->isVisible());
    const QPoint grab(5, 5);
    QTest::mousePress(p, Qt::LeftButton, {}, grab);
    QTest::mouseMove(p, grab + QPoint(-20, -10));
    QTest::mouseRelease(p, Qt::LeftButton, {}, grab);
    EXPECT_EQ(w.model.Button(1).LabelPosXUP, 33);
    EXPECT_EQ(w.model.Button(1).LabelPosYUP, 15);
    EXPECT_EQ(p->centre(),
              w.pictureAt(1) + QPoint(FrmDesign::kMargin + 33, FrmDesign::kMargin + 15));
    EXPECT_EQ(w.editor.calls.last(), QStringLiteral("prop 1"));
}
