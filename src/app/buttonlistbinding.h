#pragma once

#include <QObject>

class QListWidget;

namespace orvelin {

class ButtonList;
class Editor;

/**
 * Keeps the list widget `lstButtons` and the core's ButtonList, the program's one
 * multi-selection, in step: the core's list is shown in the widget, and a click or a
 * selection made in the widget goes to the editor.
 */
class ButtonListBinding : public QObject {
    Q_OBJECT

public:
    ButtonListBinding(QListWidget& widget, ButtonList& list, Editor& editor, QObject* parent);

    /// Shows the core's entries and selection; `current` (1-based, 0 for none) gets
    /// the focus mark.
    void show(int current);
    /// Names the entries again in the language in force.
    void showTexts();

private:
    void selectionChanged();
    void currentChanged(int row);

    QListWidget& m_widget;
    ButtonList& m_list;
    Editor& m_editor;
    bool m_showing = false;
};

} // namespace orvelin
