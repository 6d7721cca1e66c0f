#pragma once

#include "manipulation.h"

#include <cstddef>
#include <vector>

namespace orvelin {

/**
 * The layout tools of the design surface: align, distribute and same size for a group
 * of buttons, and the snapping of a moving or resizing button to the other buttons, to
 * the applet area and to a grid. Pure functions over rectangles in applet pixels; every
 * result is in whole pixels. Where a centre falls between two pixels the result goes to
 * the left (top) one, also for buttons partly left of or above the applet area.
 */

enum class AlignTo { Left, Right, Top, Bottom, HorizontalCentre, VerticalCentre };

/// Every rectangle lined up on the one at `reference` (the current button), which stays.
std::vector<PixelRect> align(std::vector<PixelRect> rects, std::size_t reference, AlignTo edge);

/**
 * Equal gaps between neighbours, left to right (top to bottom). The outermost two stay
 * where they are; the others keep their order and size. When the free space does not
 * divide evenly the gaps differ by one pixel at most, and the last button still ends
 * where it did. Fewer than three rectangles stay as they are.
 */
std::vector<PixelRect> distributeHorizontally(std::vector<PixelRect> rects);
std::vector<PixelRect> distributeVertically(std::vector<PixelRect> rects);

enum class SameSize { Width, Height, Both };

/// The size of the one at `reference` for every rectangle; top left corners stay.
std::vector<PixelRect> makeSameSize(std::vector<PixelRect> rects, std::size_t reference,
                                    SameSize what);

// ---- Snapping -----------------------------------------------------------------------

/// Which lines of a moving rectangle snap on one axis (a move: all three; a resize:
/// the edge that follows the handle).
enum SnapLine : unsigned { SnapStart = 1, SnapCentre = 2, SnapEnd = 4, SnapAll = 7 };

/// A line to show while a snap holds: vertical at x = `at` (or horizontal at y = `at`),
/// from `from` to `to` on the other axis. A centre line may lie between two pixels.
struct SnapGuide {
    bool vertical = true;
    double at = 0;
    int from = 0;
    int to = 0;
    bool operator==(const SnapGuide&) const = default;
};

struct SnapResult {
    int dx = 0; ///< to add to the rectangle's left (or to the moving edge)
    int dy = 0;
    std::vector<SnapGuide> guides; ///< one for each axis that snapped to a line
};

struct SnapOptions {
    int threshold = 5;     ///< the farthest a line is pulled, in applet pixels
    bool toButtons = true; ///< the other buttons' and the applet area's edges and centres
    int grid = 0;          ///< 0: no grid
};

/**
 * Where `rect` snaps to. On each axis the nearest pair of one of its lines (`xLines`,
 * `yLines`) and an edge or centre of one of `others` or of `area` wins, if it is no
 * farther than the threshold; a tie goes to the earlier rectangle, `area` last. Without
 * such a line and with a grid, the first of its lines snaps to the nearest grid line
 * within the threshold (grid lines show no guide).
 */
SnapResult snap(const PixelRect& rect, unsigned xLines, unsigned yLines,
                const std::vector<PixelRect>& others, const PixelRect& area,
                const SnapOptions& options);

} // namespace orvelin
