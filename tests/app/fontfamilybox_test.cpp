#include "fontfamilybox.h"
#include "testapplication.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace orvelin;

TEST(FontFamilyBox, FillsOnceWithEachFamilyOnceAndTheWebFontsAndKeepsTheFontShown) {
    orvelin::testing::TestApplication();
    FontFamilyBox box;
    box.setEditable(true);
    box.setEditText(QStringLiteral("Arial"));
    EXPECT_EQ(box.count(), 0);
    QSignalSpy chosen(&box, &QComboBox::currentTextChanged);

    box.fillFamilies();
    QStringList listed;
    for (int i = 0; i < box.count(); ++i)
        listed << box.itemText(i);
    EXPECT_TRUE(listed.contains(QStringLiteral("Trebuchet MS"))); // a web font
    EXPECT_TRUE(listed.filter(QStringLiteral("[")).isEmpty()) << "no foundry names";
    QStringList once = listed;
    once.removeDuplicates();
    EXPECT_EQ(once, listed);
    EXPECT_EQ(box.itemText(box.currentIndex()), QStringLiteral("Arial"));
    EXPECT_EQ(chosen.count(), 0) << "filling the list is no choice of font";
    // Without Microsoft's fonts, Arial is drawn with a metric-compatible face, and says so.
    EXPECT_EQ(box.itemData(box.currentIndex(), Qt::UserRole + 1).toString(),
              FontFamilyBox::substitute(QStringLiteral("Arial")));

    const int count = box.count();
    box.fillFamilies();
    EXPECT_EQ(box.count(), count);
}

TEST(FontFamilyBox, ATypedNameNoFamilyMatchesStaysAsTyped) {
    orvelin::testing::TestApplication();
    FontFamilyBox box;
    box.setEditable(true);
    box.setEditText(QStringLiteral("No Such Family 123"));
    box.showPopup();
    box.hidePopup();
    EXPECT_TRUE(box.filled());
    EXPECT_EQ(box.currentText(), QStringLiteral("No Such Family 123"));
}
