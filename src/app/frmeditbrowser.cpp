#include "frmeditbrowser.h"

#include "accessiblenames.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

enum Text { Caption, NameLabel, ProgramLabel, BrowseCaption, BrowseTip, NotRunnable };

} // namespace

QStringList FrmEditBrowser::defaultTexts() {
    return {QStringLiteral("Browser"),
            QStringLiteral("&Name:"),
            QStringLiteral("&Program:"),
            QStringLiteral("..."),
            QStringLiteral("Choose the browser's program"),
            QStringLiteral("%1 was not found or cannot be run. Choose the browser's program.")};
}

FrmEditBrowser::FrmEditBrowser(const BrowserEntry& entry, QWidget* parent)
    : QDialog(parent), m_texts(defaultTexts()) {
    setObjectName(QStringLiteral("frmEditBrowser"));
    setWindowTitle(m_texts[Caption]);

    m_txtName = new QLineEdit(QString::fromStdString(entry.name), this);
    m_txtName->setObjectName(QStringLiteral("txtName"));
    m_txtProgram = new QLineEdit(QString::fromStdString(entry.program), this);
    m_txtProgram->setObjectName(QStringLiteral("txtProgram"));
    m_txtProgram->setMinimumWidth(320);
    auto* browse = new QPushButton(m_texts[BrowseCaption], this);
    browse->setObjectName(QStringLiteral("btnBrowse"));
    browse->setToolTip(m_texts[BrowseTip]);
    auto* nameLabel = new QLabel(m_texts[NameLabel], this);
    nameLabel->setBuddy(m_txtName);
    auto* programLabel = new QLabel(m_texts[ProgramLabel], this);
    programLabel->setBuddy(m_txtProgram);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
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
    const QString program = QFileDialog::getOpenFileName(this, m_texts[BrowseTip], start);
    if (!program.isEmpty())
        m_txtProgram->setText(program);
}

void FrmEditBrowser::accept() {
    const BrowserEntry chosen = entry();
    if (!isRunnableProgram(chosen.program)) {
        QMessageBox::warning(this, QStringLiteral("Orvelin"),
                             m_texts[NotRunnable].arg(QString::fromStdString(chosen.program)));
        m_txtProgram->setFocus();
        return;
    }
    QDialog::accept();
}

} // namespace orvelin
