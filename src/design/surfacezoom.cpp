#include "surfacezoom.h"

#include <algorithm>

namespace orvelin {

SurfaceZoom::SurfaceZoom(int percent)
    : m_percent(std::clamp(percent, kSteps.front(), kSteps.back())) {}

SurfaceZoom SurfaceZoom::zoomedIn() const {
    const auto next = std::upper_bound(kSteps.begin(), kSteps.end(), m_percent);
    return SurfaceZoom(next == kSteps.end() ? kSteps.back() : *next);
}

SurfaceZoom SurfaceZoom::zoomedOut() const {
    const auto here = std::lower_bound(kSteps.begin(), kSteps.end(), m_percent);
    return SurfaceZoom(here == kSteps.begin() ? kSteps.front() : *(here - 1));
}

int SurfaceZoom::toScreen(int applet) const {
    return roundPixel(applet * factor());
}

PixelRect SurfaceZoom::toScreen(const PixelRect& applet) const {
    return {toScreen(applet.left), toScreen(applet.top), std::max(0, toScreen(applet.width)),
            std::max(0, toScreen(applet.height))};
}

double SurfaceZoom::toApplet(double screen) const {
    return screen / factor();
}

int SurfaceZoom::appletDistance(int screen) const {
    return std::max(1, roundPixel(toApplet(screen)));
}

} // namespace orvelin
