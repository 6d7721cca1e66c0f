#include "typedfieldvalidator.h"

#include <QLineEdit>

namespace orvelin {

TypedFieldValidator::TypedFieldValidator(TypedField field, Note note, QObject* parent)
    : QValidator(parent), m_field(field), m_note(std::move(note)) {}

QValidator::State TypedFieldValidator::validate(QString& input, int& pos) const {
    const TypedText kept = acceptTyped(m_field, input.toStdString());
    const QString text = QString::fromStdString(kept.text);
    const bool changed = text != input;
    if (changed) {
        // The caret stays after what was typed before it, converted the same way.
        pos = static_cast<int>(
            QString::fromStdString(acceptTyped(m_field, input.left(pos).toStdString()).text)
                .size());
        input = text;
    }
    // What was changed is said once and stays said while typing goes on; a reference that
    // a browser decodes is said for as long as the text holds one.
    if (m_note && (changed || !kept.note.empty()))
        m_note(QString::fromStdString(kept.note));
    return Acceptable;
}

void TypedFieldValidator::guard(QLineEdit* edit, TypedField field, Note note) {
    edit->setValidator(new TypedFieldValidator(field, std::move(note), edit));
}

} // namespace orvelin
