#include "appletpanel.h"
#include "frmsetaction.h"
#include "mainwindowfixture.h"
#include "windowgeometry.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolButton>
#include <functional>

using namespace orvelin;
using orvelin::testing::kExample;
using orvelin::testing::MainWindow;

namespace {

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

} // namespace

TEST(PropertyPanel, EveryButtonFieldWritesItsOwnRecordField) {
    MainWindow w;
    w.showActive();
    QTest::mouseClick(w.find<QPushButton>("btnOVER"), Qt::LeftButton);
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
    QTest::mouseClick(w.find<QToolButton>("btnBold"), Qt::LeftButton);
    QTest::mouseClick(w.find<QToolButton>("btnItalic"), Qt::LeftButton);
    w.find<QCheckBox>("chkBorder")->click();
    w.find<QCheckBox>("chkTransparent")->click();
    w.find<QCheckBox>("chkShowHand")->click();
    w.find<QCheckBox>("chkHidden")->click();

    const ButtonRecord& b = w.model.Button(1);
    EXPECT_EQ(b.Width, 90);
    EXPECT_EQ(b.Height, 33);
    EXPECT_EQ(b.LabelOVER, "Over me");
    EXPECT_EQ(b.LabelUP, "");
    EXPECT_EQ(b.ImageOVER, "images/over.gif");
    EXPECT_EQ(b.SndOVER, "sounds/over.au");
    EXPECT_EQ(b.URL, "https://example.org/");
    EXPECT_EQ(b.Status, "Go there");
    EXPECT_EQ(b.Target, "mainFrame");
    EXPECT_EQ(b.FontOVER, "Courier New");
    EXPECT_EQ(b.FontUP, "Arial");
    EXPECT_EQ(b.ImgStyleOVER, 2);
    EXPECT_EQ(b.FontStyleOVER, "3");
    EXPECT_EQ(b.FontStyleUP, "0");
    EXPECT_EQ(b.Border, 0);
    EXPECT_EQ(b.noBackGround, 1);
    EXPECT_EQ(b.ShowHand, 1);
    EXPECT_EQ(b.Hidden, 1);
}

TEST(PropertyPanel, SwitchingStateShowsThatStatesValues) {
    MainWindow w;
    ButtonRecord& b = w.model.Button(1);
    b.FontSizeDOWN = 14;
    b.FontStyleDOWN = "2";
    b.ImgStyleDOWN = 1;
    b.LabelPosYDOWN = 37;
    QTest::mouseClick(w.find<QPushButton>("btnDOWN"), Qt::LeftButton);
    EXPECT_EQ(w.find<QComboBox>("lsFontSize")->currentText(), QStringLiteral("14"));
    EXPECT_FALSE(w.find<QToolButton>("btnBold")->isChecked());
    EXPECT_TRUE(w.find<QToolButton>("btnItalic")->isChecked());
    EXPECT_EQ(w.find<QComboBox>("cmbImgStyle")->currentText(), QStringLiteral("Tile"));
    EXPECT_EQ(w.field("txtLabelPosY")->text(), QStringLiteral("37"));
    QTest::mouseClick(w.find<QPushButton>("btnUP"), Qt::LeftButton);
    EXPECT_EQ(w.find<QComboBox>("lsFontSize")->currentText(), QStringLiteral("10"));
    EXPECT_EQ(w.field("txtLabelPosY")->text(), QStringLiteral("25"));
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
}

TEST(AppletPanel, MomentIconsNameTheirProgramAndMoment) {
    MainWindow w;
    auto* panel = w.window->findChild<AppletPanel*>();
    ASSERT_NE(panel, nullptr);
    QSignalSpy requested(panel, &AppletPanel::actionRequested);
    const std::pair<const char*, const char*> moments[] = {
        {"picAppletProgramStart", "On Applet Start"},
        {"picAppletProgramOVER", "On Mouse Moving above the Applet"},
        {"picAppletProgramDOWN", "On Mouse Clicking the Applet"},
        {"picAppletProgramOUT", "On Mouse Exiting the Applet"}};
    for (const auto& [name, title] : moments) {
        QToolButton* icon = w.find<QToolButton>(name);
        EXPECT_EQ(icon->toolTip(), QString::fromLatin1(title));
    }
    // Clicking one opens the action editor for the applet program of that moment.
    WithModalDialog([&] { w.find<QToolButton>("picAppletProgramDOWN")->click(); },
                    [](QWidget& dialog) {
                        auto* editor = qobject_cast<FrmSetAction*>(&dialog);
                        ASSERT_NE(editor, nullptr);
                        EXPECT_EQ(editor->windowTitle(),
                                  QStringLiteral("On Mouse Clicking the Applet"));
                        EXPECT_EQ(editor->editor().kind(), "AppletProgramDOWN");
                    });
    ASSERT_EQ(requested.count(), 1);
    EXPECT_EQ(requested.at(0).at(0).toString(), QStringLiteral("AppletProgramDOWN"));
}

TEST(PropertyPanel, ActionCommandOpensTheEditorForTheStateBeingEdited) {
    MainWindow w;
    QTest::mouseClick(w.find<QPushButton>("btnOVER"), Qt::LeftButton);
    WithModalDialog([&] { w.find<QPushButton>("btnSetAction")->click(); },
                    [](QWidget& dialog) {
                        auto* editor = qobject_cast<FrmSetAction*>(&dialog);
                        ASSERT_NE(editor, nullptr);
                        EXPECT_EQ(editor->windowTitle(),
                                  QStringLiteral("Set Action: On Entering Button..."));
                        EXPECT_EQ(editor->editor().kind(), "ProgramOVER");
                    });
}

TEST(MainMenus, LanguageAndDefaultButtonCommandsReachTheSettings) {
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
}

TEST(MainMenus, RecentEntryOpensItsProject) {
    MainWindow w;
    w.settings.SetRecentFile(1, kExample);
    w.window->editor().Recent().GetRecent();
    ASSERT_TRUE(w.action("mnuFile1")->isVisible());
    w.action("mnuFile1")->trigger();
    EXPECT_EQ(w.model.ProjectFileName, kExample);
    EXPECT_EQ(w.buttons()->count(), w.model.ButtonCount);
}

TEST(WindowGeometry, StoredGeometryComesBackAndNothingStoredKeepsTheDesign) {
    MainWindow w;
    QWidget window;
    window.resize(300, 200);
    window.move(10, 20);
    RestoreWindowGeometry(window, w.settings, QStringLiteral("frmTest"));
    EXPECT_EQ(window.size(), QSize(300, 200));

    window.resize(420, 260);
    window.move(50, 60);
    SaveWindowGeometry(window, w.settings, QStringLiteral("frmTest"));
    EXPECT_EQ(w.settings.StoredGeometry("frmTest"), (WindowGeometry{50, 60, 420, 260}));
    QWidget other;
    other.resize(100, 100);
    RestoreWindowGeometry(other, w.settings, QStringLiteral("frmTest"));
    EXPECT_EQ(other.size(), QSize(420, 260));
    EXPECT_EQ(other.pos(), QPoint(50, 60));
}
