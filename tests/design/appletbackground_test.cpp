#include "appletbackground.h"
#include "painttesting.h"

#include <QTemporaryDir>
#include <QThread>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

class AppletBackground : public ::testing::Test {
protected:
    QTemporaryDir dir;
    ProjectModel model;
    ImageCache images;

    void SetUp() override {
        model.AppletWidth = 60;
        model.AppletHeight = 40;
        model.BackGround = 0x00FF00; // green
    }

    std::string saveTile(int side, const char* name) {
        QImage tile(side, side, QImage::Format_RGB32);
        tile.fill(qRgb(0, 0, 255));
        tile.setPixel(0, 0, qRgb(255, 0, 0));
        const QString path = dir.filePath(QString::fromLatin1(name));
        EXPECT_TRUE(path.endsWith(".gif") ? SaveGif(tile, path) : tile.save(path));
        return path.toStdString();
    }

    QImage render(bool switchedOff = false) { return RenderBackground(model, images, switchedOff); }
};

constexpr QRgb kGreen = 0x00FF00;
constexpr QRgb kRed = 0xFF0000;
constexpr QRgb kBlue = 0x0000FF;

} // namespace

TEST_F(AppletBackground, IsTheBackGroundColourOverTheWholeArea) {
    const QImage background = render();
    EXPECT_EQ(background.size(), QSize(60, 40));
    EXPECT_TRUE(InkBox(background, kGreen).isEmpty());
}

TEST_F(AppletBackground, CenterPlacesTheImageInTheMiddleShiftedByTheOffset) {
    model.BackImg = saveTile(10, "c.png");
    EXPECT_EQ(Pixel(render(), 25, 15), kRed);
    EXPECT_EQ(InkBox(render(), kGreen), QRect(25, 15, 10, 10));

    model.BgOffsetX = -7;
    model.BgOffsetY = 4;
    EXPECT_EQ(InkBox(render(), kGreen), QRect(18, 19, 10, 10));
}

TEST_F(AppletBackground, TileCoversTheWholeAreaWithTheGridAnchoredAtTheOffset) {
    model.BackImg = saveTile(10, "t.gif");
    model.BackImgStyle = 1;
    model.BgOffsetX = 3;
    model.BgOffsetY = 5;
    const QImage background = render();
    // No colour is left anywhere, also left of and above the offset.
    EXPECT_TRUE(InkBox(background, kGreen) == background.rect());
    for (QPoint marker : {QPoint(3, 5), QPoint(13, 5), QPoint(53, 35), QPoint(3, 25)})
        EXPECT_EQ(Pixel(background, marker.x(), marker.y()), kRed)
            << marker.x() << "," << marker.y();
    EXPECT_EQ(Pixel(background, 0, 0), kBlue);
    EXPECT_EQ(Pixel(background, 4, 5), kBlue);
}

TEST_F(AppletBackground, StretchScalesTheImageToTheArea) {
    model.BackImg = saveTile(4, "s.png");
    model.BackImgStyle = 2;
    const QImage background = render();
    // The red pixel of a 4 by 4 image becomes the top left quarter's corner block.
    EXPECT_EQ(Pixel(background, 0, 0), kRed);
    EXPECT_EQ(Pixel(background, 14, 9), kRed);
    EXPECT_EQ(Pixel(background, 59, 39), kBlue);
    EXPECT_EQ(Pixel(background, 30, 20), kBlue);

    model.BgOffsetX = 20;
    const QImage shifted = render();
    EXPECT_EQ(Pixel(shifted, 19, 0), kGreen);
    EXPECT_EQ(Pixel(shifted, 20, 0), kRed);
}

TEST_F(AppletBackground, AMissingImageLeavesThePlainColour) {
    model.BackImg = dir.filePath("gone.jpg").toStdString();
    model.BackImgStyle = 1;
    EXPECT_TRUE(InkBox(render(), kGreen).isEmpty());
}

TEST_F(AppletBackground, SwitchedOffShowsANeutralCheckerInsteadOfColourAndImage) {
    model.BackImg = saveTile(10, "off.png");
    const QImage off = render(true);
    const QRgb a = Pixel(off, 0, 0);
    const QRgb b = Pixel(off, 8, 0);
    EXPECT_NE(a, b);
    EXPECT_EQ(Pixel(off, 8, 8), a);
    for (QRgb c : {a, b}) {
        EXPECT_EQ(qRed(c), qGreen(c));
        EXPECT_EQ(qGreen(c), qBlue(c));
    }
}

TEST(ImageCacheTest, ReadsAnImageAgainWhenItsFileChanges) {
    QTemporaryDir dir;
    const QString path = dir.filePath("swap.png");
    QImage first(4, 4, QImage::Format_RGB32);
    first.fill(Qt::red);
    ASSERT_TRUE(first.save(path));
    ImageCache images;
    EXPECT_EQ(Pixel(images.image(path.toStdString()), 0, 0), kRed);

    QImage second(6, 6, QImage::Format_RGB32);
    second.fill(Qt::blue);
    ASSERT_TRUE(second.save(path));
    QFile touched(path);
    ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
    ASSERT_TRUE(touched.setFileTime(QDateTime::currentDateTime().addSecs(5),
                                    QFileDevice::FileModificationTime));
    touched.close();
    // Within one pass the file is looked at once; the next pass sees the change.
    EXPECT_EQ(images.image(path.toStdString()).size(), QSize(4, 4));
    images.newPass();
    const QImage again = images.image(path.toStdString());
    EXPECT_EQ(again.size(), QSize(6, 6));
    EXPECT_EQ(Pixel(again, 0, 0), kBlue);

    EXPECT_TRUE(images.image("").isNull());
    EXPECT_TRUE(images.image(dir.filePath("none.png").toStdString()).isNull());
}
