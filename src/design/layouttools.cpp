#include "layouttools.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <numeric>
#include <optional>

namespace orvelin {

namespace {

/// Division that rounds toward minus infinity, so that half pixels left of the applet
/// area go the same way as those inside it.
int floorDiv(long long a, long long b) {
    long long q = a / b;
    if ((a % b != 0) && ((a < 0) != (b < 0)))
        --q;
    return static_cast<int>(q);
}

/// One axis of a rectangle: where it starts and how long it is.
struct Span {
    int start = 0;
    int length = 0;
};

Span axisOf(const PixelRect& r, bool horizontal) {
    return horizontal ? Span{r.left, r.width} : Span{r.top, r.height};
}

void setStart(PixelRect& r, bool horizontal, int start) {
    (horizontal ? r.left : r.top) = start;
}

std::vector<PixelRect> distribute(std::vector<PixelRect> rects, bool horizontal) {
    const std::size_t n = rects.size();
    if (n < 3)
        return rects;
    std::vector<std::size_t> order(n);
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return axisOf(rects[a], horizontal).start < axisOf(rects[b], horizontal).start;
    });
    const Span first = axisOf(rects[order.front()], horizontal);
    const Span last = axisOf(rects[order.back()], horizontal);
    long long lengths = 0;
    for (const PixelRect& r : rects)
        lengths += axisOf(r, horizontal).length;
    // Negative when the buttons overlap more than they leave free: they overlap evenly.
    const long long free = static_cast<long long>(last.start) + last.length - first.start - lengths;
    const auto gaps = static_cast<long long>(n - 1);
    int cursor = first.start + first.length;
    for (std::size_t k = 1; k + 1 < n; ++k) {
        const auto i = static_cast<long long>(k);
        const int gap = floorDiv(free * i, gaps) - floorDiv(free * (i - 1), gaps);
        PixelRect& r = rects[order[k]];
        setStart(r, horizontal, cursor + gap);
        cursor += gap + axisOf(r, horizontal).length;
    }
    return rects;
}

/// Positions in half pixels, so that centres are whole numbers.
std::array<long long, 3> lines2(const Span& s) {
    const long long start = 2LL * s.start;
    return {start, start + s.length, start + 2LL * s.length};
}

struct AxisSnap {
    int delta = 0;
    std::optional<SnapGuide> guide;
    bool snapped = false;
};

AxisSnap snapAxis(const PixelRect& rect, bool horizontal, unsigned lines,
                  const std::vector<PixelRect>& others, const PixelRect& area,
                  const SnapOptions& options) {
    AxisSnap out;
    if (lines == 0)
        return out;
    const auto own = lines2(axisOf(rect, horizontal));
    const long long limit = 2LL * options.threshold;
    if (options.toButtons) {
        long long best = limit + 1;
        long long bestTarget = 0;
        const PixelRect* bestRect = nullptr;
        const auto consider = [&](const PixelRect& target) {
            const auto theirs = lines2(axisOf(target, horizontal));
            for (std::size_t i = 0; i < own.size(); ++i) {
                if ((lines & (1U << i)) == 0)
                    continue;
                for (long long t : theirs) {
                    if (std::llabs(t - own[i]) < std::llabs(best)) {
                        best = t - own[i];
                        bestTarget = t;
                        bestRect = &target;
                    }
                }
            }
        };
        for (const PixelRect& other : others)
            consider(other);
        consider(area);
        if (bestRect != nullptr && std::llabs(best) <= limit) {
            out.snapped = true;
            out.delta = floorDiv(best, 2);
            // Along the line it snapped to; snap() adds the moving rectangle's span.
            const Span theirs = axisOf(*bestRect, !horizontal);
            out.guide = SnapGuide{horizontal, static_cast<double>(bestTarget) / 2.0, theirs.start,
                                  theirs.start + theirs.length};
            return out;
        }
    }
    if (options.grid > 0) {
        // The first line asked for: the left (top) edge of a move, the moving edge of a
        // resize.
        const std::size_t i = (lines & SnapStart) != 0 ? 0 : (lines & SnapEnd) != 0 ? 2 : 1;
        const long long grid2 = 2LL * options.grid;
        const long long nearest = floorDiv(own[i] + options.grid, grid2) * grid2;
        if (std::llabs(nearest - own[i]) <= limit) {
            out.snapped = true;
            out.delta = floorDiv(nearest - own[i], 2);
        }
    }
    return out;
}

} // namespace

std::vector<PixelRect> align(std::vector<PixelRect> rects, std::size_t reference, AlignTo edge) {
    if (reference >= rects.size())
        return rects;
    const PixelRect ref = rects[reference];
    for (PixelRect& r : rects) {
        switch (edge) {
        case AlignTo::Left:
            r.left = ref.left;
            break;
        case AlignTo::Right:
            r.left = ref.left + ref.width - r.width;
            break;
        case AlignTo::HorizontalCentre:
            r.left = floorDiv(2LL * ref.left + ref.width - r.width, 2);
            break;
        case AlignTo::Top:
            r.top = ref.top;
            break;
        case AlignTo::Bottom:
            r.top = ref.top + ref.height - r.height;
            break;
        case AlignTo::VerticalCentre:
            r.top = floorDiv(2LL * ref.top + ref.height - r.height, 2);
            break;
        }
    }
    return rects;
}

std::vector<PixelRect> distributeHorizontally(std::vector<PixelRect> rects) {
    return distribute(std::move(rects), true);
}

std::vector<PixelRect> distributeVertically(std::vector<PixelRect> rects) {
    return distribute(std::move(rects), false);
}

std::vector<PixelRect> makeSameSize(std::vector<PixelRect> rects, std::size_t reference,
                                    SameSize what) {
    if (reference >= rects.size())
        return rects;
    const PixelRect ref = rects[reference];
    for (PixelRect& r : rects) {
        if (what != SameSize::Height)
            r.width = ref.width;
        if (what != SameSize::Width)
            r.height = ref.height;
    }
    return rects;
}

SnapResult snap(const PixelRect& rect, unsigned xLines, unsigned yLines,
                const std::vector<PixelRect>& others, const PixelRect& area,
                const SnapOptions& options) {
    SnapResult out;
    const AxisSnap x = snapAxis(rect, true, xLines, others, area, options);
    const AxisSnap y = snapAxis(rect, false, yLines, others, area, options);
    out.dx = x.delta;
    out.dy = y.delta;
    // The guides span the rectangle where it lands.
    for (const auto* axis : {&x, &y}) {
        if (!axis->guide)
            continue;
        SnapGuide g = *axis->guide;
        const int shift = g.vertical ? out.dy : out.dx;
        const Span across = axisOf(rect, !g.vertical);
        g.from = std::min(g.from, across.start + shift);
        g.to = std::max(g.to, across.start + across.length + shift);
        out.guides.push_back(g);
    }
    return out;
}

} // namespace orvelin
