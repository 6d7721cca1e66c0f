#include "fakeui.h"
#include "painttesting.h"
#include "textcatalogue.h"

#include <QDir>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

double CentreX(const QRect& box) {
    return box.left() + box.width() / 2.0;
}

/// The boxes of the bands of rows that hold ink, top to bottom.
std::vector<QRect> InkBands(const QImage& image, QRgb background) {
    std::vector<QRect> bands;
    for (int y = 0; y < image.height(); ++y) {
        const QRect row = InkBox(image, background, QRect(0, y, image.width(), 1));
        if (row.isEmpty())
            continue;
        if (!bands.empty() && bands.back().bottom() == y - 1)
            bands.back() |= row;
        else
            bands.push_back(row);
    }
    return bands;
}

} // namespace

TEST(DrawLabel, StyleCodesSelectBoldAndItalic) {
    auto paint = [](const std::string& style) {
        ButtonRecord b = PlainButton(200, 40, "IIIIIIII");
        b.FontStyleUP = style;
        return Paint(OneButton(b));
    };
    // An italic upright stroke leans: its top row starts further right than its bottom row.
    auto lean = [](const QImage& image) {
        const QRect box = InkBox(image, kWhite);
        return InkBox(image, kWhite, QRect(0, box.top(), image.width(), 1)).left() -
               InkBox(image, kWhite, QRect(0, box.bottom(), image.width(), 1)).left();
    };
    const QImage regular = paint("0"), bold = paint("1"), italic = paint("2"), both = paint("3");
    // Bold strokes are heavier, so the same letters take more room.
    EXPECT_GT(InkBox(bold, kWhite).width(), InkBox(regular, kWhite).width());
    EXPECT_GT(InkBox(both, kWhite).width(), InkBox(italic, kWhite).width());
    EXPECT_GT(lean(italic), 0);
    EXPECT_GT(lean(both), 0);
    EXPECT_EQ(lean(bold), 0);
    for (const char* other : {"7", "x", ""})
        EXPECT_EQ(paint(other), regular) << other;
}

TEST(DrawLabel, SplitsAtBackslashNIntoLinesEachCentredOnItsOwn) {
    const QImage two = Paint(OneButton(PlainButton(120, 60, "FIRST\\nSECOND")));
    const auto bands = InkBands(two, kWhite);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_LT(bands[0].bottom() + 1, bands[1].top());
    const QRect ink = InkBox(two, kWhite);
    EXPECT_NEAR(ink.top() + ink.height() / 2.0, 30.0, 2.0); // the block stays centred
    EXPECT_LT(bands[1].left(), bands[0].left());            // the longer line starts left
    EXPECT_NEAR(CentreX(bands[0]), 60.0, 1.0);
    EXPECT_NEAR(CentreX(bands[1]), 60.0, 1.0);
}

TEST(DrawLabel, PositionedLabelSitsOnItsBaselineAndIsClippedByThePicture) {
    ButtonRecord b = PlainButton(107, 40, "HH");
    b.PositionTextUP = 1;
    b.LabelPosXUP = 10;
    b.LabelPosYUP = 20;
    const QRect ink = InkBox(Paint(OneButton(b)), kWhite);
    EXPECT_NEAR(ink.left(), 10, 2);
    EXPECT_EQ(ink.bottom(), 19); // capitals sit on the baseline

    b = PlainButton(60, 30, "HHHHHHHHHHHH");
    b.PositionTextUP = 1;
    b.LabelPosXUP = -40; // starts left of the button: only the tail shows
    b.LabelPosYUP = 20;
    EXPECT_EQ(InkBox(Paint(OneButton(b)), kWhite).left(), 0);
    b.LabelPosXUP = 70; // wholly right of the button
    EXPECT_TRUE(InkBox(Paint(OneButton(b)), kWhite).isEmpty());
}

TEST(DrawLabel, AnInvalidFontSizeIsReportedOnceAndTheBorderIsStillPainted) {
    ButtonRecord b = PlainButton(107, 40, "Go");
    b.FontSizeUP = 0;
    b.Border = 1;
    FakeUserInterface ui;
    const QImage picture = Paint(OneButton(b), 1, nullptr, nullptr, &ui);
    ASSERT_EQ(ui.texts(), std::vector<std::string>(
                              {"Something wrong\r\nOn DrawLabel(1) \r\nInvalid property value"}));
    EXPECT_TRUE(InkBox(picture, kWhite, QRect(2, 2, 103, 36)).isEmpty());
    EXPECT_NE(Pixel(picture, 106, 39), kWhite);
}

// The placements themselves are checked on the applet background (rendersurface_test).
TEST(DrawPix, CenterClipsAnOversizedImageEvenly) {
    QTemporaryDir dir;
    const QString big = dir.filePath("big.png");
    ASSERT_TRUE(Coordinates(140, 60).save(big));
    // 100 by 40 out of 140 by 60: 20 columns and 10 rows cut on each side.
    ButtonRecord b = PlainButton(100, 40);
    b.ImageUP = big.toStdString();
    b.ImgStyleUP = 0; // Center
    const QImage clipped = Paint(OneButton(b));
    EXPECT_EQ(Pixel(clipped, 0, 0), qRgb(20, 10, 200) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(clipped, 99, 39), qRgb(119, 49, 200) & 0xFFFFFFu);
}

TEST(DrawPix, AMissingOrBrokenImagePaintsTheColourWithoutAMessage) {
    QTemporaryDir dir;
    QFile junk(dir.filePath("junk.gif"));
    ASSERT_TRUE(junk.open(QIODevice::WriteOnly) && junk.write("not an image") > 0);
    junk.close();
    for (const QString& file : {dir.filePath("nowhere.gif"), junk.fileName()}) {
        ButtonRecord b = PlainButton(30, 20);
        b.BackColorUP = 0x00FF00;
        b.ImageUP = file.toStdString();
        FakeUserInterface ui;
        EXPECT_TRUE(InkBox(Paint(OneButton(b), 1, nullptr, nullptr, &ui), kGreen).isEmpty());
        EXPECT_TRUE(ui.shown.empty());
    }
}

TEST(DrawPix, TransparentButtonShowsTheBackgroundUnderIt) {
    QTemporaryDir dir;
    const QImage background =
        Coordinates(200, 100).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    ButtonRecord b = PlainButton(50, 30);
    b.noBackGround = 1;
    b.x = 30;
    b.y = 20;
    // The state's image is drawn over the copied background.
    b.ImageUP = SaveMarkedTile(dir, 2, "dot.png");
    const QImage withImage = Paint(OneButton(b), 1, &background);
    EXPECT_EQ(Pixel(withImage, 24, 14), kRed);
    EXPECT_EQ(Pixel(withImage, 0, 0), Pixel(background, 30, 20));

    // Partly outside the background: nothing is copied, the picture stays as it was,
    // and no message is shown.
    b.ImageUP.clear();
    b.x = 170;
    orvelin::testing::FakeUserInterface ui;
    const QImage outside = Paint(OneButton(b), 1, &background, nullptr, &ui);
    EXPECT_EQ(qAlpha(outside.pixel(0, 0)), 0);
    EXPECT_TRUE(ui.shown.empty());
}

TEST(DrawBorder, IsARaisedEdgeInShadesOfTheBackgroundAndOnlyWhenSet) {
    ButtonRecord b = PlainButton(40, 20);
    b.BackColorUP = 0x808080;
    b.Border = 1;
    const QImage framed = Paint(OneButton(b));
    EXPECT_GT(qGray(framed.pixel(5, 0)), 0x80);
    EXPECT_GT(qGray(framed.pixel(1, 5)), 0x80);
    EXPECT_LT(qGray(framed.pixel(5, 19)), 0x80);
    EXPECT_LT(qGray(framed.pixel(38, 5)), 0x80);
    EXPECT_EQ(Pixel(framed, 20, 10), 0x808080u);

    b.BackColorUP = 255; // the shades follow the colour: a red button gets a reddish edge
    const QImage red = Paint(OneButton(b));
    EXPECT_GT(qRed(red.pixel(5, 19)), qGreen(red.pixel(5, 19)));
    b.Border = 0;
    EXPECT_TRUE(InkBox(Paint(OneButton(b)), kRed).isEmpty());
}

TEST(DrawMultiSelector, MarksEveryButtonOfAGroupButNotASingleSelection) {
    ProjectModel model;
    ButtonList list;
    for (int i = 1; i <= 3; ++i) {
        model.button(i) = PlainButton(40, 20);
        list.append();
    }
    model.ButtonCount = 3;
    for (QRgb colour : {0x000000u, 0xFFFFFFu, 0x00FFFFu}) {
        for (int i = 1; i <= 3; ++i)
            model.button(i).BackColorUP = static_cast<std::int32_t>(colour);
        const QRgb back = colorFromRef(static_cast<std::int32_t>(colour)).rgb() & 0xFFFFFFu;
        list.selectOnly(1);
        EXPECT_TRUE(InkBox(Paint(model, 1, nullptr, &list), back).isEmpty());
        list.addSelection(2);
        // Each corner shows both a dark and a light pixel, so it stands out on any colour.
        const QImage marked = Paint(model, 2, nullptr, &list);
        for (const auto& [outer, inner] :
             {std::pair{QPoint(0, 0), QPoint(2, 2)}, {QPoint(39, 19), QPoint(37, 17)}}) {
            EXPECT_EQ(Pixel(marked, outer.x(), outer.y()), 0u);
            EXPECT_EQ(Pixel(marked, inner.x(), inner.y()), 0xFFFFFFu);
        }
        EXPECT_EQ(Pixel(marked, 20, 10), back);
        EXPECT_FALSE(InkBox(Paint(model, 1, nullptr, &list), back).isEmpty());
        EXPECT_TRUE(InkBox(Paint(model, 3, nullptr, &list), back).isEmpty());
    }
}
