#include "../model/editorfakes.h"
#include "appletpanel.h"
#include "frmmain.h"
#include "frmsetaction.h"
#include "mainmenus.h"
#include "testapplication.h"
#include "textcatalogue.h"
#include "undohistory.h"
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
#include <functional>
#include <gtest/gtest.h>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

const std::string kExample = std::string(ORVELIN_SOURCE_DIR) + "/examples/navbar.orv";

/// The main window over the editor's parts (its recording view unused: the window is the
/// view), started the way the program starts it.
struct MainWindow : EditorParts {
    QApplication& app = TestApplication();
    FrmMain window{model, list, ui, settings, design, shell};

    explicit MainWindow(const std::string& commandLine = {}) {
        window.editor().startup(commandLine);
    }

    template <typename T = QWidget> T* find(const char* name) const {
        return Child<T>(window, name);
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
            window.editor().addButton();
    }
    /// Shown and active, for clicks that need a laid-out window and for shortcuts.
    void showActive() {
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
};

/// Opens the action editor through `open`, checks its title and program kind, closes it.
void ExpectActionEditor(const std::function<void()>& open, const char* title, const char* kind) {
    bool seen = false;
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        seen = true;
        EXPECT_EQ(dialog->windowTitle(), QString::fromLatin1(title));
        if (auto* editor = qobject_cast<FrmSetAction*>(dialog))
            EXPECT_EQ(editor->editor().kind(), kind);
        else
            ADD_FAILURE() << "not the action editor";
        dialog->close();
    });
    open();
    EXPECT_TRUE(seen) << "no action editor opened";
}

} // namespace

TEST(MainWindow, StartsWithOneSelectedButtonAndTheCaptionAndRecentMenuNameTheProject) {
    MainWindow w;
    EXPECT_EQ(w.window.windowTitle(), QStringLiteral("Orvelin 1.0  Beta 6[*]"));
    ASSERT_EQ(w.buttons()->count(), 1);
    EXPECT_EQ(w.buttons()->item(0)->text(), QStringLiteral("Button 1"));
    EXPECT_TRUE(w.buttons()->item(0)->isSelected());
    EXPECT_EQ(w.field("txtWidth")->text(), QStringLiteral("107"));
    EXPECT_TRUE(w.model.Saved);

    MainWindow quoted("\"" + kExample + "\"");
    EXPECT_EQ(quoted.window.windowTitle().toStdString(), "Orvelin 1.0  Beta 6 " + kExample + "[*]");
    EXPECT_GT(quoted.model.ButtonCount, 1);
    EXPECT_EQ(quoted.buttons()->count(), quoted.model.ButtonCount);
    EXPECT_EQ(quoted.action("mnuFile1")->text().toStdString(), kExample);
    EXPECT_FALSE(quoted.action("mnuFile2")->isVisible());
    // An ampersand in a path shows as itself.
    quoted.window.setRecentEntry(2, "/home/a&b/p.orv", true);
    EXPECT_EQ(quoted.action("mnuFile2")->text(), QStringLiteral("/home/a&&b/p.orv"));
}

TEST(MainWindow, ALanguageChangeRenamesWhatTheWindowPutTogether) {
    MainWindow w;
    w.window.history().clear();
    w.addButtons(1);
    w.window.history().capture();
    TextCatalogue marked;
    for (const SectionInfo& info : textSections())
        for (std::size_t p = 0; p < info.entries.size(); ++p)
            marked.set(info.section, p, "«" + marked.at(info.section, p) + "»");
    useTexts(&marked);
    w.window.showTexts("mrk");
    const auto marks = [](const QString& text) { return text.count(QStringLiteral("«")); };
    // The entry, the caption and the action command take the new texts; the undo command
    // is a marked frame around the step's marked name.
    EXPECT_EQ(marks(w.buttons()->item(1)->text()), 1);
    EXPECT_EQ(marks(w.find<QLabel>("lblProperties")->text()), 1);
    EXPECT_EQ(marks(w.find<QPushButton>("btnSetAction")->text()), 1);
    EXPECT_EQ(marks(w.window.history().undoAction()->text()), 2);
    useTexts(nullptr);
}

TEST(MainWindow, ShowingAnotherButtonWritesNothingBack) {
    MainWindow w;
    w.addButtons(1);
    ButtonRecord& second = w.model.button(2);
    second.LabelUP = "Second";
    second.Border = 0;
    second.PositionTextUP = 1;
    w.model.Saved = true;
    const ButtonRecord first = w.model.button(1), secondBefore = second;
    w.buttons()->setCurrentRow(0); // every control changes to button 1's values
    w.buttons()->setCurrentRow(1);
    EXPECT_EQ(w.field("txtLabel")->text(), QStringLiteral("Second"));
    EXPECT_TRUE(w.find<QCheckBox>("chkPositionText")->isChecked());
    EXPECT_FALSE(w.find<QCheckBox>("chkBorder")->isChecked());
    EXPECT_EQ(w.model.button(1), first);
    EXPECT_EQ(w.model.button(2), secondBefore);
    EXPECT_TRUE(w.model.Saved);
}

TEST(MainWindow, DeleteRemovesTheCurrentButtonButNotTheTextBeingEdited) {
    MainWindow w;
    w.addButtons(2);
    w.showActive();
    w.buttons()->setFocus();
    QTest::keyClick(w.buttons(), Qt::Key_Delete);
    EXPECT_EQ(w.model.ButtonCount, 2);
    EXPECT_EQ(w.buttons()->count(), 2);

    QLineEdit* label = w.field("txtLabel");
    label->setFocus();
    label->setText(QStringLiteral("ab"));
    label->setCursorPosition(0);
    QTest::keyClick(label, Qt::Key_Delete);
    EXPECT_EQ(label->text(), QStringLiteral("b"));
    EXPECT_EQ(w.model.ButtonCount, 2);
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
    EXPECT_NE(w.settings.storedGeometry("frmMain").width, 0);
}

TEST(PropertyPanel, EveryButtonFieldWritesItsOwnRecordField) {
    MainWindow w;
    w.showActive();
    ButtonRecord expected = w.model.button(1);
    w.type("txtX", QStringLiteral("42"));
    w.type("txtY", QStringLiteral("abc")); // refused, the record keeps its value
    w.click("btnOVER");
    w.find<QComboBox>("lsFontSize")->setEditText(QStringLiteral("18"));
    w.type("txtLabel", QStringLiteral("Over me"));
    w.find<QComboBox>("lsTarget")->setEditText(QStringLiteral("mainFrame"));
    w.find<QComboBox>("cmbImgStyle")->setCurrentIndex(2);
    w.click("btnItalic");
    w.find<QCheckBox>("chkTransparent")->click();

    expected.x = 42;
    expected.FontSizeOVER = 18;
    expected.LabelOVER = "Over me";
    expected.Target = "mainFrame";
    expected.ImgStyleOVER = 2;
    expected.FontStyleOVER = "2";
    expected.noBackGround = 1;
    EXPECT_EQ(serializeButton(w.model.button(1)), serializeButton(expected));
    EXPECT_FALSE(w.model.Saved);
}

TEST(PropertyPanel, StateButtonsShowThatStatesValuesAndRetitleTheActionCommand) {
    MainWindow w;
    ButtonRecord& b = w.model.button(1);
    b.LabelDOWN = "Pressed";
    b.FontStyleDOWN = "2";
    b.ImgStyleDOWN = 1;
    w.click("btnDOWN");
    EXPECT_EQ(w.model.CurrentState, ButtonState::DOWN);
    EXPECT_EQ(w.find<QPushButton>("btnSetAction")->text(),
              QStringLiteral("Set Action: On Button Press..."));
    EXPECT_EQ(w.field("txtLabel")->text(), QStringLiteral("Pressed"));
    EXPECT_TRUE(w.find<QToolButton>("btnItalic")->isChecked());
    EXPECT_EQ(w.find<QComboBox>("cmbImgStyle")->currentText(), QStringLiteral("Tile"));
    w.click("btnUP");
    EXPECT_EQ(w.find<QComboBox>("lsFontSize")->currentText(), QStringLiteral("10"));

    w.click("btnOVER");
    ExpectActionEditor([&] { w.find<QPushButton>("btnSetAction")->click(); },
                       "Set Action: On Entering Button...", "ProgramOVER");
}

TEST(PropertyPanel, ListClicksAndSelectionsGoThroughTheCore) {
    MainWindow w;
    w.addButtons(2);
    w.model.button(2).LabelUP = "Two";
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
}

TEST(AppletPanel, ShowsTheProjectAndWritesItBack) {
    MainWindow w(kExample);
    EXPECT_EQ(w.field("txtBackImg")->text().toStdString(), w.model.BackImg);
    w.type("txtBackImg", QStringLiteral("tile.gif"));
    EXPECT_EQ(w.model.BackImg, "tile.gif");
    EXPECT_GE(w.design.count("AppletChanged"), 1);
    EXPECT_FALSE(w.model.Saved);
    w.click("imgRadioBtn");
    EXPECT_EQ(w.model.Behaviour, 1);

    // The applet size is applied as it is typed; a width below 1 is refused beside the box
    // and leaving the box shows the applet's width again.
    w.showActive();
    w.field("txtAppletWidth")->setFocus();
    w.type("txtAppletWidth", QStringLiteral("600"));
    EXPECT_EQ(w.model.AppletWidth, 600);
    w.type("txtAppletWidth", QStringLiteral("0"));
    EXPECT_EQ(w.model.AppletWidth, 600);
    EXPECT_TRUE(w.find<QLabel>("lblSizeNote")->isVisible());
    QTest::keyClick(w.field("txtAppletWidth"), Qt::Key_Return);
    EXPECT_EQ(w.field("txtAppletWidth")->text(), QStringLiteral("600"));
    EXPECT_FALSE(w.find<QLabel>("lblSizeNote")->isVisible());

    // The moment icons open the action editor for their applet program.
    ExpectActionEditor([&] { w.find<QToolButton>("picAppletProgramDOWN")->click(); },
                       "On Mouse Clicking the Applet", "AppletProgramDOWN");
}

TEST(MainMenus, LanguageDefaultButtonAndOptionCommandsReachTheSettings) {
    MainWindow w;
    w.action("mnuRussian")->trigger();
    EXPECT_EQ(w.settings.value(SettingKey::LanguageCurrent), "rus");
    EXPECT_TRUE(w.action("mnuRussian")->isChecked());

    w.model.button(1).URL = "default.html";
    w.action("mnuMakeDefault")->trigger();
    EXPECT_EQ(w.settings.defaultButton(), serializeButton(w.model.button(1)));
    w.action("mnuDesignOnTop")->trigger();
    EXPECT_TRUE(w.action("mnuDesignOnTop")->isChecked() && w.design.onTop);

    // A recent entry opens its project.
    w.settings.setRecentFile(1, kExample);
    w.window.editor().recent().GetRecent();
    ASSERT_TRUE(w.action("mnuFile1")->isVisible());
    w.action("mnuFile1")->trigger();
    EXPECT_EQ(w.model.ProjectFileName, kExample);
    EXPECT_EQ(w.buttons()->count(), w.model.ButtonCount);
}
