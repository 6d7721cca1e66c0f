#pragma once

namespace orvelin {

/**
 * What the editor's commands ask of the design surface. The design window implements
 * it; tests record the calls. Button numbers are 1-based.
 */
class DesignView {
public:
    virtual ~DesignView() = default;

    /// Creates the picture of button `index` (a new last button) and draws it.
    virtual void LoadButton(int index) = 0;
    /// Removes the picture of the last button (`index` is the old button count).
    virtual void hideLastButton(int index) = 0;
    /// Removes every button picture.
    virtual void clearButtons() = 0;
    /// Places and paints one button from its record (see the surface's painting order).
    virtual void RedrawButton(int index, bool placeHandles, bool placePositioner,
                              bool keepGeometry) = 0;
    /// Puts button `index` where its record places it; its picture is otherwise as it
    /// was (only the position changed).
    virtual void moveButton(int index) { RedrawButton(index, false, false, false); }
    /// Repaints every button (state switch, selection change).
    virtual void redrawAll() = 0;
    /// Repaints every transparent button (the background under them changed).
    virtual void UpdateTransparentBtns() = 0;
    /// The applet area's size or background changed.
    virtual void appletChanged() = 0;
    /// Moves the resize handles and the label positioner out of sight.
    virtual void hideMarks() = 0;
    /// Keeps the design window above other windows, or not.
    virtual void setOnTop(bool onTop) = 0;
};

} // namespace orvelin
