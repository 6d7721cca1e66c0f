#include "frmmultilineeditor.h"
#include "testapplication.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <gtest/gtest.h>

using namespace orvelin;

TEST(MultiLineLabel, LineBreaksAndBackslashPairsTurnIntoEachOther) {
    EXPECT_EQ(labelToEditorText(QStringLiteral("a\\nb\\n")), QStringLiteral("a\nb\n"));
    EXPECT_EQ(editorTextToLabel(QStringLiteral("a\r\nb\nc\rd")), QStringLiteral("a\\nb\\nc\\nd"));
}

TEST(FrmMultiLineEditor, ShowsTheLabelAsLinesAndEveryKeystrokeReachesTheLabelField) {
    orvelin::testing::TestApplication();
    QLineEdit txtLabel(QStringLiteral("a\\nb"));
    QStringList stored; // what the main editor's change handler would store
    QObject::connect(&txtLabel, &QLineEdit::textChanged, [&](const QString& t) { stored << t; });
    FrmMultiLineEditor editor(&txtLabel);
    editor.show();
    EXPECT_EQ(editor.txtEditor()->toPlainText(), QStringLiteral("a\nb"));
    EXPECT_TRUE(stored.isEmpty()); // opening changes nothing

    editor.txtEditor()->moveCursor(QTextCursor::End);
    QTest::keyClick(editor.txtEditor(), Qt::Key_Return);
    QTest::keyClick(editor.txtEditor(), Qt::Key_C);
    EXPECT_EQ(stored, QStringList({QStringLiteral("a\\nb\\n"), QStringLiteral("a\\nb\\nc")}));
    EXPECT_TRUE(editor.isVisible()); // Enter makes a line, it does not close

    // Closed and shown again, it picks up a label changed meanwhile.
    QTest::mouseClick(editor.findChild<QPushButton*>(QStringLiteral("btnClose")), Qt::LeftButton);
    EXPECT_FALSE(editor.isVisible());
    txtLabel.setText(QStringLiteral("x\\ny\\nz"));
    stored.clear();
    editor.show();
    EXPECT_EQ(editor.txtEditor()->blockCount(), 3);
    EXPECT_TRUE(stored.isEmpty());
}
