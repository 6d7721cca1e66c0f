#pragma once

namespace orvelin {

/**
 * What the design surface's mouse handling asks of the main editor. Every call fills
 * controls with the model's Updating flag set, so that nothing is written back.
 */
class SurfaceEditorLink {
public:
    virtual ~SurfaceEditorLink() = default;

    /// txtX, txtY, txtWidth and txtHeight show the record of button `index`.
    virtual void showGeometry(int index) = 0;
};

} // namespace orvelin
