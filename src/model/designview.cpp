#include "designview.h"

#include "projectmodel.h"

namespace orvelin {

void DesignView::showChange(const DocumentChange& change, const ProjectModel& model) {
    const int count = model.ButtonCount;
    // The surface takes the applet's size and background before buttons are painted on it.
    if (change.background || change.everything)
        appletChanged();
    int loadedFrom = count + 1;
    if (change.countChanged && change.everything) {
        clearButtons();
        loadedFrom = 1;
    } else if (change.countChanged) {
        for (int i = change.countBefore; i > count; --i)
            hideLastButton(i);
        loadedFrom = change.countBefore + 1;
    }
    for (int i = loadedFrom; i <= count; ++i)
        LoadButton(i);
    if (change.everything) {
        redrawAll();
    } else {
        for (int index : change.buttons) {
            if (index >= loadedFrom || index > count)
                continue;
            if (change.onlyMoved(index))
                moveButton(index, !change.gesture);
            else
                RedrawButton(index, false, false, false);
        }
        if (change.selection)
            selectionChanged();
    }
    const int current = model.CurrentButton;
    if (current < 1 || current > count)
        hideMarks();
    else if (change.selection || change.countChanged || change.touches(current))
        placeMarks(current);
}

} // namespace orvelin
