#include "fakeui.h"
#include "painttesting.h"

#include <QDir>
#include <QTemporaryDir>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

/// An image whose every pixel tells its own coordinates: red = x, green = y.
QImage CoordinateImage(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x, y, 200));
    return image;
}

/// A tile that is blue but for a red top left pixel.
QImage MarkedTile(int side) {
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(qRgb(0, 0, 255));
    image.setPixel(0, 0, qRgb(255, 0, 0));
    return image;
}

class DrawPixImages : public ::testing::Test {
protected:
    QTemporaryDir dir;

    std::string save(const QImage& image, const char* name, const char* format) {
        const QString path = dir.filePath(QString::fromLatin1(name));
        const bool saved =
            QByteArray(format) == "GIF" ? SaveGif(image, path) : image.save(path, format);
        EXPECT_TRUE(saved) << name;
        return path.toStdString();
    }

    static ProjectModel WithImage(const std::string& path, int style, int width = 100,
                                  int height = 40) {
        ButtonRecord b = PlainButton(width, height, "");
        b.ImageUP = path;
        b.ImgStyleUP = static_cast<std::int16_t>(style);
        return OneButton(b);
    }
};

} // namespace

TEST_F(DrawPixImages, CenterClipsAnOversizedImageEvenlyOnAllSides) {
    const std::string png = save(CoordinateImage(140, 60), "big.png", "PNG");
    const QImage picture = Paint(WithImage(png, 0));
    // 100 by 40 out of 140 by 60: 20 columns and 10 rows cut on each side.
    EXPECT_EQ(Pixel(picture, 0, 0), qRgb(20, 10, 200) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(picture, 99, 0), qRgb(119, 10, 200) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(picture, 0, 39), qRgb(20, 49, 200) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(picture, 99, 39), qRgb(119, 49, 200) & 0xFFFFFFu);
}

TEST_F(DrawPixImages, CenterPlacesASmallImageInTheMiddleOverTheColour) {
    const std::string png = save(CoordinateImage(10, 10), "small.png", "PNG");
    const QImage picture = Paint(WithImage(png, 0));
    EXPECT_EQ(Pixel(picture, 45, 15), qRgb(0, 0, 200) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(picture, 54, 24), qRgb(9, 9, 200) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(picture, 44, 15), 0xFFFFFFu);
    EXPECT_EQ(Pixel(picture, 55, 24), 0xFFFFFFu);
}

TEST_F(DrawPixImages, TileRepeatsAGifFromTheTopLeftCorner) {
    const std::string gif = save(MarkedTile(10), "tile.gif", "GIF");
    const QImage picture = Paint(WithImage(gif, 1, 35, 25));
    for (QPoint marker :
         {QPoint(0, 0), QPoint(10, 0), QPoint(30, 0), QPoint(20, 10), QPoint(30, 20)})
        EXPECT_EQ(Pixel(picture, marker.x(), marker.y()), 0xFF0000u)
            << marker.x() << "," << marker.y();
    for (QPoint plain : {QPoint(5, 5), QPoint(34, 24), QPoint(11, 0), QPoint(0, 24)})
        EXPECT_EQ(Pixel(picture, plain.x(), plain.y()), 0x0000FFu) << plain.x() << "," << plain.y();
}

TEST_F(DrawPixImages, StretchFillsThePictureWithAJpeg) {
    QImage half(20, 10, QImage::Format_RGB32);
    half.fill(qRgb(0, 160, 0));
    for (int y = 0; y < 10; ++y)
        for (int x = 10; x < 20; ++x)
            half.setPixel(x, y, qRgb(160, 0, 160));
    const std::string jpeg = save(half, "halves.jpg", "JPEG");
    const QImage picture = Paint(WithImage(jpeg, 2));
    // No background shows anywhere; the left half is green and the right half purple.
    EXPECT_EQ(InkBox(picture, 0xFFFFFF).size(), QSize(100, 40));
    EXPECT_TRUE(SameColour(picture.pixel(2, 2), qRgb(0, 160, 0), 24));
    EXPECT_TRUE(SameColour(picture.pixel(2, 37), qRgb(0, 160, 0), 24));
    EXPECT_TRUE(SameColour(picture.pixel(97, 2), qRgb(160, 0, 160), 24));
    EXPECT_TRUE(SameColour(picture.pixel(97, 37), qRgb(160, 0, 160), 24));
}

TEST_F(DrawPixImages, AMissingImagePaintsTheColourWithoutAMessage) {
    ButtonRecord b = PlainButton(30, 20, "");
    b.BackColorUP = 0x00FF00;
    b.ImageUP = dir.filePath("nowhere.gif").toStdString();
    FakeUserInterface ui;
    const QImage picture = Paint(OneButton(b), 1, nullptr, nullptr, &ui);
    EXPECT_TRUE(InkBox(picture, qRgb(0, 255, 0)).isEmpty());
    EXPECT_TRUE(ui.shown.empty());

    // Neither does a file that is no image.
    QFile junk(dir.filePath("junk.gif"));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly));
    junk.write("not an image");
    junk.close();
    b.ImageUP = junk.fileName().toStdString();
    EXPECT_TRUE(InkBox(Paint(OneButton(b), 1, nullptr, nullptr, &ui), qRgb(0, 255, 0)).isEmpty());
    EXPECT_TRUE(ui.shown.empty());
}

TEST_F(DrawPixImages, RelativeAndBackslashPathsResolveBesideTheProjectFile) {
    ASSERT_TRUE(QDir(dir.path()).mkpath("art"));
    save(MarkedTile(4), "art/mark.png", "PNG");
    ProjectModel model = WithImage("art\\mark.png", 1, 8, 8);
    model.ProjectFileName = dir.filePath("bar.orv").toStdString();
    const QImage picture = Paint(model);
    EXPECT_EQ(Pixel(picture, 4, 4), 0xFF0000u);
    EXPECT_EQ(Pixel(picture, 1, 1), 0x0000FFu);
}

TEST_F(DrawPixImages, TransparentButtonShowsTheBackgroundUnderIt) {
    const QImage background =
        CoordinateImage(200, 100).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ButtonRecord b = PlainButton(50, 30, "");
    b.noBackGround = 1;
    b.x = 30;
    b.y = 20;
    const QImage picture = Paint(OneButton(b), 1, &background);
    for (int y = 0; y < 30; ++y)
        for (int x = 0; x < 50; ++x)
            ASSERT_EQ(Pixel(picture, x, y), Pixel(background, 30 + x, 20 + y)) << x << "," << y;

    // The state's image is still drawn over the copied background.
    b.ImageUP = save(MarkedTile(2), "dot.png", "PNG");
    const QImage withImage = Paint(OneButton(b), 1, &background);
    EXPECT_EQ(Pixel(withImage, 24, 14), 0xFF0000u);
    EXPECT_EQ(Pixel(withImage, 0, 0), Pixel(background, 30, 20));
}

TEST_F(DrawPixImages, TransparentButtonPartlyOutsideTheBackgroundKeepsItsOldPicture) {
    const QImage background =
        CoordinateImage(200, 100).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ButtonRecord b = PlainButton(50, 30, "");
    b.noBackGround = 1;
    b.x = 170;
    b.y = 20;
    ProjectModel model = OneButton(b);
    ImageCache images;
    ButtonPainter painter(model, images);
    painter.setBackground(&background);
    FakeUserInterface ui;
    painter.setUserInterface(&ui);

    QImage picture = NewPicture(QSize(50, 30));
    picture.fill(qRgb(255, 0, 255));
    QPainter p(&picture);
    EXPECT_FALSE(painter.MakeTransparent(p, 1));
    painter.PaintButton(p, 1);
    p.end();
    EXPECT_TRUE(InkBox(picture, qRgb(255, 0, 255)).isEmpty());
    EXPECT_TRUE(ui.shown.empty());
}
