#include "desktopdialogs.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

// The question, then Yes and No (Yes the default), then what `extra` adds.
QVBoxLayout* buildQuestion(QDialog& dialog, const QString& text) {
    dialog.setWindowTitle(QStringLiteral("Orvelin"));
    dialog.setModal(true);
    auto* layout = new QVBoxLayout(&dialog);
    auto* label = new QLabel(text, &dialog);
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
    QVBoxLayout* layout = buildQuestion(
        *this, tr("Orvelin is not the program that opens Orvelin project files (.orv).\n\n"
                  "Make Orvelin the program for .orv files?"));
    m_dontAsk = new QCheckBox(QStringLiteral("Don't ask me again"), this);
    m_dontAsk->setObjectName(QStringLiteral("chkDontAsk"));
    layout->insertWidget(1, m_dontAsk);
}

bool FrmAskToAssociate::dontAskAgain() const {
    return m_dontAsk->isChecked();
}

FrmShortCut::FrmShortCut(QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmShortCut"));
    buildQuestion(*this, tr("This copy of Orvelin runs from its build folder and has no entry "
                            "in your applications menu.\n\nAdd Orvelin to the applications "
                            "menu?"));
}

} // namespace orvelin
