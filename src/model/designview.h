#pragma once

#include "documentchange.h"

namespace orvelin {

struct ProjectModel;

/**
 * The design surface's drawing operations. The design window implements them and
 * refreshes through showChange from the document's change notices; tests record the
 * calls. Button numbers are 1-based.
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
    /// was (only the position changed). A transparent button shows the background of
    /// its new place when `repaintTransparent`.
    virtual void moveButton(int index, bool repaintTransparent) {
        if (repaintTransparent)
            RedrawButton(index, false, false, false);
    }
    /// Places the resize handles and the label positioner around button `index`.
    virtual void placeMarks(int index) { RedrawButton(index, true, true, true); }
    /// The selection changed: buttons whose multi-selection marker came or went are
    /// painted again.
    virtual void selectionChanged() = 0;
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

    /// Shows the change that `model` announced: the one place that decides what the
    /// surface draws again after an edit, an undo or a redo.
    void showChange(const DocumentChange& change, const ProjectModel& model);
};

} // namespace orvelin
