#pragma once

#include <QDialog>
#include <QPointer>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace orvelin {

/// A label's "\n" pairs as the line breaks of a text box.
QString labelToEditorText(const QString& label);
/// The text box's line breaks (CR LF, LF or a lone CR) as the label's "\n" pairs.
QString editorTextToLabel(const QString& text);

/**
 * frmMultiLineEditor: the main editor's label in a multi-line text box. Every change
 * typed here goes into the label field `txtLabel`, whose own change handling stores
 * it in the selected buttons and redraws them, so the surface follows each keystroke.
 * Filling the box from the field writes nothing back.
 */
class FrmMultiLineEditor : public QDialog {
    Q_OBJECT
public:
    explicit FrmMultiLineEditor(QLineEdit* txtLabel, QWidget* parent = nullptr);

    /// Fills txtEditor from the label field (also done whenever the window is shown).
    void Form_Activate();

    QPlainTextEdit* txtEditor() const { return m_txtEditor; }

protected:
    void showEvent(QShowEvent* event) override;

private:
    void txtEditor_Change();

    QPointer<QLineEdit> m_txtLabel;
    QPlainTextEdit* m_txtEditor = nullptr;
    QPushButton* m_btnClose = nullptr;
    bool m_filling = false;
};

} // namespace orvelin
