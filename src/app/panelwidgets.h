#pragma once

#include <QString>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QToolButton;
class QWidget;

/**
 * Small builders shared by the main editor's panels, so that every field looks and
 * names itself the same way, and the fill helpers that leave a control alone when it
 * already shows the value (a field being typed in keeps its cursor).
 */
namespace orvelin::panel {

/// A line edit named `name`; `width` 0 lets it stretch.
QLineEdit* lineEdit(const QString& name, QWidget* parent, int width = 0);
QCheckBox* checkBox(const QString& name, const QString& text, QWidget* parent);
/// A combo box; `editable` ones accept any typed text.
QComboBox* comboBox(const QString& name, bool editable, QWidget* parent);
/// The "..." button beside a field.
QToolButton* browseButton(const QString& name, const QString& toolTip, QWidget* parent);
QGroupBox* group(const QString& title, QWidget* parent);

void setText(QLineEdit* edit, const QString& text);
void setText(QComboBox* combo, const QString& text);
void setChecked(QCheckBox* box, bool checked);

} // namespace orvelin::panel
