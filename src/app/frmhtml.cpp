#include "frmhtml.h"

#include "htmlgenerator.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

FrmHTML::FrmHTML(ProjectModel& model, UserInterface& ui, QWidget* parent)
    : QWidget(parent, Qt::Window), m_model(model), m_ui(ui) {
    setObjectName(QStringLiteral("frmHTML"));
    setWindowTitle(tr("Applet Code"));

    auto* nameLabel = new QLabel(tr("Applet Name:"), this);
    nameLabel->setObjectName(QStringLiteral("lblAppletName"));
    m_txtAppletName = new QLineEdit(this);
    m_txtAppletName->setObjectName(QStringLiteral("txtAppletName"));
    nameLabel->setBuddy(m_txtAppletName);

    m_txtHTML = new QPlainTextEdit(this);
    m_txtHTML->setObjectName(QStringLiteral("txtHTML"));
    m_txtHTML->setReadOnly(true);
    m_txtHTML->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_txtHTML->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));

    m_btnReGenerate = new QPushButton(tr("Re&generate"), this);
    m_btnReGenerate->setObjectName(QStringLiteral("btnReGenerate"));
    m_btnCopyToClb = new QPushButton(tr("&Copy To ClipBoard"), this);
    m_btnCopyToClb->setObjectName(QStringLiteral("btnCopyToClb"));
    auto* close = new QPushButton(tr("Close"), this);

    auto* top = new QHBoxLayout;
    top->addWidget(nameLabel);
    top->addWidget(m_txtAppletName, 1);
    auto* commands = new QHBoxLayout;
    commands->addWidget(m_btnReGenerate);
    commands->addWidget(m_btnCopyToClb);
    commands->addStretch(1);
    commands->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_txtHTML, 1);
    layout->addLayout(commands);
    resize(760, 420);

    // The box keeps what was typed; the model takes the safe form at every key.
    connect(m_txtAppletName, &QLineEdit::textEdited, this, [this] { txtAppletName_KeyUp(); });
    connect(m_btnReGenerate, &QPushButton::clicked, this, [this] { MakeHTML(); });
    connect(m_btnCopyToClb, &QPushButton::clicked, this, [this] { btnCopyToClb_Click(); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);
}

void FrmHTML::MakeHTML() {
    const GeneratedHtml html = orvelin::MakeHTML(m_model, &m_ui);
    m_usesJavaScript = html.usesJavaScript;
    m_txtAppletName->setText(QString::fromStdString(m_model.AppletName));
    // The box shows lines; the CR LF line ends come back when the code is copied.
    QString shown = QString::fromStdString(html.text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    m_txtHTML->setPlainText(shown);
}

void FrmHTML::showAndGenerate() {
    show();
    raise();
    activateWindow();
    MakeHTML();
}

QString FrmHTML::code() const {
    QString text = m_txtHTML->toPlainText();
    text.replace(QStringLiteral("\n"), QStringLiteral("\r\n"));
    return text;
}

void FrmHTML::txtAppletName_KeyUp() {
    SetAppletNameFromBox(m_model, m_txtAppletName->text().toStdString());
}

void FrmHTML::btnCopyToClb_Click() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(code());
}

} // namespace orvelin
