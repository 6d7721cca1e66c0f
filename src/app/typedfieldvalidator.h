#pragma once

#include "typedinput.h"

#include <QValidator>
#include <functional>

class QLineEdit;

namespace orvelin {

/**
 * Keeps a line edit to what its field can store (AcceptTyped): a pasted line break,
 * a "|" in a link and the characters a field cannot hold are converted or left out as
 * they arrive, and `note` is told what happened (an empty text once all is well).
 */
class TypedFieldValidator : public QValidator {
    Q_OBJECT

public:
    using Note = std::function<void(const QString&)>;

    TypedFieldValidator(TypedField field, Note note, QObject* parent);

    State validate(QString& input, int& pos) const override;

    /// Puts a validator of `field` on `edit`.
    static void guard(QLineEdit* edit, TypedField field, Note note);

private:
    TypedField m_field;
    Note m_note;
};

} // namespace orvelin
