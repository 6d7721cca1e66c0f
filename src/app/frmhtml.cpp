#include "frmhtml.h"

#include "accessiblenames.h"
#include "frmbrowsersetup.h"
#include "htmlgenerator.h"
#include "publishing.h"
#include "textcatalogue.h"
#include "windowgeometry.h"
#include "windowtexts.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QComboBox>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

namespace {

const QString kFormName = QStringLiteral("frmHTML");

QPushButton* Command(const char* name, QWidget* parent) {
    auto* button = new QPushButton(parent);
    button->setObjectName(QString::fromLatin1(name));
    return button;
}

} // namespace

FrmHTML::FrmHTML(ProjectModel& model, UserInterface& ui, Settings& settings, Shell& shell,
                 std::string programFolder, QWidget* parent)
    : QWidget(parent, Qt::Window), m_model(model), m_ui(ui), m_settings(settings), m_shell(shell),
      m_programFolder(std::move(programFolder)), m_places(BrowserSearchPlaces::fromEnvironment()) {
    setObjectName(kFormName);

    auto* nameLabel = new QLabel(this);
    nameLabel->setObjectName(QStringLiteral("lblAppletName"));
    m_txtAppletName = new QLineEdit(this);
    m_txtAppletName->setObjectName(QStringLiteral("txtAppletName"));
    nameLabel->setBuddy(m_txtAppletName);

    m_txtHTML = new QPlainTextEdit(this);
    m_txtHTML->setObjectName(QStringLiteral("txtHTML"));
    m_txtHTML->setReadOnly(true);
    m_txtHTML->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_txtHTML->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // Code reads left to right whatever the language of the window.
    m_txtHTML->setLayoutDirection(Qt::LeftToRight);

    QPushButton* preview = Command("btnPreview", this);
    m_cmbBrowser = new QComboBox(this);
    m_cmbBrowser->setObjectName(QStringLiteral("cmbBrowser"));
    m_cmbBrowser->setMinimumContentsLength(14);
    QPushButton* browsers = Command("btnBrowsers", this);
    browsers->setMaximumWidth(32);
    QPushButton* regenerate = Command("btnReGenerate", this);
    QPushButton* copy = Command("btnCopyToClb", this);
    QPushButton* save = Command("btnSave", this);
    QPushButton* close = Command("btnClose", this);

    auto* top = new QHBoxLayout;
    top->addWidget(nameLabel);
    top->addWidget(m_txtAppletName, 1);
    auto* commands = new QHBoxLayout;
    commands->addWidget(preview);
    commands->addWidget(m_cmbBrowser);
    commands->addWidget(browsers);
    commands->addSpacing(12);
    commands->addWidget(regenerate);
    commands->addWidget(copy);
    commands->addWidget(save);
    commands->addStretch(1);
    commands->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(m_txtHTML, 1);
    layout->addLayout(commands);
    resize(860, 440);

    // The box keeps what was typed; the model takes the safe form at every key.
    connect(m_txtAppletName, &QLineEdit::textEdited, this, [this] { txtAppletName_KeyUp(); });
    connect(preview, &QPushButton::clicked, this, [this] { btnPreview_Click(); });
    connect(m_cmbBrowser, &QComboBox::activated, this, [this](int i) { cmbBrowser_Click(i); });
    connect(browsers, &QPushButton::clicked, this, [this] { btnBrowsers_Click(); });
    connect(regenerate, &QPushButton::clicked, this, [this] { MakeHTML(); });
    connect(copy, &QPushButton::clicked, this, [this] { btnCopyToClb_Click(); });
    connect(save, &QPushButton::clicked, this, [this] { btnSave_Click(); });
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    showWindowTexts(*this, {TextSection::Html});
    nameControls(*this);
}

void FrmHTML::retranslate() {
    applyWindowTexts(*this);
    showDefaultBrowserName();
}

void FrmHTML::showDefaultBrowserName() {
    if (m_cmbBrowser->count() > 0)
        m_cmbBrowser->setItemText(0, uiText("frmHTML", "#defaultBrowser"));
}

void FrmHTML::setBrowserSearchPlaces(BrowserSearchPlaces places) {
    m_places = std::move(places);
    m_browsers.clear();
}

void FrmHTML::MakeHTML() {
    const TextCatalogue& msg = texts();
    m_ui.showProgress(msg[Msg::PleaseWait], msg[Msg::GeneratingHtml], -1);
    const std::string& name = nameTheApplet(m_model);
    const GeneratedHtml html = orvelin::MakeHTML(m_model, name, GetJSCaller(name, m_programFolder));
    m_ui.hideProgress();
    m_code = html.text;
    m_usesJavaScript = html.usesJavaScript;
    m_txtAppletName->setText(QString::fromStdString(m_model.AppletName));
    // The box shows lines; the code keeps its CR LF line ends for copying and pages.
    QString shown = QString::fromStdString(html.text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    m_txtHTML->setPlainText(shown);
}

void FrmHTML::showAndGenerate() {
    if (!m_placed) {
        m_placed = true;
        restoreWindowGeometry(*this, m_settings, kFormName);
    }
    if (m_browsers.empty())
        loadBrowsers();
    show();
    raise();
    activateWindow();
    MakeHTML();
}

void FrmHTML::closeEvent(QCloseEvent* event) {
    if (m_placed)
        saveWindowGeometry(*this, m_settings, kFormName);
    QWidget::closeEvent(event);
}

void FrmHTML::loadBrowsers() {
    m_browsers = orvelin::loadBrowsers(m_settings, m_places);
    m_cmbBrowser->clear();
    for (const BrowserEntry& entry : m_browsers)
        m_cmbBrowser->addItem(QString::fromStdString(entry.name));
    showDefaultBrowserName();
    m_cmbBrowser->setCurrentIndex(selectedBrowser(m_settings, m_browsers.size()));
}

void FrmHTML::txtAppletName_KeyUp() {
    setAppletNameFromBox(m_model, m_txtAppletName->text().toStdString());
}

void FrmHTML::btnPreview_Click() {
    if (m_browsers.empty())
        loadBrowsers();
    const int position = std::max(0, m_cmbBrowser->currentIndex());
    // The first entry is the desktop's default browser, whatever program it lists.
    const std::string program =
        position == 0 ? std::string() : m_browsers[static_cast<std::size_t>(position)].program;
    previewPage(m_model, pageSource(), program, m_ui, m_shell, m_programFolder);
}

void FrmHTML::btnSave_Click() {
    buildApplet(m_model, pageSource(), m_ui, m_programFolder);
}

PageSource FrmHTML::pageSource() const {
    return {m_code, m_usesJavaScript, m_settings.flag(SettingKey::Html5Player)};
}

void FrmHTML::btnCopyToClb_Click() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(code());
}

void FrmHTML::cmbBrowser_Click(int position) {
    setSelectedBrowser(m_settings, position);
}

void FrmHTML::btnBrowsers_Click() {
    if (m_browsers.empty())
        loadBrowsers();
    FrmBrowserSetup dialog(m_browsers, m_places, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    saveBrowsers(m_settings, dialog.browsers());
    loadBrowsers();
}

} // namespace orvelin
