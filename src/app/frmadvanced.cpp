#include "frmadvanced.h"

#include "accessiblenames.h"
#include "buttonrecord.h"
#include "settings.h"
#include "textcatalogue.h"
#include "userinterface.h"
#include "windowtexts.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

namespace orvelin {

FrmAdvanced::FrmAdvanced(Settings& settings, UserInterface& ui, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_ui(ui) {
    setObjectName(QStringLiteral("frmAdvanced"));
    setModal(true);

    m_chkAutoTile = new QCheckBox(this);
    m_chkAutoTile->setObjectName(QStringLiteral("chkAutoTile"));
    m_chkHtml5Player = new QCheckBox(this);
    m_chkHtml5Player->setObjectName(QStringLiteral("chkHtml5Player"));
    m_txtGridSize = new QSpinBox(this);
    m_txtGridSize->setObjectName(QStringLiteral("txtGridSize"));
    m_txtGridSize->setRange(0, 100);
    auto* lblGridSize = new QLabel(this);
    lblGridSize->setObjectName(QStringLiteral("lblGridSize"));
    lblGridSize->setBuddy(m_txtGridSize);
    m_btnRestoreDefaults = new QPushButton(this);
    m_btnRestoreDefaults->setObjectName(QStringLiteral("btnRestoreDefaults"));
    m_btnRestoreDefaults->setAutoDefault(false);
    m_btnOk = new QPushButton(this);
    m_btnOk->setObjectName(QStringLiteral("btnOk"));
    m_btnOk->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_btnRestoreDefaults);
    buttons->addStretch(1);
    buttons->addWidget(m_btnOk);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_chkAutoTile);
    layout->addWidget(m_chkHtml5Player);
    auto* grid = new QHBoxLayout;
    grid->addWidget(lblGridSize);
    grid->addWidget(m_txtGridSize);
    grid->addStretch(1);
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addLayout(buttons);

    showOptions();
    // clicked, not toggled: only the user's click stores, filling the box does not.
    connect(m_chkAutoTile, &QCheckBox::clicked, this, &FrmAdvanced::chkAutoTile_Click);
    connect(m_chkHtml5Player, &QCheckBox::clicked, this,
            [this](bool on) { m_settings.setFlag(SettingKey::Html5Player, on); });
    // Only a change the user made stores: showOptions() fills the box without signals.
    connect(m_txtGridSize, &QSpinBox::valueChanged, this, [this](int size) {
        if (!m_txtGridSize->signalsBlocked())
            m_settings.setValue(SettingKey::GridSize, std::to_string(size));
    });
    connect(m_btnRestoreDefaults, &QPushButton::clicked, this,
            &FrmAdvanced::btnRestoreDefaults_Click);
    connect(m_btnOk, &QPushButton::clicked, this, &FrmAdvanced::btnOk_Click);
    showTexts();
    nameControls(*this);
}

void FrmAdvanced::showOptions() {
    m_chkAutoTile->setChecked(m_settings.flag(SettingKey::AutoTile));
    m_chkHtml5Player->setChecked(m_settings.flag(SettingKey::Html5Player));
    const QSignalBlocker quiet(m_txtGridSize);
    m_txtGridSize->setValue(QString::fromStdString(m_settings.value(SettingKey::GridSize)).toInt());
}

void FrmAdvanced::showTexts() {
    showWindowTexts(*this, {TextSection::Advanced});
    m_txtGridSize->setSpecialValueText(uiText("frmAdvanced", "#gridOff"));
    m_txtGridSize->setSuffix(uiText("frmAdvanced", "#gridUnit"));
}

void FrmAdvanced::showEvent(QShowEvent* event) {
    showTexts();
    showOptions();
    QDialog::showEvent(event);
}

void FrmAdvanced::chkAutoTile_Click(bool checked) {
    m_settings.setFlag(SettingKey::AutoTile, checked);
    emit autoTileChanged(checked);
}

void FrmAdvanced::btnRestoreDefaults_Click() {
    if (m_ui.askOkCancel(texts()[Msg::RestoreDefaultsQuestion]) != UserInterface::Answer::Ok)
        return;
    m_settings.setDefaultButton(kFactoryDefaultButton);
    for (SettingKey option : {SettingKey::AutoTile, SettingKey::Html5Player,
                              SettingKey::SnapToButtons, SettingKey::GridSize})
        m_settings.setValue(option, settingDefinition(option).defaultValue);
    showOptions();
    emit autoTileChanged(m_settings.flag(SettingKey::AutoTile));
    emit defaultsRestored();
}

void FrmAdvanced::btnOk_Click() {
    accept();
}

} // namespace orvelin
