#include "fakeui.h"
#include "painttesting.h"

#include <QTemporaryDir>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

constexpr QRgb kWhite = 0xFFFFFF;

double CentreX(const QRect& box) {
    return box.left() + box.width() / 2.0;
}
double CentreY(const QRect& box) {
    return box.top() + box.height() / 2.0;
}

/// The bands of rows that hold ink, top to bottom, as [first, last] pairs.
std::vector<std::pair<int, int>> InkBands(const QImage& image, QRgb background) {
    std::vector<std::pair<int, int>> bands;
    for (int y = 0; y < image.height(); ++y) {
        if (!RowHasInk(image, y, background))
            continue;
        if (!bands.empty() && bands.back().second == y - 1)
            bands.back().second = y;
        else
            bands.emplace_back(y, y);
    }
    return bands;
}

} // namespace

TEST(DrawLabel, CentredLabelInkIsCentredWhateverItsLength) {
    for (const char* label : {"H", "HHH", "HIHIHIHIHIH"}) {
        for (QSize size : {QSize(107, 40), QSize(200, 61)}) {
            const QImage picture =
                Paint(OneButton(PlainButton(size.width(), size.height(), label)));
            const QRect ink = InkBox(picture, kWhite);
            ASSERT_FALSE(ink.isEmpty()) << label;
            EXPECT_NEAR(CentreX(ink), size.width() / 2.0, 1.0) << label << " in " << size.width();
            EXPECT_NEAR(CentreY(ink), size.height() / 2.0, 2.0) << label << " in " << size.height();
        }
    }
}

TEST(DrawLabel, StyleCodesSelectBoldAndItalic) {
    auto inkOf = [](const std::string& style) {
        ButtonRecord b = PlainButton(200, 40, "IIIIIIII");
        b.FontStyleUP = style;
        return Paint(OneButton(b));
    };
    const QImage regular = inkOf("0");
    const QImage bold = inkOf("1");
    const QImage italic = inkOf("2");
    const QImage both = inkOf("3");

    // Bold strokes are heavier, so the same letters take more room.
    EXPECT_GT(InkBox(bold, kWhite).width(), InkBox(regular, kWhite).width());
    EXPECT_GT(InkBox(both, kWhite).width(), InkBox(italic, kWhite).width());

    // An italic upright stroke leans: its top row starts further right than its bottom row.
    auto lean = [](const QImage& image) {
        const QRect box = InkBox(image, kWhite);
        const QRect top = InkBox(image, kWhite, QRect(0, box.top(), image.width(), 1));
        const QRect bottom = InkBox(image, kWhite, QRect(0, box.bottom(), image.width(), 1));
        return top.left() - bottom.left();
    };
    EXPECT_GT(lean(italic), 0);
    EXPECT_GT(lean(both), 0);
    EXPECT_EQ(lean(regular), 0);
    EXPECT_EQ(lean(bold), 0);

    // Any other code is regular.
    EXPECT_EQ(inkOf("7"), regular);
    EXPECT_EQ(inkOf("x"), regular);
    EXPECT_EQ(inkOf(""), regular);
}

TEST(DrawLabel, SplitsAtBackslashNIntoSeparateLinesFollowingDownwards) {
    const QImage one = Paint(OneButton(PlainButton(120, 60, "FIRST")));
    EXPECT_EQ(InkBands(one, kWhite).size(), 1u);

    const QImage two = Paint(OneButton(PlainButton(120, 60, "FIRST\\nSECOND")));
    const auto bands = InkBands(two, kWhite);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_LT(bands[0].second + 1, bands[1].first);

    // The block as a whole stays centred.
    const QRect ink = InkBox(two, kWhite);
    EXPECT_NEAR(CentreY(ink), 30.0, 2.0);
    // Each line is centred on its own: the longer second line starts further left.
    const QRect first =
        InkBox(two, kWhite, QRect(0, bands[0].first, 120, 1 + bands[0].second - bands[0].first));
    const QRect second =
        InkBox(two, kWhite, QRect(0, bands[1].first, 120, 1 + bands[1].second - bands[1].first));
    EXPECT_LT(second.left(), first.left());
    EXPECT_NEAR(CentreX(first), 60.0, 1.0);
    EXPECT_NEAR(CentreX(second), 60.0, 1.0);

    const QImage three = Paint(OneButton(PlainButton(120, 80, "A\\nB\\nC")));
    EXPECT_EQ(InkBands(three, kWhite).size(), 3u);
}

TEST(DrawLabel, PositionedLabelStartsAtTheLabelPositionOnItsBaseline) {
    ButtonRecord b = PlainButton(107, 40, "HH");
    b.PositionTextUP = 1;
    b.LabelPosXUP = 10;
    b.LabelPosYUP = 20;
    const QRect ink = InkBox(Paint(OneButton(b)), kWhite);
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.left(), 10, 2);
    EXPECT_EQ(ink.bottom(), 19); // capitals sit on the baseline

    // A further line goes below the first one.
    b.LabelUP = "HH\\nHH";
    const auto bands = InkBands(Paint(OneButton(b)), kWhite);
    ASSERT_EQ(bands.size(), 2u);
    EXPECT_EQ(bands[0].second, 19);
    EXPECT_GT(bands[1].first, 20);
}

TEST(DrawLabel, PositionedLabelOutsideTheButtonIsClippedByThePicture) {
    ButtonRecord b = PlainButton(60, 30, "HHHHHHHHHHHH");
    b.PositionTextUP = 1;
    b.LabelPosXUP = -40; // starts left of the button: only the tail shows
    b.LabelPosYUP = 20;
    const QRect ink = InkBox(Paint(OneButton(b)), kWhite);
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_EQ(ink.left(), 0);

    b.LabelPosXUP = 70; // wholly right of the button
    EXPECT_TRUE(InkBox(Paint(OneButton(b)), kWhite).isEmpty());
}

TEST(DrawLabel, OnlyTheEditedStateIsDrawnAndAnUnknownStateDrawsNoLabel) {
    ButtonRecord b = PlainButton(107, 40, "UP");
    b.BackColorOVER = 0xFFFFFF;
    b.FontColorOVER = 0;
    b.LabelOVER = "";
    ProjectModel model = OneButton(b);
    EXPECT_FALSE(InkBox(Paint(model), kWhite).isEmpty());
    model.CurrentState = "OVER";
    EXPECT_TRUE(InkBox(Paint(model), kWhite).isEmpty());
    model.CurrentState = "HOVER";
    EXPECT_TRUE(InkBox(Paint(model), kWhite).isEmpty());
}

TEST(DrawLabel, AnInvalidFontSizeIsReportedOnceAndTheRestIsStillPainted) {
    ButtonRecord b = PlainButton(107, 40, "Go");
    b.FontSizeUP = 0;
    b.Border = 1;
    FakeUserInterface ui;
    const QImage picture = Paint(OneButton(b), 1, nullptr, nullptr, &ui);
    ASSERT_EQ(ui.messages().size(), 1u);
    EXPECT_EQ(ui.messages()[0], "Something wrong\r\nOn DrawLabel(1) \r\nInvalid property value");
    EXPECT_EQ(ui.shown[0].title, "");
    // No label, but the border after it is there.
    EXPECT_TRUE(InkBox(picture, kWhite, QRect(2, 2, 103, 36)).isEmpty());
    EXPECT_NE(Pixel(picture, 106, 39), kWhite);
}

TEST(DrawLabel, AButtonNumberOutsideTheTableIsReported) {
    ProjectModel model = OneButton(PlainButton(10, 10, "x"));
    ImageCache images;
    ButtonPainter painter(model, images);
    painter.setUserInterface(nullptr);
    FakeUserInterface ui;
    painter.setUserInterface(&ui);
    QImage picture = NewPicture(QSize(10, 10));
    QPainter p(&picture);
    EXPECT_FALSE(painter.DrawLabel(p, 103));
    ASSERT_EQ(ui.messages().size(), 1u);
    EXPECT_EQ(ui.messages()[0], "Something wrong\r\nOn DrawLabel(103) \r\nSubscript out of range");
}

TEST(DrawPix, FillsWithTheStateColourRedInTheLowByte) {
    ButtonRecord b = PlainButton(20, 10, "");
    b.BackColorUP = 255;        // red
    b.BackColorOVER = 0xFF0000; // blue
    b.BackColorDOWN = 0x00FF00; // green
    ProjectModel model = OneButton(b);
    EXPECT_EQ(Pixel(Paint(model), 5, 5), qRgb(255, 0, 0) & 0xFFFFFFu);
    model.CurrentState = "OVER";
    EXPECT_EQ(Pixel(Paint(model), 5, 5), qRgb(0, 0, 255) & 0xFFFFFFu);
    model.CurrentState = "DOWN";
    EXPECT_EQ(Pixel(Paint(model), 5, 5), qRgb(0, 255, 0) & 0xFFFFFFu);
}

TEST(DrawBorder, IsARaisedEdgeInShadesOfTheBackgroundAndOnlyWhenSet) {
    ButtonRecord b = PlainButton(40, 20, "");
    b.BackColorUP = 0x808080;
    b.Border = 1;
    const QImage framed = Paint(OneButton(b));
    const QColor back(0x80, 0x80, 0x80);
    for (QPoint light : {QPoint(5, 0), QPoint(0, 5), QPoint(5, 1), QPoint(1, 5)})
        EXPECT_GT(qGray(Pixel(framed, light.x(), light.y())), back.lightness())
            << light.x() << "," << light.y();
    for (QPoint dark : {QPoint(5, 19), QPoint(39, 5), QPoint(5, 18), QPoint(38, 5)})
        EXPECT_LT(qGray(Pixel(framed, dark.x(), dark.y())), back.lightness())
            << dark.x() << "," << dark.y();
    EXPECT_EQ(Pixel(framed, 20, 10), back.rgb() & 0xFFFFFFu);

    // The shades follow the colour: a red button gets a reddish edge.
    b.BackColorUP = 255;
    const QImage red = Paint(OneButton(b));
    EXPECT_GT(qRed(Pixel(red, 5, 19)), qGreen(Pixel(red, 5, 19)));

    b.Border = 0;
    const QImage plain = Paint(OneButton(b));
    EXPECT_EQ(Pixel(plain, 0, 0), qRgb(255, 0, 0) & 0xFFFFFFu);
    EXPECT_EQ(Pixel(plain, 39, 19), qRgb(255, 0, 0) & 0xFFFFFFu);
}

TEST(DrawMultiSelector, MarksEveryButtonOfAGroupButNotASingleSelection) {
    ProjectModel model;
    ButtonList list;
    for (int i = 1; i <= 3; ++i) {
        model.Button(i) = PlainButton(40, 20, "");
        list.append();
    }
    model.ButtonCount = 3;
    for (QRgb colour : {0x000000u, 0xFFFFFFu, 0x00FFFFu}) {
        for (int i = 1; i <= 3; ++i)
            model.Button(i).BackColorUP = static_cast<std::int32_t>(colour);
        const QRgb back = ColorFromRef(static_cast<std::int32_t>(colour)).rgb() & 0xFFFFFFu;

        list.selectOnly(1);
        EXPECT_TRUE(InkBox(Paint(model, 1, nullptr, &list), back).isEmpty());

        list.addSelection(2);
        for (int i : {1, 2}) {
            const QImage marked = Paint(model, i, nullptr, &list);
            // Each corner shows both a dark and a light pixel, so it stands out on any colour.
            const std::pair<QPoint, QPoint> corners[] = {
                {{0, 0}, {2, 2}}, {{39, 0}, {37, 2}}, {{0, 19}, {2, 17}}, {{39, 19}, {37, 17}}};
            for (const auto& [outer, inner] : corners) {
                EXPECT_EQ(Pixel(marked, outer.x(), outer.y()), 0u);
                EXPECT_EQ(Pixel(marked, inner.x(), inner.y()), 0xFFFFFFu);
            }
            EXPECT_EQ(Pixel(marked, 20, 10), back);
        }
        EXPECT_TRUE(InkBox(Paint(model, 3, nullptr, &list), back).isEmpty());
    }
}
