#include "fakeui.h"
#include "frmsetaction.h"
#include "programbuffer.h"
#include "projectmodel.h"
#include "testapplication.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace orvelin;
using orvelin::testing::FakeUserInterface;

namespace {

QApplication& App() {
    return orvelin::testing::TestApplication();
}

class FrmSetActionTest : public ::testing::Test {
protected:
    void SetUp() override {
        App();
        ProgramBuffer().clear();
        model.ButtonCount = 3;
        model.CurrentButton = 2;
        model.Button(2).ProgramDOWN = "2 1;6 500;";
        dialog = std::make_unique<FrmSetAction>(model, ui, std::vector<bool>{false, true, true});
        dialog->load("ProgramDOWN", "Set Action: On Button Press...");
    }

    template <typename T> T* child(const char* name) {
        T* widget = dialog->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QStringList listed() {
        QStringList lines;
        auto* list = child<QListWidget>("lstActions");
        for (int i = 0; i < list->count(); ++i)
            lines << list->item(i)->text();
        return lines;
    }
    void chooseCommand(int index) { child<QComboBox>("cmbAction")->setCurrentIndex(index); }
    void click(const char* name) {
        QTest::mouseClick(child<QAbstractButton>(name), Qt::LeftButton);
    }

    ProjectModel model;
    FakeUserInterface ui;
    std::unique_ptr<FrmSetAction> dialog;
};

} // namespace

TEST_F(FrmSetActionTest, ControlsCarryTheirNamesAndTexts) {
    EXPECT_EQ(dialog->objectName(), "frmSetAction");
    EXPECT_EQ(dialog->windowTitle(), "Set Action: On Button Press...");
    EXPECT_EQ(child<QPushButton>("btnAdd")->text(), "&Add");
    EXPECT_EQ(child<QPushButton>("btnRemove")->text(), "&Remove");
    EXPECT_EQ(child<QToolButton>("btnUP")->toolTip(), "Move Command Up");
    EXPECT_EQ(child<QToolButton>("btnDown")->toolTip(), "Move Command Down");
    EXPECT_EQ(child<QPushButton>("btnCopyProg")->toolTip(), "Copy Whole Program to Buffer");
    EXPECT_EQ(child<QPushButton>("btnPasteProg")->toolTip(),
              "Append Program from Buffer to Current Program");
    EXPECT_EQ(child<QPushButton>("btnOk")->text(), "&Ok");
    EXPECT_EQ(child<QPushButton>("btnCancel")->text(), "&Cancel");
    EXPECT_EQ(child<QToolButton>("btnGetHexColor")->toolTip(), "Select Color");
    EXPECT_EQ(child<QLabel>("lblMiliseconds")->text(), "Time in miliseconds:");
    EXPECT_EQ(child<QLabel>("lblWidth")->text(), "width:");
    auto* ms = child<QComboBox>("lsMiliseconds");
    EXPECT_TRUE(ms->isEditable());
    EXPECT_EQ(ms->count(), 10);
    EXPECT_EQ(ms->itemText(9), "1000");
    EXPECT_EQ(ms->currentText(), "100");
    EXPECT_EQ(child<QComboBox>("cmbButtonNumber")->itemText(2), "Button 3");
    EXPECT_EQ(child<QComboBox>("cmbStateSelector")->itemText(1), "Mouse-Over");
    EXPECT_EQ(listed(), (QStringList{"Hide Button 1", "Wait: 500 ms"}));
}

TEST_F(FrmSetActionTest, PanelsFollowTheChosenCommand) {
    dialog->show();
    chooseCommand(2);
    EXPECT_TRUE(child<QWidget>("picActionMove")->isVisible());
    EXPECT_FALSE(child<QWidget>("picSetLabel")->isVisible());
    chooseCommand(3);
    EXPECT_TRUE(child<QWidget>("picSetLabel")->isVisible());
    EXPECT_FALSE(child<QWidget>("btnGetHexColor")->isVisible());
    child<QLineEdit>("txtLabel")->setText("Hello");
    chooseCommand(4);
    EXPECT_TRUE(child<QWidget>("btnGetHexColor")->isVisible());
    EXPECT_EQ(child<QLineEdit>("txtLabel")->text(), "");
    chooseCommand(5);
    EXPECT_TRUE(child<QWidget>("picSetTimer")->isVisible());
    EXPECT_FALSE(child<QComboBox>("cmbButtonNumber")->isEnabled());
    chooseCommand(6);
    EXPECT_TRUE(child<QWidget>("txtJavaScript")->isVisible());
    EXPECT_TRUE(child<QComboBox>("cmbButtonNumber")->isEnabled());
}

TEST_F(FrmSetActionTest, AddTakesTheTypedInputsAndShowsWhatTheEditorChanged) {
    chooseCommand(5);
    child<QComboBox>("lsMiliseconds")->setCurrentText("-250");
    click("btnAdd");
    chooseCommand(3);
    child<QComboBox>("cmbButtonNumber")->setCurrentIndex(2);
    click("btnAdd");
    EXPECT_EQ(child<QLineEdit>("txtLabel")->text(), " ");
    EXPECT_EQ(listed(), (QStringList{"Hide Button 1", "Wait: 500 ms", "Wait: 250 ms",
                                     "Set Label Button 3 Up State  ->   "}));
    auto* list = child<QListWidget>("lstActions");
    EXPECT_EQ(list->currentRow(), 3);
    EXPECT_EQ(list->toolTip(), "Set Label Button 3 Up State  ->   ");
}

TEST_F(FrmSetActionTest, WrongMoveBoxIsReportedThroughTheUserInterface) {
    chooseCommand(2);
    child<QLineEdit>("txtX")->setText("10");
    child<QLineEdit>("txtWidth")->setText("abc");
    click("btnAdd");
    ASSERT_EQ(ui.shown.size(), 1u);
    EXPECT_EQ(ui.shown[0].text, "Type mismatch");
    EXPECT_EQ(ui.shown[0].title, "Wrong Parameters");
    EXPECT_EQ(listed().size(), 2);
}

TEST_F(FrmSetActionTest, ListButtonsActOnTheSelectedLine) {
    auto* list = child<QListWidget>("lstActions");
    list->setCurrentRow(1);
    click("btnUP");
    EXPECT_EQ(listed(), (QStringList{"Wait: 500 ms", "Hide Button 1"}));
    EXPECT_EQ(list->currentRow(), 0);
    click("btnCopyProg");
    click("btnPasteProg");
    EXPECT_EQ(listed().size(), 4);
    list->setCurrentRow(3);
    click("btnRemove");
    EXPECT_EQ(listed().size(), 3);
    EXPECT_EQ(list->currentRow(), -1);
}

TEST_F(FrmSetActionTest, DraggingALineReordersTheProgram) {
    auto* list = child<QListWidget>("lstActions");
    ASSERT_TRUE(list->model()->moveRows(QModelIndex(), 0, 1, QModelIndex(), 2));
    EXPECT_EQ(dialog->editor().storeProgram(), "6 500;2 1;");
    QCoreApplication::processEvents();
    EXPECT_EQ(listed(), (QStringList{"Wait: 500 ms", "Hide Button 1"}));
    EXPECT_EQ(list->currentRow(), 1);
}

TEST_F(FrmSetActionTest, DoubleClickPutsTheLineBackIntoTheControls) {
    model.Button(2).ProgramDOWN = "3 2 10 -999 40 -999;";
    dialog->load("ProgramDOWN", "again");
    auto* list = child<QListWidget>("lstActions");
    emit list->itemDoubleClicked(list->item(0));
    EXPECT_EQ(child<QComboBox>("cmbAction")->currentIndex(), 2);
    EXPECT_EQ(child<QComboBox>("cmbButtonNumber")->currentIndex(), 1);
    EXPECT_EQ(child<QLineEdit>("txtX")->text(), "10");
    EXPECT_EQ(child<QLineEdit>("txtY")->text(), "");
    EXPECT_EQ(child<QLineEdit>("txtWidth")->text(), "40");
}

TEST_F(FrmSetActionTest, OkWritesEverySelectedButtonAndCancelNothing) {
    chooseCommand(0);
    click("btnAdd");
    click("btnCancel");
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(model.Button(2).ProgramDOWN, "2 1;6 500;");
    EXPECT_TRUE(model.Saved);

    dialog->load("ProgramDOWN", "again");
    click("btnAdd");
    click("btnOk");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(model.Button(2).ProgramDOWN, "2 1;6 500;1 1;");
    EXPECT_EQ(model.Button(3).ProgramDOWN, "2 1;6 500;1 1;");
    EXPECT_EQ(model.Button(1).ProgramDOWN, "");
    EXPECT_FALSE(model.Saved);
}
