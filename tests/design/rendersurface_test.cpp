#include "appletbackground.h"
#include "painttesting.h"
#include "rendersurface.h"

#include <QTemporaryDir>

using namespace orvelin;
using namespace orvelin::testing;

namespace {

/// An applet of 120 by 60 on a black background with `count` plain buttons.
ProjectModel Applet(int count) {
    ProjectModel model;
    model.AppletWidth = 120;
    model.AppletHeight = 60;
    model.BackGround = 0;
    for (int i = 1; i <= count; ++i)
        model.Button(i) = PlainButton(30, 20, "");
    model.ButtonCount = static_cast<std::int16_t>(count);
    return model;
}

} // namespace

TEST(RenderSurface, PaintsTheBackgroundThenTheButtonsInZOrder) {
    ProjectModel model = Applet(2);
    model.Button(1).x = 10;
    model.Button(1).y = 10;
    model.Button(1).BackColorUP = 255; // red
    model.Button(2).x = 30;
    model.Button(2).y = 20;
    model.Button(2).BackColorUP = 0xFF0000; // blue, later, so on top
    const QImage surface = RenderSurface(model, "UP");
    EXPECT_EQ(surface.size(), QSize(120, 60));
    EXPECT_EQ(Pixel(surface, 0, 0), 0u);
    EXPECT_EQ(Pixel(surface, 15, 15), 0xFF0000u);
    EXPECT_EQ(Pixel(surface, 35, 25), 0x0000FFu); // the overlap belongs to button 2
    EXPECT_EQ(Pixel(surface, 59, 39), 0x0000FFu);
    EXPECT_EQ(Pixel(surface, 60, 40), 0u);
}

TEST(RenderSurface, PaintsTheRequestedStateAndClipsEachButtonToItsRectangle) {
    ProjectModel model = Applet(1);
    ButtonRecord& b = model.Button(1);
    b.x = 40;
    b.y = 20;
    b.BackColorOVER = 0x00FF00;
    b.LabelOVER = "WWWWWWWWWWWWWWWWWWWW"; // far wider than the button
    b.FontColorOVER = 0xFFFFFF;
    const QImage over = RenderSurface(model, "OVER");
    EXPECT_EQ(Pixel(over, 45, 22), 0x00FF00u);
    EXPECT_TRUE(InkBox(over, 0, QRect(0, 0, 40, 60)).isEmpty());
    EXPECT_TRUE(InkBox(over, 0, QRect(70, 0, 50, 60)).isEmpty());
    EXPECT_EQ(Pixel(RenderSurface(model, "UP"), 45, 22), 0xFFFFFFu);
}

TEST(RenderSurface, ATransparentButtonShowsTheBackgroundButNotTheButtonsBelow) {
    QTemporaryDir dir;
    QImage tile(7, 5, QImage::Format_RGB32);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 7; ++x)
            tile.setPixel(x, y, qRgb(30 * x, 40 * y, 90));
    ASSERT_TRUE(tile.save(dir.filePath("bg.png")));
    ProjectModel model = Applet(2);
    model.ProjectFileName = dir.filePath("t.orv").toStdString();
    model.BackImg = "bg.png";
    model.BackImgStyle = 1;
    model.Button(1).x = 20;
    model.Button(1).y = 10;
    model.Button(1).BackColorUP = 255;
    model.Button(2).x = 25;
    model.Button(2).y = 15;
    model.Button(2).noBackGround = 1;

    const QImage surface = RenderSurface(model, "UP");
    ImageCache images;
    images.setProjectFile(model.ProjectFileName);
    const QImage background = RenderBackground(model, images, false);
    for (int y = 15; y < 35; ++y)
        for (int x = 25; x < 55; ++x)
            ASSERT_EQ(Pixel(surface, x, y), Pixel(background, x, y)) << x << "," << y;
    EXPECT_EQ(Pixel(surface, 22, 12), 0xFF0000u);
}

TEST(RenderSurface, DrawsTheMultiSelectionMarkerOnlyForAGroup) {
    ProjectModel model = Applet(2);
    model.Button(2).x = 60;
    ButtonList list;
    list.append();
    list.append();
    list.selectOnly(1);
    RenderOptions options;
    options.selection = &list;
    EXPECT_EQ(RenderSurface(model, "UP", options), RenderSurface(model, "UP"));
    list.addSelection(2);
    const QImage group = RenderSurface(model, "UP", options);
    EXPECT_EQ(Pixel(group, 0, 0), 0u);
    EXPECT_EQ(Pixel(group, 2, 2), 0xFFFFFFu);
    EXPECT_EQ(Pixel(group, 62, 2), 0xFFFFFFu);
    EXPECT_NE(group, RenderSurface(model, "UP"));
}

TEST(RenderSurface, ABackgroundSwitchedOffIsWhatTransparentButtonsShow) {
    ProjectModel model = Applet(1);
    model.BackGround = 0x00FF00;
    model.Button(1).noBackGround = 1;
    RenderOptions options;
    options.noBackGround = true;
    const QImage surface = RenderSurface(model, "UP", options);
    EXPECT_NE(Pixel(surface, 5, 5), 0x00FF00u);
    EXPECT_NE(Pixel(surface, 0, 0), Pixel(surface, 8, 0)); // the checker, under the button too
}
