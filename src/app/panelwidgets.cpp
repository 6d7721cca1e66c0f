#include "panelwidgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QToolButton>

namespace orvelin::panel {

QLineEdit* lineEdit(const QString& name, QWidget* parent, int width) {
    auto* edit = new QLineEdit(parent);
    edit->setObjectName(name);
    if (width > 0)
        edit->setFixedWidth(width);
    return edit;
}

QCheckBox* checkBox(const QString& name, const QString& text, QWidget* parent) {
    auto* box = new QCheckBox(text, parent);
    box->setObjectName(name);
    return box;
}

QComboBox* comboBox(const QString& name, bool editable, QWidget* parent) {
    auto* combo = new QComboBox(parent);
    combo->setObjectName(name);
    combo->setEditable(editable);
    if (editable)
        combo->setInsertPolicy(QComboBox::NoInsert);
    return combo;
}

QToolButton* browseButton(const QString& name, const QString& toolTip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(QStringLiteral("..."));
    button->setToolTip(toolTip);
    return button;
}

QGroupBox* group(const QString& title, QWidget* parent) {
    auto* group = new QGroupBox(title, parent);
    return group;
}

void setText(QLineEdit* edit, const QString& text) {
    if (edit->text() == text)
        return;
    edit->setText(text);
    // A long path shows its beginning, unless the user is typing in the field.
    if (!edit->hasFocus())
        edit->setCursorPosition(0);
}

void setText(QComboBox* combo, const QString& text) {
    if (combo->currentText() == text)
        return;
    const int index = combo->findText(text);
    if (index >= 0)
        combo->setCurrentIndex(index);
    if (combo->isEditable())
        combo->setEditText(text);
}

void setChecked(QCheckBox* box, bool checked) {
    if (box->isChecked() != checked)
        box->setChecked(checked);
}

} // namespace orvelin::panel
