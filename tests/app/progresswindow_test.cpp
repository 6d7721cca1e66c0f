#include "colorbutton.h"
#include "frmmessage.h"
#include "paintsupport.h"
#include "qtuserinterface.h"
#include "startupprobe.h"
#include "testapplication.h"

#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
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

TEST(StartupProbe, GoesIdleOnceEveryWatchedWindowIsShown) {
    orvelin::testing::TestApplication();
    QMainWindow first, second;
    first.setObjectName(QStringLiteral("first"));
    second.setObjectName(QStringLiteral("second"));
    StartupProbe probe;
    probe.watch(&first);
    probe.watch(&second);
    QSignalSpy idle(&probe, &StartupProbe::idle);
    probe.start();
    first.show();
    QTest::qWait(50);
    EXPECT_EQ(idle.count(), 0) << "the second window is not shown yet";
    second.show();
    EXPECT_TRUE(idle.wait(5000));
    EXPECT_EQ(probe.exposed(), (QStringList{QStringLiteral("first"), QStringLiteral("second")}));
    QTest::qWait(20);
    EXPECT_EQ(idle.count(), 1);
}
