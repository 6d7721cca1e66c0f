#include "appletarea.h"
#include "buttonpicture.h"
#include "frmbgoffset.h"
#include "frmdesign.h"
#include "labelpositioner.h"
#include "sizerhandle.h"
#include "testapplication.h"

#include <QApplication>
#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

QApplication& App() {
    return orvelin::testing::TestApplication();
}

/// A design window over a project of `count` plain buttons side by side.
struct Window {
    ProjectModel model;
    ButtonList list;
    std::unique_ptr<FrmDesign> form;

    explicit Window(int count) {
        App();
        model.AppletWidth = 300;
        model.AppletHeight = 100;
        model.BackGround = 0x00FF00;
        for (int i = 1; i <= count; ++i) {
            ButtonRecord& b = model.Button(i);
            b.x = static_cast<std::int16_t>(10 + 60 * (i - 1));
            b.y = 10;
            b.Width = 50;
            b.Height = 30;
            list.append();
        }
        model.ButtonCount = static_cast<std::int16_t>(count);
        model.CurrentButton = count > 0 ? 1 : 0;
        form = std::make_unique<FrmDesign>(model, list);
        for (int i = 1; i <= count; ++i)
            form->LoadButton(i);
        form->show();
        QCoreApplication::processEvents();
    }

    QRgb pixel(int index, int x, int y) { return form->pButtons(index)->picture().pixel(x, y); }
};

} // namespace

TEST(FrmDesign, ShowsOnePicturePerButtonPlacedFromItsRecordInZOrder) {
    Window w(3);
    EXPECT_EQ(w.form->objectName(), "frmDesign");
    ASSERT_EQ(w.form->pictureCount(), 3);
    EXPECT_EQ(w.form->pButtons(2)->objectName(), "pButtons2");
    EXPECT_EQ(w.form->pButtons(2)->geometry(), QRect(70, 10, 50, 30));
    EXPECT_EQ(w.form->appletArea()->size(), QSize(300, 100));
    // The UP colour (yellow, red in the low byte) is what the picture shows.
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(255, 255, 0));

    w.model.Button(3).x = 75; // now overlaps button 2 and lies above it
    w.form->RedrawButton(3, false, false, false);
    EXPECT_EQ(w.form->appletArea()->childAt(100, 20), w.form->pButtons(3));

    w.form->HideLastButton(3);
    EXPECT_EQ(w.form->pictureCount(), 2);
    w.form->ClearButtons();
    EXPECT_EQ(w.form->pictureCount(), 0);
}

TEST(FrmDesign, MovingAButtonThroughRedrawButtonPaintsItOnce) {
    Window w(1);
    const int before = w.form->paintCount();
    w.model.Button(1).x = 40;
    w.model.Button(1).Width = 70;
    w.form->RedrawButton(1, false, false, false);
    QCoreApplication::processEvents();
    EXPECT_EQ(w.form->paintCount(), before + 1);
    EXPECT_EQ(w.form->pButtons(1)->geometry(), QRect(40, 10, 70, 30));

    // A resize by any other cause paints through the resize path, unless suppressed.
    w.form->pButtons(1)->resize(80, 30);
    EXPECT_EQ(w.form->paintCount(), before + 2);
    w.form->setNoRedrawOnResize(true);
    w.form->pButtons(1)->resize(90, 30);
    w.form->setNoRedrawOnResize(false);
    EXPECT_EQ(w.form->paintCount(), before + 2);
}

TEST(FrmDesign, RedrawFollowsTheEditedStateAndTheSelection) {
    Window w(2);
    w.model.CurrentState = "DOWN";
    w.form->RedrawAll();
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(255, 0, 0));

    w.list.selectOnly(1);
    w.list.addSelection(2);
    w.form->RedrawAll();
    EXPECT_EQ(w.pixel(1, 0, 0), qRgb(0, 0, 0));
    EXPECT_EQ(w.pixel(2, 2, 2), qRgb(255, 255, 255));
}

TEST(FrmDesign, HandlesStandTwoPixelsOutsideEachEdgeCentredOnIt) {
    Window w(1);
    w.form->RedrawButton(1, true, false, false);
    const int m = FrmDesign::kMargin;
    const int s = SizerHandle::kSide;
    const QRect b(m + 10, m + 10, 50, 30);
    ASSERT_TRUE(w.form->picSizer(0)->isVisible());
    EXPECT_EQ(w.form->picSizer(0)->objectName(), "picSizer0");
    EXPECT_EQ(w.form->picSizer(0)->pos(), QPoint(b.x() + 25 - s / 2, b.y() + 30 + 2));
    EXPECT_EQ(w.form->picSizer(1)->pos(), QPoint(b.x() + 50 + 2, b.y() + 15 - s / 2));
    EXPECT_EQ(w.form->picSizer(2)->pos(), QPoint(b.x() + 25 - s / 2, b.y() - s - 2));
    EXPECT_EQ(w.form->picSizer(3)->pos(), QPoint(b.x() - s - 2, b.y() + 15 - s / 2));
    w.form->HideMarks();
    EXPECT_FALSE(w.form->picSizer(0)->isVisible());
}

TEST(FrmDesign, TheLabelPositionerShowsOnlyForAPositionedLabel) {
    Window w(1);
    w.form->RedrawButton(1, false, true, false);
    EXPECT_FALSE(w.form->labelPositioner()->isVisible());
    w.model.Button(1).PositionTextUP = 1;
    w.model.Button(1).LabelPosXUP = 7;
    w.model.Button(1).LabelPosYUP = 20;
    w.form->RedrawButton(1, false, true, false);
    EXPECT_TRUE(w.form->labelPositioner()->isVisible());
    const int m = FrmDesign::kMargin;
    EXPECT_EQ(w.form->labelPositioner()->centre(), QPoint(m + 10 + 7, m + 10 + 20));
}

TEST(FrmDesign, TransparentButtonsShowTheBackgroundAndFollowTheSwitch) {
    Window w(1);
    w.model.Button(1).noBackGround = 1;
    w.form->UpdateTransparentBtns();
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(0, 255, 0));

    QSignalSpy clicked(w.form.get(), &FrmDesign::noBackGroundClicked);
    auto* box = w.form->findChild<QCheckBox*>("chkNoBackGround");
    ASSERT_NE(box, nullptr);
    box->click();
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_TRUE(clicked[0][0].toBool());
    EXPECT_NE(w.pixel(1, 25, 15), qRgb(0, 255, 0));
    EXPECT_EQ(w.pixel(1, 25, 15), w.form->appletArea()->background().pixel(35, 25));

    w.form->setNoBackGround(false);
    EXPECT_EQ(clicked.count(), 1);
    EXPECT_EQ(w.pixel(1, 25, 15), qRgb(0, 255, 0));
}

TEST(FrmDesign, CommandsAreAnnouncedAsSignals) {
    Window w(1);
    QSignalSpy add(w.form.get(), &FrmDesign::btnAddBtnClicked);
    QSignalSpy duplicate(w.form.get(), &FrmDesign::btnDuplicateClicked);
    QSignalSpy remove(w.form.get(), &FrmDesign::btnRemoveClicked);
    QSignalSpy html(w.form.get(), &FrmDesign::btnViewHtmlClicked);
    for (const char* name : {"btnAddBtn", "btnDuplicate", "btnRemove", "btnViewHtml"})
        w.form->findChild<QPushButton*>(name)->click();
    EXPECT_EQ(add.count() + duplicate.count() + remove.count() + html.count(), 4);
    EXPECT_EQ(html.count(), 1);

    QSignalSpy pressed(w.form.get(), &FrmDesign::buttonMouseDown);
    QTest::mousePress(w.form->pButtons(1), Qt::LeftButton, {}, QPoint(5, 6));
    ASSERT_EQ(pressed.count(), 1);
    EXPECT_EQ(pressed[0][0].toInt(), 1);
}

TEST(FrmDesign, ClosingHidesTheWindowUnlessForced) {
    Window w(0);
    QSignalSpy unloading(w.form.get(), &FrmDesign::unloading);
    EXPECT_TRUE(w.form->isVisible());
    EXPECT_FALSE(w.form->close());
    EXPECT_FALSE(w.form->isVisible());
    EXPECT_EQ(unloading.count(), 1);

    w.form->show();
    w.form->setForceUnload(true);
    EXPECT_TRUE(w.form->close());
    EXPECT_EQ(unloading.count(), 2);
}

TEST(FrmBgOffset, PreviewsLiveAndCancelPutsTheOldOffsetBack) {
    Window w(0);
    w.model.BgOffsetX = 3;
    w.model.Saved = true;
    FrmBgOffset dialog(w.model, w.form.get());
    dialog.txtOffsetX()->setValue(-20);
    dialog.txtOffsetY()->setValue(8);
    EXPECT_EQ(w.model.BgOffsetX, -20);
    EXPECT_EQ(w.model.BgOffsetY, 8);
    dialog.reject();
    EXPECT_EQ(w.model.BgOffsetX, 3);
    EXPECT_EQ(w.model.BgOffsetY, 0);
    EXPECT_TRUE(w.model.Saved);

    FrmBgOffset again(w.model, w.form.get());
    again.txtOffsetY()->setValue(12);
    again.accept();
    EXPECT_EQ(w.model.BgOffsetY, 12);
    EXPECT_FALSE(w.model.Saved);
}
