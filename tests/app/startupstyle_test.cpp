#include "startupstyle.h"
#include "testapplication.h"

#include <QApplication>
#include <QPixmap>
#include <QStyleOption>
#include <gtest/gtest.h>

using namespace orvelin;

namespace {

QImage Picture(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal) {
    return icon.pixmap(QSize(side, side), 1.0, mode).toImage();
}

} // namespace

TEST(StartupStyle, StandardIconsDrawAsTheDesktopStylesOwn) {
    orvelin::testing::TestApplication();
    StartupStyle style;
    for (const QStyle::StandardPixmap which :
         {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_ToolBarVerticalExtensionButton,
          QStyle::SP_MessageBoxWarning, QStyle::SP_DialogOkButton}) {
        const QIcon deferred = style.standardIcon(which);
        const QIcon own = style.baseStyle()->standardIcon(which);
        EXPECT_EQ(deferred.isNull(), own.isNull()) << which;
        EXPECT_EQ(deferred.availableSizes(), own.availableSizes()) << which;
        for (int side : {8, 16, 32}) {
            EXPECT_EQ(Picture(deferred, side), Picture(own, side)) << which << " at " << side;
            EXPECT_EQ(Picture(deferred, side, QIcon::Disabled), Picture(own, side, QIcon::Disabled))
                << which << " at " << side;
        }
    }
}

TEST(StartupStyle, RightToLeftIconsKeepTheirDirection) {
    orvelin::testing::TestApplication();
    StartupStyle style;
    QStyleOption option;
    option.direction = Qt::RightToLeft;
    const QIcon deferred = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, &option);
    const QIcon own =
        style.baseStyle()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, &option);
    EXPECT_EQ(Picture(deferred, 16), Picture(own, 16));
}

// Fails when Qt stops finding the frame where it is left: the designer then loads every
// image-format plugin again at its first paint.
TEST(StartupStyle, QtFindsThePreloadedGroupBoxFrame) {
    orvelin::testing::TestApplication();
    const QPixmap preloaded = StartupStyle::PreloadGroupBoxFrame();
    ASSERT_FALSE(preloaded.isNull());
    const QPixmap loaded(
        QStringLiteral(":/qt-project.org/styles/commonstyle/images/fusion_groupbox.png"));
    EXPECT_EQ(loaded.cacheKey(), preloaded.cacheKey());
}
