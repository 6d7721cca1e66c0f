#pragma once

#include "buttonlist.h"
#include "projectmodel.h"
#include "userinterface.h"

#include <QImage>
#include <string_view>

namespace orvelin {

class ImageCache;

struct RenderOptions {
    /// The selection whose group gets the multi-selection marker; none: no marker.
    const ButtonList* selection = nullptr;
    /// The surface's switch that leaves the applet background out.
    bool noBackGround = false;
    /// Images to reuse between renders; none: the render reads its own.
    ImageCache* images = nullptr;
    /// Where a label that cannot be drawn is reported; none: silently.
    UserInterface* ui = nullptr;
};

/**
 * The whole applet area as the design window paints it in `state`: the background, then
 * buttons 1 to ButtonCount in z-order, each painted into its own picture and clipped to
 * it. Hidden buttons are shown, as the designer shows them. Relative image paths are
 * resolved beside the model's fileForRelativePaths().
 */
QImage renderSurface(const ProjectModel& model, ButtonState state,
                     const RenderOptions& options = {});

} // namespace orvelin
