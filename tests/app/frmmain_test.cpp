#include "frmmain.h"
#include "mainmenus.h"
#include "mainwindowfixture.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <algorithm>
#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::kExample;
using orvelin::testing::MainWindow;

TEST(MainWindow, StartsWithOneSelectedButtonAndTheProgramCaption) {
    MainWindow w;
    EXPECT_EQ(w.window->objectName(), QStringLiteral("frmMain"));
    EXPECT_EQ(w.window->windowTitle(), QStringLiteral("Orvelin 1.0  Beta 6"));
    ASSERT_EQ(w.buttons()->count(), 1);
    EXPECT_EQ(w.buttons()->item(0)->text(), QStringLiteral("Button 1"));
    EXPECT_TRUE(w.buttons()->item(0)->isSelected());
    EXPECT_EQ(w.find<QLabel>("lblProperties")->text(), QStringLiteral("Properties for Button # 1"));
    EXPECT_EQ(w.field("txtWidth")->text(), QStringLiteral("107"));
    EXPECT_EQ(w.find<QComboBox>("lsTarget")->currentText(), QStringLiteral("_self"));
    EXPECT_EQ(w.find<QPushButton>("btnSetAction")->text(),
              QStringLiteral("Set Action: On Leaving Button..."));
    EXPECT_TRUE(w.model.Saved);
}

TEST(MainWindow, CaptionAndRecentMenuNameTheProjectFromTheCommandLine) {
    MainWindow w("\"" + kExample + "\"");
    EXPECT_EQ(w.window->windowTitle().toStdString(), "Orvelin 1.0  Beta 6 " + kExample);
    EXPECT_EQ(w.buttons()->count(), w.model.ButtonCount);
    EXPECT_GT(w.model.ButtonCount, 1);
    QAction* recent = w.action("mnuFile1");
    EXPECT_TRUE(recent->isVisible());
    EXPECT_EQ(recent->text().toStdString(), kExample);
    EXPECT_FALSE(w.action("mnuFile2")->isVisible());
    EXPECT_EQ(w.field("txtAppletWidth")->text().toInt(), w.model.AppletWidth);
}

TEST(MainWindow, AnOpenedProjectReachesTheDesignSurfaceAppletFirst) {
    MainWindow w(kExample);
    // After the start-up button is cleared away, the surface must learn the applet's
    // size, background and folder before the project's buttons come.
    const auto& calls = w.design.calls;
    const auto cleared = std::find(calls.begin(), calls.end(), "ClearButtons");
    const auto applet = std::find(cleared, calls.end(), "AppletChanged");
    ASSERT_NE(applet, calls.end());
    EXPECT_EQ(std::find(cleared, applet, "LoadButton 1"), applet);
    EXPECT_NE(std::find(applet, calls.end(), "LoadButton 1"), calls.end());

    w.design.clear();
    w.action("mnuNew")->trigger(); // the background image goes with the old project
    EXPECT_EQ(w.design.count("AppletChanged"), 1);
}

TEST(MainWindow, RecentEntryShowsAnAmpersandInThePathAsItself) {
    MainWindow w;
    w.window->SetRecentEntry(2, "/home/a&b/p.orv", true);
    EXPECT_EQ(w.action("mnuFile2")->text(), QStringLiteral("/home/a&&b/p.orv"));
}

TEST(MainWindow, TypedPositionReachesTheSelectedButtonsThroughTheCore) {
    MainWindow w;
    w.design.clear();
    w.type("txtX", QStringLiteral("42"));
    EXPECT_EQ(w.model.Button(1).x, 42);
    EXPECT_FALSE(w.model.Saved);
    EXPECT_FALSE(w.design.redrawn.empty());
    EXPECT_EQ(w.design.redrawn.back(), 1);

    w.type("txtY", QStringLiteral("abc"));
    EXPECT_EQ(w.model.Button(1).y, 0);
}

TEST(MainWindow, FontSizeInStateOverChangesOnlyThatFieldOfEverySelectedButton) {
    MainWindow w;
    w.addButtons(3); // buttons 1 to 4, button 4 current
    const ButtonRecord untouched = w.model.Button(1);
    QListWidget* list = w.buttons();
    list->clearSelection();
    for (int row : {1, 2, 3})
        list->item(row)->setSelected(true);
    EXPECT_EQ(w.list.selectedButtons(), (std::vector<int>{2, 3, 4}));

    QTest::mouseClick(w.find<QPushButton>("btnOVER"), Qt::LeftButton);
    EXPECT_EQ(w.model.CurrentState, "OVER");
    w.find<QComboBox>("lsFontSize")->setEditText(QStringLiteral("18"));
    for (int i : {2, 3, 4}) {
        EXPECT_EQ(w.model.Button(i).FontSizeOVER, 18) << i;
        EXPECT_EQ(w.model.Button(i).FontSizeUP, 10) << i;
        EXPECT_EQ(w.model.Button(i).FontSizeDOWN, 10) << i;
    }
    EXPECT_EQ(w.model.Button(1), untouched);
}

TEST(MainWindow, ShowingAnotherButtonWritesNothingBack) {
    MainWindow w;
    w.addButtons(1);
    ButtonRecord& second = w.model.Button(2);
    second.x = 200;
    second.LabelUP = "Second";
    second.FontColorUP = 255;
    second.Border = 0;
    second.PositionTextUP = 1;
    w.model.Saved = true;
    const ButtonRecord first = w.model.Button(1);
    const ButtonRecord secondBefore = second;

    w.buttons()->setCurrentRow(0); // every control changes to button 1's values
    EXPECT_EQ(w.model.CurrentButton, 1);
    EXPECT_EQ(w.field("txtX")->text(), QStringLiteral("0"));
    w.buttons()->setCurrentRow(1);
    EXPECT_EQ(w.field("txtLabel")->text(), QStringLiteral("Second"));
    EXPECT_TRUE(w.find<QCheckBox>("chkPositionText")->isChecked());
    EXPECT_FALSE(w.find<QCheckBox>("chkBorder")->isChecked());

    EXPECT_EQ(w.model.Button(1), first);
    EXPECT_EQ(w.model.Button(2), secondBefore);
    EXPECT_TRUE(w.model.Saved);
}

TEST(MainWindow, PositionTextUncoversTheLabelPositionAndClearsCenterText) {
    MainWindow w;
    w.showActive();
    QCheckBox* center = w.find<QCheckBox>("chkCenterText");
    QCheckBox* position = w.find<QCheckBox>("chkPositionText");
    EXPECT_TRUE(center->isChecked());
    EXPECT_FALSE(w.field("txtLabelPosX")->isEnabled());

    QTest::mouseClick(position, Qt::LeftButton);
    EXPECT_EQ(w.model.Button(1).PositionTextUP, 1);
    EXPECT_FALSE(center->isChecked());
    EXPECT_TRUE(w.field("txtLabelPosX")->isEnabled());
    EXPECT_EQ(w.field("txtLabelPosY")->text(), QStringLiteral("25"));

    QTest::mouseClick(center, Qt::LeftButton);
    EXPECT_EQ(w.model.Button(1).PositionTextUP, 0);
    EXPECT_FALSE(position->isChecked());
}

TEST(MainWindow, StateButtonsRetitleTheActionCommand) {
    MainWindow w;
    w.model.Button(1).LabelDOWN = "Pressed";
    QTest::mouseClick(w.find<QPushButton>("btnDOWN"), Qt::LeftButton);
    EXPECT_EQ(w.model.CurrentState, "DOWN");
    EXPECT_EQ(w.find<QPushButton>("btnSetAction")->text(),
              QStringLiteral("Set Action: On Button Press..."));
    EXPECT_EQ(w.field("txtLabel")->text(), QStringLiteral("Pressed"));
    EXPECT_TRUE(w.find<QPushButton>("btnDOWN")->isChecked());
}

TEST(MainWindow, AppletSizeIsStoredOnTypingAndAppliedOnEnter) {
    MainWindow w;
    w.design.clear();
    w.type("txtAppletWidth", QStringLiteral("600"));
    EXPECT_EQ(w.model.AppletWidth, 600);
    EXPECT_EQ(w.design.count("AppletChanged"), 0);
    QTest::keyClick(w.field("txtAppletWidth"), Qt::Key_Return);
    EXPECT_EQ(w.design.count("AppletChanged"), 1);
}

TEST(MainWindow, BehaviourChoiceWritesTheProject) {
    MainWindow w;
    QTest::mouseClick(w.find<QWidget>("imgRadioBtn"), Qt::LeftButton);
    EXPECT_EQ(w.model.Behaviour, 1);
    QTest::mouseClick(w.find<QWidget>("imgPushBtn"), Qt::LeftButton);
    EXPECT_EQ(w.model.Behaviour, 0);
}

TEST(MainWindow, DeleteRemovesTheCurrentButtonButNotTheTextBeingEdited) {
    MainWindow w;
    w.addButtons(2);
    w.showActive();
    w.buttons()->setFocus();
    QTest::keyClick(w.buttons(), Qt::Key_Delete);
    EXPECT_EQ(w.model.ButtonCount, 2);
    EXPECT_EQ(w.buttons()->count(), 2);
    EXPECT_EQ(w.design.count("HideLastButton 3"), 1);

    QLineEdit* label = w.field("txtLabel");
    label->setFocus();
    label->setText(QStringLiteral("ab"));
    label->setCursorPosition(0);
    QTest::keyClick(label, Qt::Key_Delete);
    EXPECT_EQ(label->text(), QStringLiteral("b"));
    EXPECT_EQ(w.model.ButtonCount, 2);
}

TEST(MainWindow, FileKeysAreTheOnesADesktopUserExpects) {
    MainWindow w;
    EXPECT_EQ(w.action("mnuNew")->shortcut(), QKeySequence(QKeySequence::New));
    EXPECT_EQ(w.action("mnuOpen")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_O));
    EXPECT_EQ(w.action("mnuSave")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    EXPECT_EQ(w.action("mnuSaveAs")->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    EXPECT_EQ(w.action("mnuExit")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_EQ(w.action("mnuRemove")->shortcut(), QKeySequence(Qt::Key_Delete));
}

TEST(MainWindow, NewEmptiesTheListAndDisablesTheButtonControls) {
    MainWindow w;
    w.addButtons(2);
    w.model.Saved = true;
    w.action("mnuNew")->trigger();
    EXPECT_EQ(w.buttons()->count(), 0);
    EXPECT_FALSE(w.field("txtX")->isEnabled());
    w.action("mnuAdd")->trigger();
    EXPECT_EQ(w.buttons()->count(), 1);
    EXPECT_TRUE(w.field("txtX")->isEnabled());
}

TEST(MainWindow, ClosingAsksToSaveAndStaysOpenOnCancel) {
    MainWindow w;
    w.showActive();
    QSignalSpy closed(w.window.get(), &FrmMain::closed);
    w.type("txtLabel", QStringLiteral("Home"));
    w.ui.answers.push_back(UserInterface::Answer::Cancel);
    EXPECT_FALSE(w.window->close());
    EXPECT_TRUE(w.window->isVisible());
    EXPECT_EQ(closed.count(), 0);

    w.ui.answers.push_back(UserInterface::Answer::No);
    EXPECT_TRUE(w.window->close());
    EXPECT_EQ(closed.count(), 1);
    // The window remembers where it was.
    EXPECT_NE(w.settings.StoredGeometry("frmMain").width, 0);
}

TEST(MainWindow, KeepOnTopMenuFollowsTheStoredSetting) {
    MainWindow w;
    QAction* onTop = w.action("mnuDesignOnTop");
    EXPECT_FALSE(onTop->isChecked());
    onTop->trigger();
    EXPECT_TRUE(onTop->isChecked());
    EXPECT_TRUE(w.design.onTop);
    EXPECT_TRUE(w.settings.flag(SettingKey::frmDesignOnTop));
    onTop->trigger();
    EXPECT_FALSE(onTop->isChecked());
    EXPECT_FALSE(w.settings.flag(SettingKey::frmDesignOnTop));
}
