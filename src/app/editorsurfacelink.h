#pragma once

#include "surfaceeditorlink.h"

namespace orvelin {

class Editor;
class EditorView;

/// The surface's link to the main editor through the editor core and the main window.
class EditorSurfaceLink : public SurfaceEditorLink {
public:
    EditorSurfaceLink(Editor& editor, EditorView& view) : m_editor(editor), m_view(view) {}

    void ShowProp(int index) override;
    void showGeometry(int index) override;
    void showSelection() override;

private:
    Editor& m_editor;
    EditorView& m_view;
};

} // namespace orvelin
