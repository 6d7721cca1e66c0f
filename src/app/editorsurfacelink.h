#pragma once

#include "surfaceeditorlink.h"

namespace orvelin {

class Editor;

/// The surface's link to the main editor through the editor core and the main window.
class EditorSurfaceLink : public SurfaceEditorLink {
public:
    explicit EditorSurfaceLink(Editor& editor) : m_editor(editor) {}

    void showGeometry(int index) override;

private:
    Editor& m_editor;
};

} // namespace orvelin
