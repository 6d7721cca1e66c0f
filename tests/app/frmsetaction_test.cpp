#include "fakeui.h"
#include "frmsetaction.h"
#include "programbuffer.h"
#include "projectmodel.h"
#include "testapplication.h"

#include <QAbstractItemModel>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

/// The dialog on ProgramDOWN of button 2 ("2 1;6 500;"), buttons 2 and 3 selected.
class FrmSetActionTest : public ::testing::Test {
protected:
    void SetUp() override {
        orvelin::testing::TestApplication();
        model.ButtonCount = 3;
        model.CurrentButton = 2;
        model.button(2).ProgramDOWN = "2 1;6 500;";
        // The state captions as the main editor hands them over.
        dialog = std::make_unique<FrmSetAction>(
            model, ui, buffer, std::vector<bool>{false, true, true}, nullptr,
            std::array<std::string, 3>{"Up State", "Mouse-Over", "Down State"});
        dialog->load(ProgramKind::ProgramDOWN);
    }

    template <typename T = QWidget> T* child(const char* name) {
        return orvelin::testing::Child<T>(*dialog, name);
    }
    QStringList listed() {
        QStringList lines;
        for (int i = 0; i < list()->count(); ++i)
            lines << list()->item(i)->text();
        return lines;
    }
    QListWidget* list() { return child<QListWidget>("lstActions"); }
    void choose(int command) { child<QComboBox>("cmbAction")->setCurrentIndex(command); }
    void click(const char* name) {
        QTest::mouseClick(child<QAbstractButton>(name), Qt::LeftButton);
    }

    ProjectModel model;
    orvelin::testing::FakeUserInterface ui;
    ProgramBuffer buffer;
    std::unique_ptr<FrmSetAction> dialog;
};

} // namespace

TEST_F(FrmSetActionTest, AddTakesTheTypedInputsAndShowsWhatTheEditorChanged) {
    choose(5);
    child<QComboBox>("lsMiliseconds")->setCurrentText("-250");
    click("btnAdd");
    choose(3);
    child<QComboBox>("cmbButtonNumber")->setCurrentIndex(2);
    click("btnAdd");
    EXPECT_EQ(child<QLineEdit>("txtLabel")->text(), " ");
    EXPECT_EQ(listed(), (QStringList{"Hide Button 1", "Wait: 500 ms", "Wait: 250 ms",
                                     "Set Label Button 3 Up State  ->   "}));
    EXPECT_EQ(list()->currentRow(), 3);
    EXPECT_EQ(list()->toolTip(), "Set Label Button 3 Up State  ->   ");
}

TEST_F(FrmSetActionTest, ListButtonsDragAndDoubleClickActOnTheSelectedLine) {
    list()->setCurrentRow(1);
    click("btnUP");
    EXPECT_EQ(listed(), (QStringList{"Wait: 500 ms", "Hide Button 1"}));
    EXPECT_EQ(list()->currentRow(), 0);
    ASSERT_TRUE(list()->model()->moveRows(QModelIndex(), 0, 1, QModelIndex(), 2));
    EXPECT_EQ(dialog->editor().storeProgram(), "2 1;6 500;");

    emit list()->itemDoubleClicked(list()->item(0));
    EXPECT_EQ(child<QComboBox>("cmbAction")->currentIndex(), 1);
    click("btnRemove");
    EXPECT_EQ(listed().size(), 1);
}

TEST_F(FrmSetActionTest, OkWritesEverySelectedButtonAndCancelNothing) {
    choose(0);
    click("btnAdd");
    click("btnCancel");
    EXPECT_EQ(dialog->result(), QDialog::Rejected);
    EXPECT_EQ(model.button(2).ProgramDOWN, "2 1;6 500;");
    EXPECT_TRUE(model.Saved);

    dialog->load(ProgramKind::ProgramDOWN);
    click("btnAdd");
    click("btnOk");
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(model.button(2).ProgramDOWN, "2 1;6 500;1 1;");
    EXPECT_EQ(model.button(3).ProgramDOWN, "2 1;6 500;1 1;");
    EXPECT_EQ(model.button(1).ProgramDOWN, "");
    EXPECT_FALSE(model.Saved);
}
