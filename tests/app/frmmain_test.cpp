#include "../model/editorfakes.h"
#include "appletpanel.h"
#include "fakeui.h"
#include "frmmain.h"
#include "frmsetaction.h"
#include "mainmenus.h"
#include "testapplication.h"
#include "windowgeometry.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

const std::string kExample = std::string(ORVELIN_SOURCE_DIR) + "/examples/navbar.orv";

/// The main window over a fresh project, a scripted user, settings in memory and a
/// recording design surface, started the way the program starts it.
struct MainWindow {
    QApplication& app = TestApplication();
    ProjectModel model;
    ButtonList list;
    FakeUserInterface ui;
    MemorySettingsBackend backend;
    Settings settings{backend};
    RecordingDesignView design;
    FakeShell shell;
    FrmMain window{model, list, ui, settings, design, shell};

    explicit MainWindow(const std::string& commandLine = {}) {
        window.editor().Startup(commandLine);
    }

    template <typename T = QWidget> T* find(const char* name) const {
        T* child = window.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(child, nullptr) << name;
        return child;
    }
    QLineEdit* field(const char* name) const { return find<QLineEdit>(name); }
    QListWidget* buttons() const { return find<QListWidget>("lstButtons"); }
    QAction* action(const char* name) const { return find<QAction>(name); }
    void click(const char* name) { QTest::mouseClick(find(name), Qt::LeftButton); }

    /// Types into a line edit as the user would: select all, then the new text.
    void type(const char* name, const QString& text) {
        field(name)->selectAll();
        QTest::keyClicks(field(name), text);
    }
    void addButtons(int n) {
        for (int i = 0; i < n; ++i)
            window.editor().AddButton();
    }
    /// Shown and active, for clicks that need a laid-out window and for shortcuts.
    void showActive() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
};

/// Runs `inspect` on the modal dialog that `open` shows, then closes it.
void WithModalDialog(const std::function<void()>& open,
                     const std::function<void(QWidget&)>& inspect) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        seen = true;
        inspect(*dialog);
        dialog->close();
    });
    open();
    EXPECT_TRUE(seen) << "no dialog opened";
}

/// Opens the action editor through `open` and checks its title and program kind.
void ExpectActionEditor(const std::function<void()>& open, const char* title, const char* kind) {
    WithModalDialog(open, [&](QWidget& dialog) {
        auto* editor = qobject_cast<FrmSetAction*>(&dialog);
        ASSERT_NE(editor, nullptr);
        EXPECT_EQ(editor->windowTitle(), QString::fromLatin1(title));
        EXPECT_EQ(editor->editor().kind(), kind);
    });
}

} // namespace

TEST(MainWindow, StartsWithOneSelectedButtonAndTheProgramCaption) {
    MainWindow w;
    EXPECT_EQ(w.window.objectName(), QStringLiteral("frmMain"));
    EXPECT_EQ(w.window.windowTitle(), QStringLiteral("Orvelin 1.0  Beta 6"));
    ASSERT_EQ(w.buttons()->count(), 1);
    EXPECT_EQ(w.buttons()->item(0)->text(), QStringLiteral("Button 1"));
    EXPECT_TRUE(w.buttons()->item(0)->isSelected());
    EXPECT_EQ(w.find<QLabel>("lblProperties")->text(), QStringLiteral("Properties for Button # 1"));
    EXPECT_EQ(w.field("txtWidth")->text(), QStringLiteral("107"));
    EXPECT_EQ(w.find<QComboBox>("lsTarget")->currentText(), QStringLiteral("_self"));
    EXPECT_TRUE(w.model.Saved);
}

TEST(MainWindow, CaptionAndRecentMenuNameTheProjectFromAQuotedCommandLine) {
    MainWindow w("\"" + kExample + "\"");
    EXPECT_EQ(w.window.windowTitle().toStdString(), "Orvelin 1.0  Beta 6 " + kExample);
    EXPECT_GT(w.model.ButtonCount, 1);
    EXPECT_EQ(w.buttons()->count(), w.model.ButtonCount);
    EXPECT_TRUE(w.action("mnuFile1")->isVisible());
    EXPECT_EQ(w.action("mnuFile1")->text().toStdString(), kExample);
    EXPECT_FALSE(w.action("mnuFile2")->isVisible());
    EXPECT_EQ(w.field("txtAppletWidth")->text().toInt(), w.model.AppletWidth);
    // An ampersand in a path shows as itself.
    w.window.SetRecentEntry(2, "/home/a&b/p.orv", true);
    EXPECT_EQ(w.action("mnuFile2")->text(), QStringLiteral("/home/a&&b/p.orv"));
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
    EXPECT_EQ(w.buttons()->count(), 0);
    EXPECT_FALSE(w.field("txtX")->isEnabled());
    w.action("mnuAdd")->trigger();
    EXPECT_EQ(w.buttons()->count(), 1);
    EXPECT_TRUE(w.field("txtX")->isEnabled());
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
    const ButtonRecord first = w.model.Button(1), secondBefore = second;

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
    auto* center = w.find<QCheckBox>("chkCenterText");
    auto* position = w.find<QCheckBox>("chkPositionText");
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
    const std::pair<const char*, QKeySequence> keys[] = {
        {"mnuNew", QKeySequence(QKeySequence::New)},
        {"mnuOpen", QKeySequence(Qt::CTRL | Qt::Key_O)},
        {"mnuSave", QKeySequence(Qt::CTRL | Qt::Key_S)},
        {"mnuSaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
        {"mnuExit", QKeySequence(Qt::CTRL | Qt::Key_Q)},
        {"mnuRemove", QKeySequence(Qt::Key_Delete)}};
    for (const auto& [name, key] : keys)
        EXPECT_EQ(w.action(name)->shortcut(), key) << name;
}

TEST(MainWindow, ClosingAsksToSaveStaysOpenOnCancelAndRemembersWhereItWas) {
    MainWindow w;
    w.showActive();
    QSignalSpy closed(&w.window, &FrmMain::closed);
    w.type("txtLabel", QStringLiteral("Home"));
    w.ui.answers = {UserInterface::Answer::Cancel, UserInterface::Answer::No};
    EXPECT_FALSE(w.window.close());
    EXPECT_TRUE(w.window.isVisible());
    EXPECT_EQ(closed.count(), 0);
    EXPECT_TRUE(w.window.close());
    EXPECT_EQ(closed.count(), 1);
    EXPECT_NE(w.settings.StoredGeometry("frmMain").width, 0);
}

TEST(PropertyPanel, EveryButtonFieldWritesItsOwnRecordField) {
    MainWindow w;
    w.showActive();
    ButtonRecord expected = w.model.Button(1);
    w.design.clear();
    w.type("txtX", QStringLiteral("42"));
    ASSERT_FALSE(w.design.redrawn.empty());
    EXPECT_EQ(w.design.redrawn.back(), 1);
    w.type("txtY", QStringLiteral("abc"));
    w.click("btnOVER");
    w.find<QComboBox>("lsFontSize")->setEditText(QStringLiteral("18"));
    w.type("txtWidth", QStringLiteral("90"));
    w.type("txtHeight", QStringLiteral("33"));
    w.type("txtLabel", QStringLiteral("Over me"));
    w.type("txtImage", QStringLiteral("images/over.gif"));
    w.type("txtSound", QStringLiteral("sounds/over.au"));
    w.type("txtURL", QStringLiteral("https://example.org/"));
    w.type("txtStatus", QStringLiteral("Go there"));
    w.find<QComboBox>("lsTarget")->setEditText(QStringLiteral("mainFrame"));
    w.find<QComboBox>("lsFont")->setEditText(QStringLiteral("Courier New"));
    w.find<QComboBox>("cmbImgStyle")->setCurrentIndex(2);
    w.click("btnBold");
    w.click("btnItalic");
    for (const char* box : {"chkBorder", "chkTransparent", "chkShowHand", "chkHidden"})
        w.find<QCheckBox>(box)->click();

    expected.x = 42;
    expected.FontSizeOVER = 18;
    expected.Width = 90;
    expected.Height = 33;
    expected.LabelOVER = "Over me";
    expected.ImageOVER = "images/over.gif";
    expected.SndOVER = "sounds/over.au";
    expected.URL = "https://example.org/";
    expected.Status = "Go there";
    expected.Target = "mainFrame";
    expected.FontOVER = "Courier New";
    expected.ImgStyleOVER = 2;
    expected.FontStyleOVER = "3";
    expected.Border = 0;
    expected.noBackGround = expected.ShowHand = expected.Hidden = 1;
    EXPECT_EQ(SerializeButton(w.model.Button(1)), SerializeButton(expected));
    EXPECT_FALSE(w.model.Saved);
}

TEST(PropertyPanel, StateButtonsShowThatStatesValuesAndRetitleTheActionCommand) {
    MainWindow w;
    ButtonRecord& b = w.model.Button(1);
    b.LabelDOWN = "Pressed";
    b.FontSizeDOWN = 14;
    b.FontStyleDOWN = "2";
    b.ImgStyleDOWN = 1;
    b.LabelPosYDOWN = 37;
    EXPECT_EQ(w.find<QPushButton>("btnSetAction")->text(),
              QStringLiteral("Set Action: On Leaving Button..."));
    w.click("btnDOWN");
    EXPECT_EQ(w.model.CurrentState, "DOWN");
    EXPECT_TRUE(w.find<QPushButton>("btnDOWN")->isChecked());
    EXPECT_EQ(w.find<QPushButton>("btnSetAction")->text(),
              QStringLiteral("Set Action: On Button Press..."));
    EXPECT_EQ(w.field("txtLabel")->text(), QStringLiteral("Pressed"));
    EXPECT_EQ(w.find<QComboBox>("lsFontSize")->currentText(), QStringLiteral("14"));
    EXPECT_FALSE(w.find<QToolButton>("btnBold")->isChecked());
    EXPECT_TRUE(w.find<QToolButton>("btnItalic")->isChecked());
    EXPECT_EQ(w.find<QComboBox>("cmbImgStyle")->currentText(), QStringLiteral("Tile"));
    EXPECT_EQ(w.field("txtLabelPosY")->text(), QStringLiteral("37"));
    w.click("btnUP");
    EXPECT_EQ(w.find<QComboBox>("lsFontSize")->currentText(), QStringLiteral("10"));
    EXPECT_EQ(w.field("txtLabelPosY")->text(), QStringLiteral("25"));

    w.click("btnOVER");
    ExpectActionEditor([&] { w.find<QPushButton>("btnSetAction")->click(); },
                       "Set Action: On Entering Button...", "ProgramOVER");
}

TEST(PropertyPanel, ListClicksAndSelectionsGoThroughTheCore) {
    MainWindow w;
    w.addButtons(2);
    w.model.Button(2).LabelUP = "Two";
    w.showActive();
    QListWidget* list = w.buttons();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(1)).center());
    EXPECT_EQ(w.model.CurrentButton, 2);
    EXPECT_EQ(w.list.selectedButtons(), std::vector<int>{2});
    EXPECT_EQ(w.field("txtLabel")->text(), QStringLiteral("Two"));
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      list->visualItemRect(list->item(2)).center());
    EXPECT_EQ(w.list.selectedButtons(), (std::vector<int>{2, 3}));
    EXPECT_EQ(w.model.CurrentButton, 3);
    EXPECT_GE(w.design.count("RedrawAll"), 1);
}

TEST(AppletPanel, ShowsTheProjectAndWritesItBack) {
    MainWindow w(kExample);
    EXPECT_EQ(w.field("txtBackImg")->text().toStdString(), w.model.BackImg);
    EXPECT_EQ(w.find<QComboBox>("cmbBackImgStyle")->currentIndex(), w.model.BackImgStyle);
    EXPECT_EQ(w.find<QCheckBox>("chkDOWNBtn")->isChecked(), w.model.DOWNBtn != 0);
    w.design.clear();
    w.type("txtBackImg", QStringLiteral("tile.gif"));
    EXPECT_EQ(w.model.BackImg, "tile.gif");
    EXPECT_GE(w.design.count("AppletChanged"), 1);
    w.find<QComboBox>("cmbBackImgStyle")->setCurrentIndex(2);
    EXPECT_EQ(w.model.BackImgStyle, 2);
    w.find<QCheckBox>("chkDOWNBtn")->click();
    EXPECT_EQ(w.find<QCheckBox>("chkDOWNBtn")->isChecked(), w.model.DOWNBtn != 0);
    EXPECT_FALSE(w.model.Saved);
    w.click("imgRadioBtn");
    EXPECT_EQ(w.model.Behaviour, 1);
    w.click("imgPushBtn");
    EXPECT_EQ(w.model.Behaviour, 0);

    // The applet size is stored on typing and applied on Enter.
    w.design.clear();
    w.type("txtAppletWidth", QStringLiteral("600"));
    EXPECT_EQ(w.model.AppletWidth, 600);
    EXPECT_EQ(w.design.count("AppletChanged"), 0);
    QTest::keyClick(w.field("txtAppletWidth"), Qt::Key_Return);
    EXPECT_EQ(w.design.count("AppletChanged"), 1);
}

TEST(AppletPanel, MomentIconsOpenTheActionEditorForTheirAppletProgram) {
    MainWindow w;
    const std::pair<const char*, const char*> moments[] = {
        {"picAppletProgramStart", "On Applet Start"},
        {"picAppletProgramOVER", "On Mouse Moving above the Applet"},
        {"picAppletProgramDOWN", "On Mouse Clicking the Applet"},
        {"picAppletProgramOUT", "On Mouse Exiting the Applet"}};
    for (const auto& [name, title] : moments)
        EXPECT_EQ(w.find(name)->toolTip(), QString::fromLatin1(title));
    QSignalSpy requested(w.window.findChild<AppletPanel*>(), &AppletPanel::actionRequested);
    ExpectActionEditor([&] { w.find<QToolButton>("picAppletProgramDOWN")->click(); },
                       "On Mouse Clicking the Applet", "AppletProgramDOWN");
    ASSERT_EQ(requested.count(), 1);
    EXPECT_EQ(requested.at(0).at(0).toString(), QStringLiteral("AppletProgramDOWN"));
}

TEST(MainMenus, LanguageDefaultButtonAndOptionCommandsReachTheSettings) {
    MainWindow w;
    w.action("mnuRussian")->trigger();
    EXPECT_EQ(w.settings.value(SettingKey::LanguageCurrent), "rus");
    EXPECT_TRUE(w.action("mnuRussian")->isChecked());
    w.action("mnuEnglish")->trigger();
    EXPECT_EQ(w.settings.value(SettingKey::LanguageCurrent), "English");
    EXPECT_EQ(w.ui.messages().back(),
              "Change will take effect the next time the Program is started.");

    w.model.Button(1).URL = "default.html";
    w.action("mnuMakeDefault")->trigger();
    EXPECT_EQ(w.settings.DefaultButton(), SerializeButton(w.model.Button(1)));
    w.action("mnuAutoTile")->trigger();
    EXPECT_EQ(w.settings.flag(SettingKey::AutoTile), w.action("mnuAutoTile")->isChecked());
    for (bool expected : {true, false}) {
        w.action("mnuDesignOnTop")->trigger();
        EXPECT_EQ(w.action("mnuDesignOnTop")->isChecked(), expected);
        EXPECT_EQ(w.design.onTop, expected);
        EXPECT_EQ(w.settings.flag(SettingKey::frmDesignOnTop), expected);
    }
}

TEST(MainMenus, RecentEntryOpensItsProject) {
    MainWindow w;
    w.settings.SetRecentFile(1, kExample);
    w.window.editor().Recent().GetRecent();
    ASSERT_TRUE(w.action("mnuFile1")->isVisible());
    w.action("mnuFile1")->trigger();
    EXPECT_EQ(w.model.ProjectFileName, kExample);
    EXPECT_EQ(w.buttons()->count(), w.model.ButtonCount);
}

TEST(WindowGeometry, StoredGeometryComesBackAndNothingStoredKeepsTheDesign) {
    MainWindow w;
    QWidget window;
    window.resize(300, 200);
    RestoreWindowGeometry(window, w.settings, QStringLiteral("frmTest"));
    EXPECT_EQ(window.size(), QSize(300, 200));
    window.resize(420, 260);
    window.move(50, 60);
    SaveWindowGeometry(window, w.settings, QStringLiteral("frmTest"));
    EXPECT_EQ(w.settings.StoredGeometry("frmTest"), (WindowGeometry{50, 60, 420, 260}));
    QWidget other;
    RestoreWindowGeometry(other, w.settings, QStringLiteral("frmTest"));
    EXPECT_EQ(other.size(), QSize(420, 260));
    EXPECT_EQ(other.pos(), QPoint(50, 60));
}
