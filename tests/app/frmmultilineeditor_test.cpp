#include "frmmultilineeditor.h"
#include "testapplication.h"

#include <QApplication>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

QApplication& App() {
    return orvelin::testing::TestApplication();
}

/// The main editor's label field, with a change handler standing in for its own.
struct LabelField {
    QApplication& app = App(); // before any widget
    QLineEdit txtLabel;
    QStringList stored;
    LabelField() {
        QObject::connect(&txtLabel, &QLineEdit::textChanged,
                         [this](const QString& text) { stored << text; });
    }
};

} // namespace

TEST(MultiLineLabel, LineBreaksAndBackslashPairsTurnIntoEachOther) {
    EXPECT_EQ(LabelToEditorText(QStringLiteral("a\\nb\\n")), QStringLiteral("a\nb\n"));
    EXPECT_EQ(EditorTextToLabel(QStringLiteral("a\r\nb\nc\rd")), QStringLiteral("a\\nb\\nc\\nd"));
    EXPECT_EQ(EditorTextToLabel(LabelToEditorText(QStringLiteral("one\\n\\ntwo"))),
              QStringLiteral("one\\n\\ntwo"));
}

TEST(FrmMultiLineEditor, OpensTheLabelAsLinesWithoutChangingIt) {
    LabelField field;
    field.txtLabel.setText(QStringLiteral("a\\nb"));
    field.stored.clear();

    FrmMultiLineEditor editor(&field.txtLabel);
    editor.show();
    EXPECT_EQ(editor.txtEditor()->toPlainText(), QStringLiteral("a\nb"));
    EXPECT_EQ(editor.txtEditor()->blockCount(), 2);
    EXPECT_TRUE(field.stored.isEmpty());
    EXPECT_EQ(field.txtLabel.text(), QStringLiteral("a\\nb"));
}

TEST(FrmMultiLineEditor, EveryKeystrokeReachesTheLabelField) {
    LabelField field;
    field.txtLabel.setText(QStringLiteral("a\\nb"));
    field.stored.clear();
    FrmMultiLineEditor editor(&field.txtLabel);
    editor.show();

    editor.txtEditor()->moveCursor(QTextCursor::End);
    QTest::keyClick(editor.txtEditor(), Qt::Key_Return);
    QTest::keyClick(editor.txtEditor(), Qt::Key_C);
    EXPECT_EQ(field.txtLabel.text(), QStringLiteral("a\\nb\\nc"));
    EXPECT_EQ(field.stored, QStringList({QStringLiteral("a\\nb\\n"), QStringLiteral("a\\nb\\nc")}));
    EXPECT_TRUE(editor.isVisible()); // Enter makes a line, it does not close
}

TEST(FrmMultiLineEditor, ShowingAgainPicksUpALabelChangedMeanwhile) {
    LabelField field;
    FrmMultiLineEditor editor(&field.txtLabel);
    editor.show();
    QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("btnClose")), Qt::LeftButton);
    EXPECT_FALSE(editor.isVisible());

    field.txtLabel.setText(QStringLiteral("x\\ny\\nz"));
    field.stored.clear();
    editor.show();
    EXPECT_EQ(editor.txtEditor()->blockCount(), 3);
    EXPECT_TRUE(field.stored.isEmpty());
}
