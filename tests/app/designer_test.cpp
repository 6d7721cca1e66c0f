// The two windows wired together as the program runs them, with a scripted user:
// faults that live between the main editor and the design window show here.
#include "buttonpicture.h"
#include "designer.h"
#include "fakeui.h"
#include "frmdesign.h"
#include "frmmain.h"
#include "projectfile.h"
#include "sizerhandle.h"
#include "tempfolder.h"
#include "testapplication.h"
#include "textcatalogue.h"
#include "undohistory.h"
#include "windowgeometry.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QEventLoop>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>
#include <numeric>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

struct Program {
    TempFolder config;
    QApplication& app = [this]() -> QApplication& {
        // The settings of the test go to a folder of its own, never the user's.
        qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(config.dir().string()));
        return TestApplication();
    }();
    FakeUserInterface ui;
    Designer designer{&ui};

    Program() {
        designer.start({});
        QCoreApplication::processEvents();
    }

    FrmMain& main() { return designer.mainWindow(); }
    FrmDesign& design() { return designer.designWindow(); }
    ProjectModel& model() { return designer.model(); }

    template <typename T = QWidget> T* find(const char* name) { return Child<T>(main(), name); }
    void type(const char* field, const QString& text) {
        QLineEdit* edit = find<QLineEdit>(field);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClicks(edit, text);
    }
    /// Lets the program wait for the next event once, as it does between the user's.
    void idle() {
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    }
    QString undoText() { return main().history().undoAction()->text().remove(QLatin1Char('&')); }
};

} // namespace

TEST(Designer, TheCurrentButtonTakenOutOfTheSelectionIsShownButNotEdited) {
    Program p;
    QTest::mouseClick(p.find("btnAdd"), Qt::LeftButton);
    p.model().button(2).x = 200;
    p.design().redrawAll();
    QTest::mouseClick(p.design().pButtons(1), Qt::LeftButton, {}, QPoint(5, 5));
    for (int i = 0; i < 2; ++i)
        QTest::mouseClick(p.design().pButtons(2), Qt::LeftButton, Qt::ControlModifier,
                          QPoint(5, 5));
    ASSERT_EQ(p.model().CurrentButton, 2);
    ASSERT_EQ(p.designer.selection().selectedButtons(), std::vector<int>({1}));
    EXPECT_FALSE(p.find<QLineEdit>("txtWidth")->isEnabled());
    EXPECT_TRUE(p.find<QLabel>("lblFieldNote")->text().startsWith(QStringLiteral("Button 2 ")));

    p.model().button(2).Width = 60; // changed behind the panel's back
    QTest::mouseClick(p.design().pButtons(2), Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_TRUE(p.find<QLineEdit>("txtWidth")->isEnabled());
    EXPECT_EQ(p.find<QLineEdit>("txtWidth")->text(), QStringLiteral("60"));
    EXPECT_TRUE(p.find<QLabel>("lblFieldNote")->text().isEmpty());
}

TEST(Designer, AFontSizeBeingTypedOrRefusedShowsNoMessageBoxesAndABrokenLabelOneMessage) {
    Program p;
    for (int i = 1; i < 101; ++i)
        p.main().editor().addButton();
    std::vector<int> all(101);
    std::iota(all.begin(), all.end(), 1);
    p.main().editor().setListSelection(all);
    p.ui.shown.clear();

    QLineEdit* size = p.find<QComboBox>("lsFontSize")->lineEdit();
    size->setFocus();
    size->selectAll();
    QTest::keyClick(size, Qt::Key_Backspace);
    QTest::keyClicks(size, QStringLiteral("0"));
    EXPECT_TRUE(p.ui.shown.empty());
    EXPECT_FALSE(p.find<QLabel>("lblFieldNote")->text().isEmpty());
    EXPECT_EQ(p.model().button(57).FontSizeUP, p.model().button(1).FontSizeUP);
    QTest::keyClick(size, Qt::Key_Backspace);
    QTest::keyClicks(size, QStringLiteral("14"));
    EXPECT_EQ(p.model().button(101).FontSizeUP, 14);
    EXPECT_TRUE(p.find<QLabel>("lblFieldNote")->text().isEmpty());

    // A label that really cannot be drawn (a damaged project) says so once per action.
    for (int i = 1; i <= 101; ++i)
        p.model().button(i).FontSizeOVER = -3;
    p.main().editor().switchState("OVER");
    QCoreApplication::processEvents();
    p.main().editor().switchState("UP");
    p.main().editor().switchState("OVER");
    EXPECT_EQ(p.ui.shown.size(), 2u);
}

TEST(Designer, TypedTextKeepsOnlyWhatItsFieldCanStoreAndSaysSo) {
    Program p;
    QLabel* note = p.find<QLabel>("lblFieldNote");
    p.type("txtURL", QStringLiteral("a.html?x=1|2"));
    EXPECT_EQ(p.model().button(1).URL, "a.html?x=1%7C2");
    EXPECT_TRUE(note->text().contains(QStringLiteral("\"|\"")));
    // A pasted line break is the label's own line break, a blank elsewhere.
    QLineEdit* label = p.find<QLineEdit>("txtLabel");
    label->selectAll();
    label->insert(QStringLiteral("Home\r\npage"));
    EXPECT_EQ(p.model().button(1).LabelUP, "Home\\npage");
    // What a browser would turn into another character is named beside the field.
    p.type("txtLabel", QStringLiteral("A&#124;B"));
    EXPECT_TRUE(note->text().contains(QStringLiteral("&#124;")));
}

TEST(Designer, DialogsComeUpAboveADesignWindowKeptOnTop) {
    Program p;
    p.design().setOnTop(true);
    bool onTop = false;
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_NE(dialog, nullptr);
        onTop = dialog->windowFlags().testFlag(Qt::WindowStaysOnTopHint);
        dialog->close();
    });
    p.find<QPushButton>("btnBgOffset")->click();
    EXPECT_TRUE(onTop);
}

TEST(Designer, TypingInOneFieldIsOneStepAndUndoingToTheSavedProjectLeavesItUnchanged) {
    Program p;
    p.idle();
    const QString label = p.find<QLineEdit>("txtLabel")->text();
    p.type("txtLabel", QStringLiteral("H"));
    for (const char* key : {"i", "!"}) {
        p.idle();
        QTest::keyClicks(p.find<QLineEdit>("txtLabel"), QString::fromLatin1(key));
    }
    p.idle();
    p.type("txtURL", QStringLiteral("a.htm"));
    p.idle(); // the title's marker follows once the program waits for the next event
    EXPECT_TRUE(p.main().isWindowModified());
    EXPECT_EQ(p.main().history().stack().count(), 2);
    EXPECT_EQ(p.undoText(), QStringLiteral("Undo Change URL"));

    // The keys undo the document, also where a field would undo its own text.
    QTest::keyClick(p.find<QLineEdit>("txtURL"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(p.model().button(1).URL, "");
    EXPECT_EQ(p.undoText(), QStringLiteral("Undo Change Label"));
    QTest::keyClick(p.find<QLineEdit>("txtURL"), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(p.find<QLineEdit>("txtLabel")->text(), label);
    EXPECT_TRUE(p.model().Saved);
    p.idle();
    EXPECT_FALSE(p.main().isWindowModified());

    QTest::keyClick(p.find<QLineEdit>("txtURL"), Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(p.model().button(1).LabelUP, "Hi!");
    EXPECT_EQ(p.find<QLineEdit>("txtLabel")->text(), QStringLiteral("Hi!"));
    EXPECT_FALSE(p.model().Saved);

    p.model().Saved = true;
    p.main().editor().newProject();
    p.idle();
    EXPECT_EQ(p.main().history().stack().count(), 0);
    EXPECT_TRUE(p.find<QLineEdit>("txtLabel")->text().isEmpty());
    EXPECT_FALSE(p.find<QLineEdit>("txtWidth")->isEnabled());
}

TEST(Designer, EachGestureAndCommandIsOneStepThatUndoesExactlyAndTheSurfaceFollows) {
    Program p;
    QTest::mouseClick(p.find("btnAdd"), Qt::LeftButton);
    p.model().button(2).x = 200;
    p.design().redrawAll();
    p.idle();
    p.main().history().clear();
    const std::string start = projectText(p.model());

    ButtonPicture* picture = p.design().pButtons(2);
    QTest::mousePress(picture, Qt::LeftButton, {}, QPoint(5, 5));
    for (int dx : {10, 20, 30}) {
        QTest::mouseMove(picture, QPoint(5 + dx, 5));
        p.idle();
    }
    QTest::mouseRelease(picture, Qt::LeftButton, {}, QPoint(35, 5));
    p.idle();
    ASSERT_NE(p.model().button(2).x, 200);
    EXPECT_EQ(p.main().history().stack().count(), 1);
    EXPECT_EQ(p.undoText(), QStringLiteral("Undo Move Button"));

    p.main().editor().duplicateButton();
    p.idle();
    p.main().editor().removeButton();
    p.idle();
    // The offset dialog previews as the user turns its boxes: one step, on OK.
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        dialog->findChild<QSpinBox*>(QStringLiteral("txtOffsetX"))->setValue(4);
        p.idle();
        dialog->findChild<QSpinBox*>(QStringLiteral("txtOffsetY"))->setValue(5);
        dialog->findChild<QPushButton*>(QStringLiteral("btnOk"))->click();
    });
    p.find<QPushButton>("btnBgOffset")->click();
    p.idle();
    EXPECT_EQ(p.undoText(), QStringLiteral("Undo Change Background Offset"));
    SizerHandle* right = p.design().picSizer(1);
    QTest::mousePress(right, Qt::LeftButton, {}, QPoint(2, 2));
    QTest::mouseMove(right, QPoint(12, 2));
    QTest::mouseRelease(right, Qt::LeftButton, {}, QPoint(12, 2));
    p.idle();
    p.main().editor().properties().setURL("x.htm");
    p.idle();
    p.main().editor().properties().setAppletWidth("400");
    p.idle();
    Editor& editor = p.main().editor();
    editor.pasteButtons(editor.copyButtons());
    p.idle();
    EXPECT_EQ(p.undoText(), QStringLiteral("Undo Add Button"))
        << "though it looks like a duplicate";
    const std::string end = projectText(p.model());
    EXPECT_EQ(p.main().history().stack().count(), 8);

    for (int i = 0; i < 8; ++i)
        p.main().history().undo();
    EXPECT_EQ(projectText(p.model()), start);
    // Nothing but the restored document told the surface what to show.
    EXPECT_EQ(p.design().pButtons(2)->x(), 200);
    EXPECT_EQ(p.design().pButtons(3), nullptr);
    EXPECT_EQ(p.find<QListWidget>("lstButtons")->count(), 2);
    for (int i = 0; i < 8; ++i)
        p.main().history().redo();
    EXPECT_EQ(projectText(p.model()), end);
}

TEST(Designer, ButtonsCutOrCopiedInOneDesignerPasteIntoAnotherWithinTheLimit) {
    Program a;
    a.main().editor().addButton();
    a.main().editor().addButton();
    a.model().button(3).LabelUP = "Copied | \"label\"";
    a.main().editor().setListSelection({2, 3});
    QTest::keyClick(a.find("lstButtons"), Qt::Key_C, Qt::ControlModifier);

    Program b;
    b.idle();
    b.main().history().clear();
    QTest::keyClick(b.find("lstButtons"), Qt::Key_V, Qt::ControlModifier);
    ASSERT_EQ(b.model().ButtonCount, 3);
    ButtonRecord expected = a.model().button(3);
    expected.x += kDuplicateOffset;
    expected.y += kDuplicateOffset;
    // As a project file keeps it: a "|" in a label comes back as "I".
    EXPECT_EQ(serializeButton(b.model().button(3)), serializeButton(expected));
    EXPECT_EQ(b.designer.selection().selectedButtons(), std::vector<int>({2, 3}));
    EXPECT_NE(b.design().pButtons(3), nullptr);
    b.idle();
    EXPECT_EQ(b.undoText(), QStringLiteral("Undo Add 2 Buttons"));

    // Past the limit nothing is added; text that is not buttons is ignored.
    while (b.model().ButtonCount < 100)
        b.main().editor().addButton();
    b.ui.shown.clear();
    QTest::keyClick(b.find("lstButtons"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(b.model().ButtonCount, 100);
    EXPECT_EQ(b.ui.texts().size(), 1u);
    QGuiApplication::clipboard()->setText(QStringLiteral("Orvelin\r\n1|2|"));
    QTest::keyClick(b.find("lstButtons"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(b.model().ButtonCount, 100);

    a.main().findChild<QAction*>(QStringLiteral("mnuCut"))->trigger(); // b's window is active
    EXPECT_EQ(a.model().ButtonCount, 1);
    EXPECT_EQ(a.design().pButtons(2), nullptr);
    EXPECT_TRUE(QGuiApplication::clipboard()->text().contains(QStringLiteral("Copied")));
}

TEST(PlaceDesignWindow, HidesNothingOfTheMainEditorWhereTheScreenAllows) {
    const QRect screen(0, 0, 1280, 800);
    const QSize wanted(560, 300), minimum(300, 180);
    // Room below the editor: there, shortened to fit.
    QRect place = placeDesignWindow(screen, QRect(16, 16, 900, 560), wanted, minimum);
    EXPECT_FALSE(place.intersects(QRect(16, 16, 900, 560)));
    EXPECT_TRUE(screen.contains(place));
    EXPECT_EQ(place.height(), 800 - (16 + 560 + 8));
    // A tall editor: to its right.
    EXPECT_EQ(placeDesignWindow(screen, QRect(16, 16, 700, 700), wanted, minimum).left(), 724);
    // No room anywhere: the minimum size at the bottom of the screen.
    place = placeDesignWindow(screen, QRect(0, 0, 1200, 780), wanted, minimum);
    EXPECT_EQ(place.bottom(), 799);
    EXPECT_EQ(place.height(), 180);
}

TEST(Designer, ArrangeCommandsFollowTheSelectionAndEachIsOneNamedStep) {
    Program p;
    QTest::mouseClick(p.find("btnAdd"), Qt::LeftButton);
    QTest::mouseClick(p.find("btnAdd"), Qt::LeftButton);
    for (int i = 1; i <= 3; ++i) {
        p.model().button(i).x = static_cast<std::int16_t>(40 * i);
        p.model().button(i).y = static_cast<std::int16_t>(3 * i);
    }
    p.design().redrawAll();
    p.idle();
    p.main().history().clear();
    const auto action = [&](const char* name) { return Child<QAction>(p.design(), name); };
    EXPECT_FALSE(action("mnuAlignLeft")->isEnabled());
    QTest::mouseClick(p.design().pButtons(1), Qt::LeftButton, Qt::ControlModifier, QPoint(3, 3));
    p.idle();
    EXPECT_TRUE(action("mnuAlignLeft")->isEnabled());
    EXPECT_FALSE(action("mnuDistributeH")->isEnabled());
    QTest::mouseClick(p.design().pButtons(2), Qt::LeftButton, Qt::ControlModifier, QPoint(3, 3));
    p.idle();
    ASSERT_TRUE(action("mnuDistributeH")->isEnabled());

    // Button 2 is current: the others line up on its left edge, pictures included.
    action("mnuAlignLeft")->trigger();
    p.idle();
    for (int i = 1; i <= 3; ++i) {
        EXPECT_EQ(p.model().button(i).x, 80) << i;
        EXPECT_EQ(p.design().pButtons(i)->x(), 80) << i;
    }
    EXPECT_EQ(p.main().history().stack().count(), 1);
    EXPECT_EQ(p.undoText(), QStringLiteral("Undo Align Left"));
    p.main().history().undo();
    EXPECT_EQ(p.model().button(1).x, 40);
    EXPECT_EQ(p.design().pButtons(3)->x(), 120);
}

TEST(Designer, ADragSnapsToAnotherButtonWithAGuideUnlessAltIsHeldOrSnappingIsOff) {
    Program p;
    QTest::mouseClick(p.find("btnAdd"), Qt::LeftButton);
    p.model().button(1).x = 10;
    p.model().button(1).y = 10;
    p.model().button(2).x = 150;
    p.model().button(2).y = 100;
    p.design().redrawAll();
    p.idle();
    auto* guides = p.design().findChild<QWidget*>(QStringLiteral("picSnapGuides"));
    ASSERT_NE(guides, nullptr);
    // Button 2 dragged up to 3 pixels below button 1's top edge.
    const auto dragUp = [&](Qt::KeyboardModifiers modifiers) {
        p.model().button(2).y = 100;
        p.design().RedrawButton(2, true, false, false);
        ButtonPicture* picture = p.design().pButtons(2);
        QTest::mousePress(picture, Qt::LeftButton, {}, QPoint(5, 50));
        QMouseEvent move(QEvent::MouseMove, QPointF(5, 50 - 87),
                         picture->mapToGlobal(QPointF(5, 50 - 87)), Qt::NoButton, Qt::LeftButton,
                         modifiers);
        QApplication::sendEvent(picture, &move);
        const bool shown = guides->isVisible();
        QTest::mouseRelease(picture, Qt::LeftButton, {},
                            picture->mapFromGlobal(move.globalPosition().toPoint()));
        EXPECT_FALSE(guides->isVisible());
        return std::pair{int(p.model().button(2).y), shown};
    };
    EXPECT_EQ(dragUp({}), (std::pair{10, true}));
    EXPECT_EQ(p.design().pButtons(2)->y(), 10);
    EXPECT_EQ(dragUp(Qt::AltModifier), (std::pair{13, false}));

    p.design().findChild<QAction*>(QStringLiteral("mnuSnapToButtons"))->trigger();
    EXPECT_EQ(dragUp({}), (std::pair{13, false}));
    p.design().findChild<QAction*>(QStringLiteral("mnuSnapToButtons"))->trigger();
    // A right handle pulled to 3 pixels short of button 2's left edge: the edge snaps.
    ButtonRecord& one = p.model().button(1);
    one.Width = 50;
    p.model().button(2).x = 200;
    p.design().redrawAll();
    QTest::mouseClick(p.design().pButtons(1), Qt::LeftButton, {}, QPoint(3, 3));
    SizerHandle* right = p.design().picSizer(1);
    QTest::mousePress(right, Qt::LeftButton, {}, QPoint(3, 3));
    QTest::mouseMove(right, QPoint(3 + 133, 3)); // the rules alone: right edge 197
    QTest::mouseRelease(right, Qt::LeftButton, {}, QPoint(3 + 133, 3));
    EXPECT_EQ(one.x + one.Width, 200);
    EXPECT_EQ(p.design().pButtons(1)->width(), one.Width);
}
