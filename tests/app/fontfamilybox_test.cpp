#include "fontfamilybox.h"
#include "testapplication.h"

#include <QFontDatabase>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace orvelin;

TEST(FontFamilyBox, FillsOnceWhenFirstNeededAndKeepsTheFontShown) {
    orvelin::testing::TestApplication();
    const QStringList families = QFontDatabase::families();
    ASSERT_GE(families.size(), 2);
    FontFamilyBox box;
    box.setEditable(true);
    box.setEditText(families.last());
    EXPECT_EQ(box.count(), 0);
    QSignalSpy chosen(&box, &QComboBox::currentTextChanged);

    box.fillFamilies();
    EXPECT_EQ(box.count(), families.size());
    EXPECT_EQ(box.currentText(), families.last());
    EXPECT_EQ(box.currentIndex(), families.size() - 1);
    EXPECT_EQ(chosen.count(), 0) << "filling the list is no choice of font";

    box.fillFamilies();
    EXPECT_EQ(box.count(), families.size());
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
