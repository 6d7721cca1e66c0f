#include "surfacezoom.h"

#include <gtest/gtest.h>

using namespace orvelin;

TEST(SurfaceZoom, ConvertsBetweenAppletAndScreenAtFiftyOneFiftyAndThreeHundred) {
    const PixelRect button{10, 20, 100, 30};
    EXPECT_EQ(SurfaceZoom(50).toScreen(button), (PixelRect{5, 10, 50, 15}));
    EXPECT_EQ(SurfaceZoom(150).toScreen(button), (PixelRect{15, 30, 150, 45}));
    EXPECT_EQ(SurfaceZoom(300).toScreen(button), (PixelRect{30, 60, 300, 90}));
    EXPECT_DOUBLE_EQ(SurfaceZoom(50).toApplet(15), 30);
    EXPECT_DOUBLE_EQ(SurfaceZoom(150).toApplet(45), 30);
    EXPECT_DOUBLE_EQ(SurfaceZoom(300).toApplet(-9), -3);
    // A picture keeps its size wherever it stands, so a move never resizes (repaints) it.
    const SurfaceZoom odd(150);
    EXPECT_EQ(odd.toScreen(PixelRect{1, 1, 5, 5}).width, odd.toScreen(PixelRect{2, 2, 5, 5}).width);
    // The snap distance stays five screen pixels, and never falls to nothing.
    EXPECT_EQ(SurfaceZoom(50).appletDistance(5), 10);
    EXPECT_EQ(SurfaceZoom(400).appletDistance(5), 1);
}

TEST(SurfaceZoom, StepsStopAtFiftyAndFourHundredAndAnOddLevelFindsItsNeighbours) {
    EXPECT_EQ(SurfaceZoom().zoomedIn().percent(), 125);
    EXPECT_EQ(SurfaceZoom().zoomedOut().percent(), 75);
    EXPECT_EQ(SurfaceZoom(400).zoomedIn().percent(), 400);
    EXPECT_EQ(SurfaceZoom(50).zoomedOut().percent(), 50);
    EXPECT_EQ(SurfaceZoom(110).zoomedIn().percent(), 125);
    EXPECT_EQ(SurfaceZoom(110).zoomedOut().percent(), 100);
    EXPECT_EQ(SurfaceZoom(10).percent(), 50);
    EXPECT_EQ(SurfaceZoom(900).percent(), 400);
}

TEST(SurfaceZoom, ADragAtThreeHundredPercentMovesByWholeAppletPixelsAndDoesNotCreep) {
    ProjectModel model;
    ButtonList list;
    DragState drag;
    model.button(1).x = 10;
    model.button(1).y = 20;
    list.append();
    model.ButtonCount = 1;
    model.CurrentButton = 1;
    const SurfaceZoom zoom(300);
    const auto drawn = [&] { return zoom.toScreen(buttonRect(model, 1)); };
    // Grabbed at (6, 4) of the picture; the pointer then goes 4 right, 5 down on the screen.
    pressOnButton(model, list, drag, 1, MouseButton::Left, false, zoom.toApplet(6),
                  zoom.toApplet(4));
    const PixelRect before = drawn();
    for (int step = 0; step < 3; ++step) {
        // The pointer stays; the picture has moved under it since the last step.
        const double x = 6 + 4 - (drawn().left - before.left);
        const double y = 4 + 5 - (drawn().top - before.top);
        dragOnButton(model, list, drag, zoom.toApplet(x), zoom.toApplet(y));
    }
    // 4/3 rounds to 1; the grab's y, 4/3, is rounded to 1 as at 100%: 9/3 - 1 = 2.
    EXPECT_EQ(model.button(1).x, 11);
    EXPECT_EQ(model.button(1).y, 22);
}
