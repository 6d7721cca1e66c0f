#include "appletbackground.h"
#include "painttesting.h"
#include "rendersurface.h"

#include <QFile>

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
        model.BackGround = 0x00FF00;
    }
    QImage render(bool switchedOff = false) { return renderBackground(model, images, switchedOff); }
};

/// An applet of 120 by 60 on a black background with `count` plain buttons of 30 by 20.
ProjectModel Applet(int count) {
    ProjectModel model;
    model.AppletWidth = 120;
    model.AppletHeight = 60;
    model.BackGround = 0;
    for (int i = 1; i <= count; ++i)
        model.button(i) = PlainButton(30, 20);
    model.ButtonCount = static_cast<std::int16_t>(count);
    return model;
}

} // namespace

TEST_F(AppletBackground, CenterPlacesTheImageInTheMiddleShiftedByTheOffsetOverTheColour) {
    model.BackImg = dir.filePath("gone.jpg").toStdString(); // missing: the plain colour
    EXPECT_TRUE(InkBox(render(), kGreen).isEmpty());
    model.BackImg = SaveMarkedTile(dir, 10, "c.png");
    EXPECT_EQ(Pixel(render(), 25, 15), kRed);
    EXPECT_EQ(InkBox(render(), kGreen), QRect(25, 15, 10, 10));
    model.BgOffsetX = -7;
    model.BgOffsetY = 4;
    EXPECT_EQ(InkBox(render(), kGreen), QRect(18, 19, 10, 10));
}

TEST_F(AppletBackground, TileCoversTheWholeAreaWithTheGridAnchoredAtTheOffset) {
    const QImage tile(QString::fromStdString(kTileGif));
    model.AppletWidth = 100;
    model.AppletHeight = 90;
    model.BackImg = kTileGif;
    model.BackImgStyle = 1;
    model.BgOffsetX = 3;
    model.BgOffsetY = 5;
    const QImage background = render();
    // Left of and above the offset too.
    for (int y = 0; y < 90; ++y)
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(Pixel(background, x, y), tile.pixel((x + 37) % 40, (y + 35) % 40) & 0xFFFFFF)
                << x << "," << y;
}

TEST_F(AppletBackground, StretchScalesTheImageToTheAreaFromTheOffset) {
    model.BackImg = SaveMarkedTile(dir, 4, "s.png");
    model.BackImgStyle = 2;
    // The red pixel of a 4 by 4 image becomes the top left quarter's corner block.
    const QImage background = render();
    EXPECT_EQ(Pixel(background, 0, 0), kRed);
    EXPECT_EQ(Pixel(background, 14, 9), kRed);
    EXPECT_EQ(Pixel(background, 15, 10), kBlue);
    EXPECT_EQ(Pixel(background, 59, 39), kBlue);
    model.BgOffsetX = 20;
    EXPECT_EQ(Pixel(render(), 19, 0), kGreen);
    EXPECT_EQ(Pixel(render(), 20, 0), kRed);
}

TEST_F(AppletBackground, SwitchedOffShowsANeutralCheckerInsteadOfColourAndImage) {
    model.BackImg = SaveMarkedTile(dir, 10, "off.png");
    const QImage off = render(true);
    const QRgb a = Pixel(off, 0, 0), b = Pixel(off, 8, 0);
    EXPECT_NE(a, b);
    EXPECT_EQ(Pixel(off, 8, 8), a);
    for (QRgb c : {a, b})
        EXPECT_TRUE(qRed(c) == qGreen(c) && qGreen(c) == qBlue(c)) << std::hex << c;
}

TEST(ImageCacheTest, ReadsAnImageAgainWhenItsFileChangesOnTheNextPass) {
    QTemporaryDir dir;
    const std::string path = SaveMarkedTile(dir, 4, "swap.png");
    ImageCache images;
    EXPECT_EQ(images.image(path).size(), QSize(4, 4));

    QImage second(6, 6, QImage::Format_RGB32);
    second.fill(Qt::blue);
    ASSERT_TRUE(second.save(QString::fromStdString(path)));
    QFile touched(QString::fromStdString(path));
    ASSERT_TRUE(touched.open(QIODevice::ReadWrite));
    ASSERT_TRUE(touched.setFileTime(QDateTime::currentDateTime().addSecs(5),
                                    QFileDevice::FileModificationTime));
    touched.close();
    EXPECT_EQ(images.image(path).size(), QSize(4, 4)); // once per pass
    images.newPass();
    EXPECT_EQ(images.image(path).size(), QSize(6, 6));
    EXPECT_EQ(Pixel(images.image(path), 0, 0), kBlue);
    EXPECT_TRUE(images.image(dir.filePath("none.png").toStdString()).isNull());
}

TEST(RenderSurface, PaintsTheBackgroundThenTheButtonsInZOrderEachInItsState) {
    ProjectModel model = Applet(2);
    model.button(1).x = 10;
    model.button(1).y = 10;
    model.button(1).BackColorUP = 255;
    model.button(2).x = 30;
    model.button(2).y = 20;
    model.button(2).BackColorUP = 0xFF0000; // later, so on top
    model.button(2).BackColorOVER = 0x00FF00;
    const QImage surface = renderSurface(model, ButtonState::UP);
    EXPECT_EQ(Pixel(surface, 0, 0), 0u);
    EXPECT_EQ(Pixel(surface, 15, 15), kRed);
    EXPECT_EQ(Pixel(surface, 35, 25), kBlue);
    EXPECT_EQ(Pixel(surface, 60, 40), 0u);
    EXPECT_EQ(Pixel(renderSurface(model, ButtonState::OVER), 35, 25), kGreen);
}

TEST(RenderSurface, ATransparentButtonShowsTheBackgroundButNotTheButtonsBelow) {
    QTemporaryDir dir;
    ASSERT_TRUE(Coordinates(7, 5).save(dir.filePath("bg.png")));
    ProjectModel model = Applet(2);
    model.ProjectFileName = dir.filePath("t.orv").toStdString();
    model.BackImg = "bg.png";
    model.BackImgStyle = 1;
    model.button(1).x = 20;
    model.button(1).y = 10;
    model.button(1).BackColorUP = 255;
    model.button(2).x = 25;
    model.button(2).y = 15;
    model.button(2).noBackGround = 1;
    const QImage surface = renderSurface(model, ButtonState::UP);
    ImageCache images;
    images.setProjectFile(model.ProjectFileName);
    EXPECT_EQ(surface.copy(25, 15, 30, 20).convertToFormat(QImage::Format_RGB32),
              renderBackground(model, images, false)
                  .copy(25, 15, 30, 20)
                  .convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(Pixel(surface, 22, 12), kRed);
}
