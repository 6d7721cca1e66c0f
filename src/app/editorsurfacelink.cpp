#include "editorsurfacelink.h"

#include "editor.h"

namespace orvelin {

void EditorSurfaceLink::showGeometry(int index) {
    // The panel is filled as one; its fill sets Updating around the four fields too.
    m_editor.ShowProp(index);
}

} // namespace orvelin
