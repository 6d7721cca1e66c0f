#include "desktopdialogs.h"

#include "windowtexts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

// The question, then Yes and No (Yes the default); the texts come from the window's
// section.
QVBoxLayout* buildQuestion(QDialog& dialog) {
    dialog.setModal(true);
    auto* layout = new QVBoxLayout(&dialog);
    auto* label = new QLabel(&dialog);
    label->setObjectName(QStringLiteral("lblQuestion"));
    label->setWordWrap(true);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * 60);
    layout->addWidget(label);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Yes | QDialogButtonBox::No, &dialog);
    buttons->button(QDialogButtonBox::Yes)->setObjectName(QStringLiteral("btnYes"));
    buttons->button(QDialogButtonBox::No)->setObjectName(QStringLiteral("btnNo"));
    buttons->button(QDialogButtonBox::Yes)->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    return layout;
}

} // namespace

FrmAskToAssociate::FrmAskToAssociate(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmAskToAssociate"));
    QVBoxLayout* layout = buildQuestion(*this);
    m_dontAsk = new QCheckBox(this);
    m_dontAsk->setObjectName(QStringLiteral("chkDontAsk"));
    layout->insertWidget(1, m_dontAsk);
    showWindowTexts(*this, {TextSection::AskToAssociate});
}

bool FrmAskToAssociate::dontAskAgain() const {
    return m_dontAsk->isChecked();
}

FrmShortCut::FrmShortCut(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmShortCut"));
    buildQuestion(*this);
    showWindowTexts(*this, {TextSection::ShortCut});
}

} // namespace orvelin
