#include "frmadvanced.h"

#include "buttonrecord.h"
#include "messages.h"
#include "settings.h"
#include "userinterface.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace orvelin {

FrmAdvanced::FrmAdvanced(Settings& settings, UserInterface& ui, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_ui(ui) {
    setObjectName(QStringLiteral("frmAdvanced"));
    setWindowTitle(QStringLiteral("Advanced"));
    setModal(true);

    m_chkAutoTile =
        new QCheckBox(QStringLiteral("Tile small background images automatically"), this);
    m_chkAutoTile->setObjectName(QStringLiteral("chkAutoTile"));
    m_btnRestoreDefaults = new QPushButton(QStringLiteral("Restore Defaults"), this);
    m_btnRestoreDefaults->setObjectName(QStringLiteral("btnRestoreDefaults"));
    m_btnRestoreDefaults->setAutoDefault(false);
    m_btnOk = new QPushButton(QStringLiteral("OK"), this);
    m_btnOk->setObjectName(QStringLiteral("btnOk"));
    m_btnOk->setDefault(true);

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_btnRestoreDefaults);
    buttons->addStretch(1);
    buttons->addWidget(m_btnOk);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_chkAutoTile);
    layout->addStretch(1);
    layout->addLayout(buttons);

    m_chkAutoTile->setChecked(m_settings.flag(SettingKey::AutoTile));
    // clicked, not toggled: only the user's click stores, filling the box does not.
    connect(m_chkAutoTile, &QCheckBox::clicked, this, &FrmAdvanced::chkAutoTile_Click);
    connect(m_btnRestoreDefaults, &QPushButton::clicked, this,
            &FrmAdvanced::btnRestoreDefaults_Click);
    connect(m_btnOk, &QPushButton::clicked, this, &FrmAdvanced::btnOk_Click);
}

void FrmAdvanced::showEvent(QShowEvent* event) {
    m_chkAutoTile->setChecked(m_settings.flag(SettingKey::AutoTile));
    QDialog::showEvent(event);
}

void FrmAdvanced::chkAutoTile_Click(bool checked) {
    m_settings.setFlag(SettingKey::AutoTile, checked);
    emit autoTileChanged(checked);
}

void FrmAdvanced::btnRestoreDefaults_Click() {
    if (m_ui.askOkCancel(Messages()[Msg::RestoreDefaultsQuestion]) != UserInterface::Answer::Ok)
        return;
    m_settings.SetDefaultButton(kFactoryDefaultButton);
    m_settings.setValue(SettingKey::AutoTile, SettingDefinition(SettingKey::AutoTile).defaultValue);
    const bool autoTile = m_settings.flag(SettingKey::AutoTile);
    m_chkAutoTile->setChecked(autoTile);
    emit autoTileChanged(autoTile);
    emit defaultsRestored();
}

void FrmAdvanced::btnOk_Click() {
    accept();
}

} // namespace orvelin
