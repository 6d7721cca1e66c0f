#pragma once

#include "manipulation.h"

#include <array>

namespace orvelin {

/**
 * The zoom of the design surface and the one conversion between applet pixels (what the
 * records hold and the manipulation rules work in) and surface pixels (where widgets
 * stand and the pointer is read). Everything that places a widget from a record or
 * reads a pointer position for a record goes through here, so that at every zoom the
 * rules see exactly the pixels they see at 100%.
 */
class SurfaceZoom {
public:
    /// The levels Ctrl+wheel, Ctrl++ and Ctrl+- step through, in percent.
    static constexpr std::array<int, 9> kSteps{50, 67, 75, 100, 125, 150, 200, 300, 400};
    static constexpr int kActualSize = 100;

    /// `percent` is brought into the range of the steps (50 to 400).
    explicit SurfaceZoom(int percent = kActualSize);

    int percent() const { return m_percent; }
    double factor() const { return m_percent / 100.0; }
    /// The next step above (below) this zoom; the largest (smallest) stays.
    SurfaceZoom zoomedIn() const;
    SurfaceZoom zoomedOut() const;

    /// An applet coordinate or length on the surface, in whole surface pixels.
    int toScreen(int applet) const;
    /// A button's rectangle on the surface. The size does not depend on the place, so
    /// a picture that moves keeps its size (and is not painted again).
    PixelRect toScreen(const PixelRect& applet) const;
    /// A pointer offset or position on the surface, in applet pixels, not yet rounded:
    /// the manipulation rules round it as they round the pointer at 100%.
    double toApplet(double screen) const;
    /// A distance meant on the screen (a snap threshold) in whole applet pixels, at
    /// least one.
    int appletDistance(int screen) const;

    bool operator==(const SurfaceZoom&) const = default;

private:
    int m_percent;
};

} // namespace orvelin
