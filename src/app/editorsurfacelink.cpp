#include "editorsurfacelink.h"

#include "editor.h"
#include "editorview.h"

namespace orvelin {

void EditorSurfaceLink::ShowProp(int index) {
    m_editor.ShowProp(index);
}

void EditorSurfaceLink::showGeometry(int index) {
    // The panel is filled as one; its fill sets Updating around the four fields too.
    m_editor.ShowProp(index);
}

void EditorSurfaceLink::showSelection() {
    m_view.showButtonList();
}

} // namespace orvelin
