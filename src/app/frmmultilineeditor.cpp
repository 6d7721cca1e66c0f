#include "frmmultilineeditor.h"

#include "accessiblenames.h"
#include "windowtexts.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

const QString kLabelBreak = QStringLiteral("\\n");

} // namespace

QString labelToEditorText(const QString& label) {
    QString text = label;
    text.replace(kLabelBreak, QStringLiteral("\n"));
    return text;
}

QString editorTextToLabel(const QString& text) {
    QString label = text;
    label.replace(QStringLiteral("\r\n"), kLabelBreak);
    label.replace(QLatin1Char('\r'), kLabelBreak);
    label.replace(QLatin1Char('\n'), kLabelBreak);
    return label;
}

FrmMultiLineEditor::FrmMultiLineEditor(QLineEdit* txtLabel, QWidget* parent)
    : QDialog(parent), m_txtLabel(txtLabel) {
    setObjectName(QStringLiteral("frmMultiLineEditor"));
    setModal(true);

    m_txtEditor = new QPlainTextEdit(this);
    m_txtEditor->setObjectName(QStringLiteral("txtEditor"));
    m_txtEditor->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_btnClose = new QPushButton(this);
    m_btnClose->setObjectName(QStringLiteral("btnClose"));
    m_btnClose->setDefault(false);
    m_btnClose->setAutoDefault(false); // Enter starts a new line, it does not close

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_btnClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_txtEditor, 1);
    layout->addLayout(buttons);
    resize(360, 220);

    connect(m_txtEditor, &QPlainTextEdit::textChanged, this, &FrmMultiLineEditor::txtEditor_Change);
    connect(m_btnClose, &QPushButton::clicked, this, &QDialog::accept);
    showWindowTexts(*this, {TextSection::LabelEditor});
    nameControls(*this);
}

void FrmMultiLineEditor::Form_Activate() {
    if (!m_txtLabel)
        return;
    const QString text = labelToEditorText(m_txtLabel->text());
    if (text == m_txtEditor->toPlainText())
        return; // keeps the caret where it is
    m_filling = true;
    m_txtEditor->setPlainText(text);
    m_filling = false;
}

void FrmMultiLineEditor::showEvent(QShowEvent* event) {
    Form_Activate();
    QDialog::showEvent(event);
}

void FrmMultiLineEditor::txtEditor_Change() {
    if (m_filling || !m_txtLabel)
        return;
    const QString label = editorTextToLabel(m_txtEditor->toPlainText());
    if (label != m_txtLabel->text())
        m_txtLabel->setText(label);
}

} // namespace orvelin
