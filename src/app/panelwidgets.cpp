#include "panelwidgets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
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

QCheckBox* checkBox(const QString& name, QWidget* parent) {
    auto* box = new QCheckBox(parent);
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

QComboBox* placementBox(const QString& name, QWidget* parent) {
    QComboBox* combo = comboBox(name, false, parent);
    for (int i = 0; i < 3; ++i)
        combo->addItem(QString());
    return combo;
}

QToolButton* browseButton(const QString& name, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    return button;
}

QGroupBox* group(const QString& name, QWidget* parent) {
    auto* group = new QGroupBox(parent);
    group->setObjectName(name);
    return group;
}

QLabel* label(const QString& name, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    return label;
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
