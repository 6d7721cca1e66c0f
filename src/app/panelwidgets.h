#pragma once

#include <QString>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QToolButton;
class QWidget;

/**
 * Small builders shared by the main editor's panels, so that every field looks and
 * names itself the same way, and the fill helpers that leave a control alone when it
 * already shows the value (a field being typed in keeps its cursor). Controls are made
 * without text: the window's catalogue texts reach them by their names.
 */
namespace orvelin::panel {

/// A line edit named `name`; `width` 0 lets it stretch.
QLineEdit* lineEdit(const QString& name, QWidget* parent, int width = 0);
QCheckBox* checkBox(const QString& name, QWidget* parent);
/// A combo box; `editable` ones accept any typed text.
QComboBox* comboBox(const QString& name, bool editable, QWidget* parent);
/// The list of an image's placements (centre, tile, stretch), as many entries as the
/// catalogue names.
QComboBox* placementBox(const QString& name, QWidget* parent);
/// The "..." button beside a field.
QToolButton* browseButton(const QString& name, QWidget* parent);
QGroupBox* group(const QString& name, QWidget* parent);
QLabel* label(const QString& name, QWidget* parent);

void setText(QLineEdit* edit, const QString& text);
void setText(QComboBox* combo, const QString& text);
void setChecked(QCheckBox* box, bool checked);

} // namespace orvelin::panel
