#include "appletarea.h"
#include "arrangetools.h"
#include "buttonpicture.h"
#include "designinteraction.h"
#include "frmbgoffset.h"
#include "frmdesign.h"
#include "labelpositioner.h"
#include "sizerhandle.h"
#include "surfaceeditorlink.h"
#include "testapplication.h"
#include "textcatalogue.h"
#include "undohistory.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

/// The main editor as the surface sees it; the panel is checked in designer_test.
struct NoEditor : SurfaceEditorLink {
    void showGeometry(int) override {}
};

/// A design window on a green applet with buttons 1..n of 100 by 30 in a row at
/// x = 10, 130, 250 ..., y = 20; button 1 current and selected.
struct Window {
    QApplication& app = orvelin::testing::TestApplication();
    ProjectModel model;
    ButtonList list;
    NoEditor editor;
    FrmDesign design{model, list};
    DesignInteraction interaction{design, model, list, editor};
    std::vector<DocumentChange> notices; ///< what the model announced, in order

    explicit Window(int count) {
        model.notices.listen([this](const DocumentChange& c) { notices.push_back(c); });
        build(count);
    }

    void build(int count) {
        model.BackGround = 0x00FF00;
        for (int i = 1; i <= count; ++i) {
            model.button(i).x = static_cast<std::int16_t>(10 + 120 * (i - 1));
            model.button(i).y = 20;
            model.button(i).Width = 100;
            model.button(i).Height = 30;
            list.append();
        }
        model.ButtonCount = static_cast<std::int16_t>(count);
        model.CurrentButton = count > 0 ? 1 : 0;
        list.selectOnly(1);
        design.appletChanged();
        for (int i = 1; i <= count; ++i)
            design.LoadButton(i);
        design.show();
        if (count > 0)
            design.moveSizer(1);
        QCoreApplication::processEvents();
    }

    ButtonPicture* picture(int i) const { return design.pButtons(i); }
    QPoint pictureAt(int i) const { return picture(i)->pos(); }
    QPoint recordAt(int i) const { return {model.button(i).x, model.button(i).y}; }
    QRgb pixel(int i, int x, int y) const { return picture(i)->picture().pixel(x, y); }

    void click(int i, Qt::KeyboardModifiers keys = {}, Qt::MouseButton b = Qt::LeftButton) {
        QTest::mouseClick(picture(i), b, keys, QPoint(5, 5));
    }
    /// Presses `w` at `grab` and drags the pointer by `delta` in `steps`, always aiming
    /// at the widget where it is at that moment.
    static void drag(QWidget* w, QPoint grab, QPoint delta, int steps = 1) {
        const QPoint start = w->pos() + grab; // in the parent
        QTest::mousePress(w, Qt::LeftButton, {}, grab);
        for (int s = 1; s <= steps; ++s)
            QTest::mouseMove(w, start + delta * s / steps - w->pos());
        QTest::mouseRelease(w, Qt::LeftButton, {}, start + delta - w->pos());
    }
};

} // namespace

TEST(FrmDesign, ShowsOnePicturePerButtonPlacedFromItsRecordInZOrder) {
    Window w(3);
    ASSERT_EQ(w.design.pictureCount(), 3);
    EXPECT_EQ(w.picture(2)->geometry(), QRect(130, 20, 100, 30));
    EXPECT_EQ(w.design.appletArea()->size(), QSize(510, 170));
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(255, 255, 0)); // UP colour 65535, red in the low byte

    w.model.button(3).x = 135; // now overlaps button 2 and lies above it
    w.design.RedrawButton(3, false, false, false);
    EXPECT_EQ(w.design.appletArea()->childAt(200, 30), w.picture(3));
}

TEST(FrmDesign, HandlesAndThePositionerStandWhereTheRecordSays) {
    Window w(1);
    const QPoint b(FrmDesign::kMargin + 10, FrmDesign::kMargin + 20);
    EXPECT_EQ(w.design.picSizer(SizerRight)->pos(), b + QPoint(102, 15 - SizerHandle::kSide / 2));
    w.design.hideMarks();
    EXPECT_FALSE(w.design.picSizer(SizerRight)->isVisible());

    // The label positioner shows only for a positioned label.
    w.design.RedrawButton(1, false, true, false);
    EXPECT_FALSE(w.design.labelPositioner()->isVisible());
    w.model.button(1).PositionTextUP = 1;
    w.model.button(1).LabelPosXUP = 7;
    w.design.RedrawButton(1, false, true, false);
    EXPECT_TRUE(w.design.labelPositioner()->isVisible());
    EXPECT_EQ(w.design.labelPositioner()->centre(), b + QPoint(7, 25));
}

TEST(FrmDesign, TransparentButtonsShowTheBackgroundAndFollowTheSwitch) {
    Window w(1);
    w.model.button(1).noBackGround = 1;
    w.design.UpdateTransparentBtns();
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(0, 255, 0));

    QSignalSpy clicked(&w.design, &FrmDesign::noBackGroundClicked);
    w.design.findChild<QCheckBox*>("chkNoBackGround")->click();
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_TRUE(clicked[0][0].toBool());
    EXPECT_NE(w.pixel(1, 25, 15), qRgb(0, 255, 0));
    EXPECT_EQ(w.pixel(1, 25, 15), w.design.appletArea()->background().pixel(35, 35));
    w.design.setNoBackGround(false);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(0, 255, 0));
}

TEST(FrmDesign, ClosingOnlyHidesUntilTheProgramEnds) {
    Window w(1);
    QSignalSpy unloading(&w.design, &FrmDesign::unloading);
    EXPECT_FALSE(w.design.close());
    EXPECT_FALSE(w.design.isVisible());
    w.design.show();
    w.design.setForceUnload(true);
    EXPECT_TRUE(w.design.close());
    EXPECT_EQ(unloading.count(), 2);
}

TEST(FrmBgOffset, PreviewsLiveAndCancelPutsTheOldOffsetBack) {
    Window w(0);
    w.model.BgOffsetX = 3;
    FrmBgOffset dialog(w.model, &w.design);
    dialog.txtOffsetX()->setValue(-20);
    dialog.txtOffsetY()->setValue(8);
    EXPECT_EQ(w.model.BgOffsetX, -20);
    EXPECT_EQ(w.model.BgOffsetY, 8);
    dialog.reject();
    EXPECT_EQ(w.model.BgOffsetX, 3);
    EXPECT_EQ(w.model.BgOffsetY, 0);
    EXPECT_TRUE(w.model.Saved);

    FrmBgOffset again(w.model);
    again.txtOffsetY()->setValue(12);
    again.accept();
    EXPECT_EQ(w.model.BgOffsetY, 12);
    EXPECT_FALSE(w.model.Saved);
}

TEST(DesignInteraction, RightClickMenuSendsTheButtonBack) {
    Window w(3);
    w.click(3, {}, Qt::RightButton);
    EXPECT_TRUE(w.interaction.mnuMove()->isVisible());
    EXPECT_FALSE(w.interaction.mnuBringToFront()->isEnabled());
    w.model.button(3).LabelUP = "third";
    w.interaction.mnuSendBack()->trigger();
    EXPECT_EQ(w.model.button(2).LabelUP, "third");
    EXPECT_EQ(w.pictureAt(2), QPoint(250, 20)); // the picture stays where its record says
    ASSERT_FALSE(w.notices.empty());
    EXPECT_EQ(w.notices.back().buttons, std::vector<int>({2, 3}));
    EXPECT_TRUE(w.notices.back().selection);
}

TEST(DesignInteraction, HandlesFollowTheCurrentButtonSoAHandleDragResizesByItsDistance) {
    Window w(3);
    w.click(3, Qt::ControlModifier); // button 3 joins the group and becomes current
    Window::drag(w.design.picSizer(SizerRight), QPoint(3, 3), QPoint(5, 0));
    EXPECT_EQ(w.model.button(3).Width, 109); // 100 + 5 + the first step's 4
    EXPECT_EQ(w.model.button(1).Width, 100);
}

TEST(DesignInteraction, AtTwoHundredPercentTheModelMovesByHalfThePointerAndHandlesKeepTheirSize) {
    Window w(1);
    const QRgb corner = w.pixel(1, 99, 29);
    w.design.setZoom(50);
    // The whole button is painted, at half its size: its corner is border, not fill.
    EXPECT_NE(w.pixel(1, 49, 14), w.pixel(1, 25, 8));
    w.design.setZoom(200);
    EXPECT_EQ(w.picture(1)->geometry(), QRect(20, 40, 200, 60));
    EXPECT_EQ(w.pixel(1, 199, 59), corner);
    SizerHandle* bottom = w.design.picSizer(SizerBottom);
    EXPECT_EQ(bottom->geometry(),
              QRect(FrmDesign::kMargin + 120 - SizerHandle::kSide / 2, FrmDesign::kMargin + 102,
                    SizerHandle::kSide, SizerHandle::kSide));

    Window::drag(w.picture(1), QPoint(10, 10), QPoint(40, 26), 3);
    EXPECT_EQ(w.recordAt(1), QPoint(30, 33));
    EXPECT_EQ(w.pictureAt(1), QPoint(60, 66));
    Window::drag(bottom, QPoint(2, 2), QPoint(0, 10));
    EXPECT_EQ(w.model.button(1).Height, 39); // 30 + 10 / 2 + the first step's 4

    w.design.findChild<QAction*>("mnuZoomActual")->trigger();
    EXPECT_EQ(w.picture(1)->geometry(), QRect(30, 33, 100, 39));

    // Ctrl++ is also the main editor's Add Button, shared with this window: here it zooms.
    QAction addButton;
    addButton.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    w.design.addAction(&addButton);
    QSignalSpy added(&addButton, &QAction::triggered);
    w.design.activateWindow();
    QTest::keyClick(&w.design, Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(w.design.zoom().percent(), 125);
    EXPECT_EQ(added.count(), 0);
}

TEST(FrmDesign, ANewLanguageReachesTheTextsItPutsTogetherAndTheSurfaceIsNeverMirrored) {
    Window w(2);
    UndoHistory history(w.model, w.list);
    ArrangeTools arrange(w.design, w.model, w.list, history);
    TextCatalogue other;
    const std::size_t zoomLevel = 12, alignLeft = 4, onCurrent = 15;
    ASSERT_EQ(sectionInfo(TextSection::Design).entries[zoomLevel].control, "#zoomLevel");
    ASSERT_EQ(sectionInfo(TextSection::DesignTools).entries[alignLeft].control, "mnuAlignLeft");
    ASSERT_EQ(sectionInfo(TextSection::DesignTools).entries[onCurrent].control,
              "#arrangeOnCurrent");
    other.set(TextSection::Design, zoomLevel, "%1 %");
    other.set(TextSection::DesignTools, alignLeft, "Links");
    other.set(TextSection::DesignTools, onCurrent, "%1 (am aktuellen)");
    useTexts(&other);
    QApplication::setLayoutDirection(Qt::RightToLeft);
    w.design.retranslate();
    EXPECT_EQ(w.design.findChild<QLabel*>(QStringLiteral("lblZoom"))->text(), "100 %");
    EXPECT_EQ(w.design.findChild<QAction*>(QStringLiteral("mnuZoom50"))->text(), "50 %");
    EXPECT_EQ(arrange.action(QStringLiteral("mnuAlignLeft"))->toolTip(), "Links (am aktuellen)");
    EXPECT_EQ(w.design.surface()->layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(w.design.appletArea()->layoutDirection(), Qt::LeftToRight);
    QApplication::setLayoutDirection(Qt::LeftToRight);
    useTexts(nullptr);
}
