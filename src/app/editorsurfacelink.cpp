#include "editorsurfacelink.h"

#include "editor.h"
#include "editorview.h"

namespace orvelin {

void EditorSurfaceLink::ShowProp(int index) {
    m_editor.ShowProp(index);
}

void EditorSurfaceLink::ShowGeometry(int index) {
    // The panel is filled as one; its fill sets Updating around the four fields too.
    m_editor.ShowProp(index);
}

void EditorSurfaceLink::ShowSelection() {
    m_view.ShowButtonList();
}

} // namespace orvelin
