#include "layouttools.h"

#include <gtest/gtest.h>

using namespace orvelin;
using Rects = std::vector<PixelRect>;

namespace {

std::vector<int> Lefts(const Rects& rs) {
    std::vector<int> out;
    for (const PixelRect& r : rs)
        out.push_back(r.left);
    return out;
}

std::vector<int> Tops(const Rects& rs) {
    std::vector<int> out;
    for (const PixelRect& r : rs)
        out.push_back(r.top);
    return out;
}

const PixelRect kArea{0, 0, 400, 100};

} // namespace

TEST(Align, EdgesAndCentresLineUpOnTheReferenceAndHalfPixelsGoLeftAlsoOutsideTheArea) {
    // The reference (index 1) is 5 wide: its centre lies between two pixels.
    const Rects rs{{40, 3, 10, 8}, {-21, 20, 5, 7}, {100, -9, 4, 30}};
    EXPECT_EQ(Lefts(align(rs, 1, AlignTo::Left)), (std::vector<int>{-21, -21, -21}));
    EXPECT_EQ(Lefts(align(rs, 1, AlignTo::Right)), (std::vector<int>{-26, -21, -20}));
    // Centre -18.5: a 10 wide button starts at -23.5 -> -24, a 4 wide one at -20.5 -> -21.
    EXPECT_EQ(Lefts(align(rs, 1, AlignTo::HorizontalCentre)), (std::vector<int>{-24, -21, -21}));
    EXPECT_EQ(Tops(align(rs, 1, AlignTo::Bottom)), (std::vector<int>{19, 20, -3}));
    // Centre 23.5: 8 high -> 19.5 -> 19; 30 high -> 8.5 -> 8.
    EXPECT_EQ(Tops(align(rs, 1, AlignTo::VerticalCentre)), (std::vector<int>{19, 20, 8}));
    // Sizes never change; the other axis stays.
    const Rects top = align(rs, 0, AlignTo::Top);
    EXPECT_EQ(top[2], (PixelRect{100, 3, 4, 30}));
    // One button, or a reference that is not there: nothing moves.
    EXPECT_EQ(align({{7, 8, 9, 10}}, 0, AlignTo::Right), (Rects{{7, 8, 9, 10}}));
    EXPECT_EQ(align(rs, 3, AlignTo::Left), rs);
}

TEST(Distribute, EqualGapsInScreenOrderWithOddSpaceAndEndsThatStay) {
    // Given out of order; 40 free pixels over 3 gaps: 13, 13, 14, the last still ends at 100.
    const Rects rs{{85, 0, 15, 5}, {0, 0, 10, 5}, {50, 7, 20, 5}, {12, 9, 15, 5}};
    const Rects out = distributeHorizontally(rs);
    EXPECT_EQ(Lefts(out), (std::vector<int>{85, 0, 51, 23}));
    EXPECT_EQ(Tops(out), Tops(rs));
    // Overlapping more than there is room: equal negative gaps, ends kept.
    const Rects tight{{-10, 0, 5, 30}, {-10, 20, 5, 30}, {-10, 10, 5, 30}};
    EXPECT_EQ(Tops(distributeVertically(tight)), (std::vector<int>{0, 20, 10}));
    const Rects crowded{{0, -5, 5, 30}, {0, 0, 5, 30}, {0, 10, 5, 30}};
    // Span -5..40, 90 high: free -45 over 2 gaps: -23, -22.
    EXPECT_EQ(Tops(distributeVertically(crowded)), (std::vector<int>{-5, 2, 10}));
    // Two buttons have nothing to distribute.
    const Rects two{{0, 0, 5, 5}, {90, 0, 5, 5}};
    EXPECT_EQ(distributeHorizontally(two), two);
}

TEST(MakeSameSize, TakesTheReferenceSizeAndKeepsCorners) {
    const Rects rs{{1, 2, 30, 40}, {-5, 6, 7, 8}};
    EXPECT_EQ(makeSameSize(rs, 1, SameSize::Width), (Rects{{1, 2, 7, 40}, {-5, 6, 7, 8}}));
    EXPECT_EQ(makeSameSize(rs, 1, SameSize::Height), (Rects{{1, 2, 30, 8}, {-5, 6, 7, 8}}));
    EXPECT_EQ(makeSameSize(rs, 0, SameSize::Both), (Rects{{1, 2, 30, 40}, {-5, 6, 30, 40}}));
}

TEST(Snap, NearestCandidateWinsWithinTheThresholdOnly) {
    const SnapOptions opts{5, true, 0};
    const Rects others{{100, 50, 40, 20}, {200, 10, 30, 30}};
    // Left 203 is 3 from the second button's left (and the area's centre); the centre
    // 213 is 2 from its centre 215: the centre wins.
    SnapResult r = snap({203, 80, 20, 10}, SnapAll, 0, others, kArea, opts);
    EXPECT_EQ(r.dx, 2);
    ASSERT_EQ(r.guides.size(), 1U);
    EXPECT_TRUE(r.guides[0].vertical);
    EXPECT_DOUBLE_EQ(r.guides[0].at, 215);
    // The guide runs from the target's top to the moving button's bottom.
    EXPECT_EQ(r.guides[0].from, 10);
    EXPECT_EQ(r.guides[0].to, 90);
    // 6 pixels from the first button's right edge: no snap, no guide.
    r = snap({146, 300, 10, 10}, SnapAll, SnapAll, others, kArea, opts);
    EXPECT_EQ(r.dx, 0);
    EXPECT_EQ(r.dy, 0);
    EXPECT_TRUE(r.guides.empty());
    // Exactly at the threshold still snaps; the area's bottom edge (100) and right (400).
    r = snap({385, 85, 10, 10}, SnapAll, SnapAll, {}, kArea, opts);
    EXPECT_EQ(r.dx, 5);
    EXPECT_EQ(r.dy, 5);
    EXPECT_EQ(r.guides.size(), 2U);
    // Off: nothing at all.
    r = snap({203, 80, 20, 10}, SnapAll, SnapAll, others, kArea, {5, false, 0});
    EXPECT_EQ(r.dx, 0);
    EXPECT_TRUE(r.guides.empty());
}

TEST(Snap, CentresAtHalfPixelsAndOnlyTheAskedLinesOfAResize) {
    const SnapOptions opts{5, true, 0};
    // A 7 wide button's centre is at left + 3.5; the other's centre at 110.
    // Left 104 -> centre 107.5, 2.5 away -> moves by 2 (the half pixel goes left).
    SnapResult r = snap({104, 0, 7, 7}, SnapCentre, 0, {{100, 50, 20, 20}}, {0, 0, 0, 0}, opts);
    EXPECT_EQ(r.dx, 2);
    ASSERT_EQ(r.guides.size(), 1U);
    EXPECT_DOUBLE_EQ(r.guides[0].at, 110);
    // A right handle: only the right edge counts, even when the left one is nearer.
    r = snap({101, 0, 16, 7}, SnapEnd, 0, {{100, 50, 20, 20}}, {0, 0, 0, 0}, opts);
    EXPECT_EQ(r.dx, 3);
    // A horizontal guide for a bottom handle, partly above the area.
    r = snap({10, -30, 10, 28}, 0, SnapEnd, {}, kArea, opts);
    EXPECT_EQ(r.dy, 2);
    ASSERT_EQ(r.guides.size(), 1U);
    EXPECT_FALSE(r.guides[0].vertical);
    EXPECT_DOUBLE_EQ(r.guides[0].at, 0);
}

TEST(Snap, GridWhenNoButtonLineIsNearAndLeftOfTheArea) {
    const SnapOptions opts{4, true, 10};
    // No buttons near: the left edge goes to the nearest grid line, also below zero.
    SnapResult r = snap({-23, 47, 5, 5}, SnapAll, SnapAll, {}, {0, 0, 1000, 1000}, opts);
    EXPECT_EQ(r.dx, 3);
    EXPECT_EQ(r.dy, 3);
    EXPECT_TRUE(r.guides.empty());
    // Half way between grid lines is beyond a threshold of 4: no move.
    r = snap({-25, 500, 5, 5}, SnapAll, 0, {}, {0, 0, 1000, 1000}, opts);
    EXPECT_EQ(r.dx, 0);
    // A button line within the threshold beats the grid.
    r = snap({43, 500, 5, 5}, SnapAll, 0, {{47, 0, 6, 6}}, {0, 0, 1000, 1000}, opts);
    EXPECT_EQ(r.dx, -1);
    ASSERT_EQ(r.guides.size(), 1U);
    // The grid alone, buttons off; a resize snaps its moving edge to the grid.
    r = snap({43, 500, 13, 5}, SnapEnd, 0, {{47, 0, 6, 6}}, {0, 0, 1000, 1000}, {4, false, 10});
    EXPECT_EQ(r.dx, 4);
}
