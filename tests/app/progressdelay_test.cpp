#include "frmmessage.h"
#include "qtuserinterface.h"
#include "testapplication.h"

#include <QApplication>
#include <QTest>
#include <chrono>
#include <gtest/gtest.h>

using namespace orvelin;
using std::chrono::milliseconds;

TEST(ProgressDelay, TheWindowWaitsForAnOperationToOutlastIt) {
    orvelin::testing::TestApplication();
    QtUserInterface ui;
    ui.setProgressDelay(milliseconds(40));
    ui.showProgress("Please Wait...", "Loading Button # 1 of 4", 25);
    EXPECT_FALSE(ui.progressWindow().isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "no busy pointer yet either";

    QTest::qSleep(60);
    ui.showProgress("Please Wait...", "Loading Button # 2 of 4", 50);
    EXPECT_TRUE(ui.progressWindow().isVisible());
    EXPECT_EQ(ui.progressWindow().text(), QStringLiteral("Loading Button # 2 of 4"));
    EXPECT_EQ(ui.progressWindow().percent(), 50);
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    ui.hideProgress();
    EXPECT_FALSE(ui.progressWindow().isVisible());
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);

    ui.showProgress("Please Wait...", "Loading Project...", -1); // the next one waits afresh
    EXPECT_FALSE(ui.progressWindow().isVisible());
    ui.hideProgress();
}
