#include "colorbutton.h"
#include "frmmessage.h"
#include "paintsupport.h"
#include "qtuserinterface.h"
#include "testapplication.h"

#include <QSignalSpy>
#include <QTest>
#include <chrono>
#include <gtest/gtest.h>

using namespace orvelin;

TEST(ProgressWindow, ShowsTitleTextAndPercentWithOneBusyPointer) {
    orvelin::testing::TestApplication();
    QtUserInterface ui;
    ui.hideProgress(); // before any showing: leaves the pointer alone
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ui.showProgress("Please Wait...", "Loading Button # 3 of 4", 75);
    FrmMessage& window = ui.progressWindow();
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.text(), QStringLiteral("Loading Button # 3 of 4"));
    EXPECT_EQ(window.percent(), 75);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);

    // Updates while shown keep one busy pointer, so one hide gives the normal one back.
    ui.showProgress("Please Wait...", "Loading Project...", -1);
    EXPECT_EQ(window.percent(), -1); // no bar
    ui.hideProgress();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    // With a delay, a short operation shows neither the window nor the busy pointer.
    ui.setProgressDelay(std::chrono::hours(1));
    ui.showProgress("Please Wait...", "Loading Button # 1 of 4", 25);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    ui.hideProgress();
}

TEST(ColorButton, ModelColoursKeepRedInTheLowByteAndSettingOneDoesNotReportIt) {
    EXPECT_EQ(colorFromRef(65535), QColor(255, 255, 0));
    EXPECT_EQ(colorToRef(QColor(0x12, 0x34, 0x56)), 0x563412);

    orvelin::testing::TestApplication();
    ColorButton button(QStringLiteral("picFontColor"));
    QSignalSpy chosen(&button, &ColorButton::colourChosen);
    button.setColour(255);
    EXPECT_EQ(button.colour(), 255);
    EXPECT_EQ(chosen.count(), 0);
}
