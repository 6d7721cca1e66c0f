#include "frmeditbrowser.h"

#include "accessiblenames.h"
#include "windowtexts.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

QDialogButtonBox* okCancelButtons(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("btnOk"));
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("btnCancel"));
    return buttons;
}

FrmEditBrowser::FrmEditBrowser(const BrowserEntry& entry, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmEditBrowser"));

    m_txtName = new QLineEdit(QString::fromStdString(entry.name), this);
    m_txtName->setObjectName(QStringLiteral("txtName"));
    m_txtProgram = new QLineEdit(QString::fromStdString(entry.program), this);
    m_txtProgram->setObjectName(QStringLiteral("txtProgram"));
    m_txtProgram->setMinimumWidth(320);
    auto* browse = new QPushButton(this);
    browse->setObjectName(QStringLiteral("btnBrowse"));
    auto* nameLabel = new QLabel(this);
    nameLabel->setObjectName(QStringLiteral("lblName"));
    nameLabel->setBuddy(m_txtName);
    auto* programLabel = new QLabel(this);
    programLabel->setObjectName(QStringLiteral("lblProgram"));
    programLabel->setBuddy(m_txtProgram);

    auto* buttons = okCancelButtons(*this);
    m_ok = buttons->button(QDialogButtonBox::Ok);

    auto* grid = new QGridLayout;
    grid->addWidget(nameLabel, 0, 0);
    grid->addWidget(m_txtName, 0, 1, 1, 2);
    grid->addWidget(programLabel, 1, 0);
    grid->addWidget(m_txtProgram, 1, 1);
    grid->addWidget(browse, 1, 2);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addWidget(buttons);

    connect(browse, &QPushButton::clicked, this, [this] { btnBrowse_Click(); });
    connect(m_txtName, &QLineEdit::textChanged, this, [this] { updateOk(); });
    connect(m_txtProgram, &QLineEdit::textChanged, this, [this] { updateOk(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    updateOk();
    showWindowTexts(*this, {TextSection::EditBrowser, TextSection::BrowsersMore});
    nameControls(*this);
}

BrowserEntry FrmEditBrowser::entry() const {
    return {m_txtName->text().trimmed().toStdString(),
            m_txtProgram->text().trimmed().toStdString()};
}

void FrmEditBrowser::updateOk() {
    m_ok->setEnabled(!m_txtName->text().trimmed().isEmpty() &&
                     !m_txtProgram->text().trimmed().isEmpty());
}

void FrmEditBrowser::btnBrowse_Click() {
    const QString start = m_txtProgram->text().contains(QLatin1Char('/'))
                              ? m_txtProgram->text()
                              : QStringLiteral("/usr/bin");
    const QString program =
        QFileDialog::getOpenFileName(this, uiText("frmEditBrowser", "btnBrowse.toolTip"), start);
    if (!program.isEmpty())
        m_txtProgram->setText(program);
}

void FrmEditBrowser::accept() {
    const BrowserEntry chosen = entry();
    if (!isRunnableProgram(chosen.program)) {
        QMessageBox::warning(
            this, uiText("frmEditBrowser", "#messageTitle"),
            uiText("frmEditBrowser", "#notRunnable").arg(QString::fromStdString(chosen.program)));
        m_txtProgram->setFocus();
        return;
    }
    QDialog::accept();
}

} // namespace orvelin
