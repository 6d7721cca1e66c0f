#include "frmbrowsersetup.h"

#include "accessiblenames.h"
#include "frmeditbrowser.h"
#include "windowtexts.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace orvelin {

namespace {

constexpr int kCommands = 6;

} // namespace

FrmBrowserSetup::FrmBrowserSetup(std::vector<BrowserEntry> browsers, BrowserSearchPlaces places,
                                 QWidget* parent)
    : QDialog(parent), m_browsers(std::move(browsers)), m_places(std::move(places)) {
    if (m_browsers.empty())
        m_browsers.push_back({kDefaultBrowserName, ""});
    setObjectName(QStringLiteral("frmBrowserSetup"));

    auto* hint = new QLabel(this);
    hint->setObjectName(QStringLiteral("lblHint"));
    hint->setWordWrap(true);
    m_lstBrowsers = new QListWidget(this);
    m_lstBrowsers->setObjectName(QStringLiteral("lstBrowsers"));
    m_lstBrowsers->setMinimumSize(380, 200);

    const char* const names[kCommands] = {"btnAdd", "btnEdit", "btnRemove",
                                          "btnUp",  "btnDown", "btnFind"};
    QPushButton* commands[kCommands];
    auto* column = new QVBoxLayout;
    for (int k = 0; k < kCommands; ++k) {
        commands[k] = new QPushButton(this);
        commands[k]->setObjectName(QString::fromLatin1(names[k]));
        commands[k]->setAutoDefault(false);
        column->addWidget(commands[k]);
        if (k == 4)
            column->addSpacing(12);
    }
    column->addStretch(1);
    m_btnEdit = commands[1];
    m_btnRemove = commands[2];
    m_btnUp = commands[3];
    m_btnDown = commands[4];

    auto* buttons = okCancelButtons(*this);
    auto* middle = new QHBoxLayout;
    middle->addWidget(m_lstBrowsers, 1);
    middle->addLayout(column);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(hint);
    layout->addLayout(middle, 1);
    layout->addWidget(buttons);

    connect(commands[0], &QPushButton::clicked, this, [this] { btnAdd_Click(); });
    connect(m_btnEdit, &QPushButton::clicked, this, [this] { btnEdit_Click(); });
    connect(m_btnRemove, &QPushButton::clicked, this, [this] { btnRemove_Click(); });
    connect(m_btnUp, &QPushButton::clicked, this, [this] { move(-1); });
    connect(m_btnDown, &QPushButton::clicked, this, [this] { move(1); });
    connect(commands[5], &QPushButton::clicked, this, [this] { btnFind_Click(); });
    connect(m_lstBrowsers, &QListWidget::currentRowChanged, this, [this] { updateButtons(); });
    connect(m_lstBrowsers, &QListWidget::itemDoubleClicked, this, [this] {
        if (m_btnEdit->isEnabled())
            btnEdit_Click();
    });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showList(0);
    showWindowTexts(*this, {TextSection::BrowserSetup, TextSection::BrowsersMore});
    nameControls(*this);
}

void FrmBrowserSetup::showList(int row) {
    m_lstBrowsers->clear();
    for (const BrowserEntry& entry : m_browsers) {
        // The first entry is the desktop's default browser, named in the language in force.
        QString text = m_lstBrowsers->count() == 0 ? uiText("frmHTML", "#defaultBrowser")
                                                   : QString::fromStdString(entry.name);
        if (!entry.program.empty())
            text += QStringLiteral("  (%1)").arg(QString::fromStdString(entry.program));
        m_lstBrowsers->addItem(text);
    }
    m_lstBrowsers->setCurrentRow(std::clamp(row, 0, static_cast<int>(m_browsers.size()) - 1));
    updateButtons();
}

void FrmBrowserSetup::updateButtons() {
    const int row = m_lstBrowsers->currentRow();
    const int last = static_cast<int>(m_browsers.size()) - 1;
    // Row 0 is the default browser: it has no program to edit and always stays first.
    m_btnEdit->setEnabled(row > 0);
    m_btnRemove->setEnabled(row > 0);
    m_btnUp->setEnabled(row > 1);
    m_btnDown->setEnabled(row > 0 && row < last);
}

void FrmBrowserSetup::btnAdd_Click() {
    FrmEditBrowser editor({}, this);
    if (editor.exec() != QDialog::Accepted)
        return;
    m_browsers.push_back(editor.entry());
    showList(static_cast<int>(m_browsers.size()) - 1);
}

void FrmBrowserSetup::btnEdit_Click() {
    const int row = m_lstBrowsers->currentRow();
    if (row <= 0)
        return;
    FrmEditBrowser editor(m_browsers[static_cast<std::size_t>(row)], this);
    if (editor.exec() != QDialog::Accepted)
        return;
    m_browsers[static_cast<std::size_t>(row)] = editor.entry();
    showList(row);
}

void FrmBrowserSetup::btnRemove_Click() {
    const int row = m_lstBrowsers->currentRow();
    if (row <= 0)
        return;
    m_browsers.erase(m_browsers.begin() + row);
    showList(row);
}

void FrmBrowserSetup::move(int step) {
    const int row = m_lstBrowsers->currentRow();
    const int to = row + step;
    if (row <= 0 || to <= 0 || to >= static_cast<int>(m_browsers.size()))
        return;
    std::swap(m_browsers[static_cast<std::size_t>(row)], m_browsers[static_cast<std::size_t>(to)]);
    showList(to);
}

void FrmBrowserSetup::btnFind_Click() {
    for (BrowserEntry& found : detectBrowsers(m_places)) {
        const bool listed =
            std::any_of(m_browsers.begin(), m_browsers.end(),
                        [&](const BrowserEntry& entry) { return entry.program == found.program; });
        if (!listed)
            m_browsers.push_back(std::move(found));
    }
    showList(m_lstBrowsers->currentRow());
}

} // namespace orvelin
