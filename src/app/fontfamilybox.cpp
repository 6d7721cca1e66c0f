#include "fontfamilybox.h"

#include <QFontDatabase>
#include <QSignalBlocker>

namespace orvelin {

FontFamilyBox::FontFamilyBox(QWidget* parent) : QComboBox(parent) {}

void FontFamilyBox::fillFamilies() {
    if (m_filled)
        return;
    m_filled = true;
    const QString shown = currentText();
    // Filling is no edit: the panel must not take the first family as a chosen font.
    const QSignalBlocker quiet(this);
    addItems(QFontDatabase::families());
    const int index = findText(shown);
    if (index >= 0)
        setCurrentIndex(index);
    // A typed name that no installed family matches stays as typed.
    setEditText(shown);
}

void FontFamilyBox::showPopup() {
    fillFamilies();
    QComboBox::showPopup();
}

void FontFamilyBox::focusInEvent(QFocusEvent* event) {
    fillFamilies();
    QComboBox::focusInEvent(event);
}

void FontFamilyBox::wheelEvent(QWheelEvent* event) {
    fillFamilies();
    QComboBox::wheelEvent(event);
}

} // namespace orvelin
