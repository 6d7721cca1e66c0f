#pragma once

#include <QDialog>

class QCheckBox;
class QPushButton;
class QSpinBox;

namespace orvelin {

class Settings;
class UserInterface;

/**
 * frmAdvanced: the automatic tiling and HTML5 player options, each stored the moment it
 * is clicked, and the way back to the factory settings of the default button and of
 * this dialog's options.
 */
class FrmAdvanced : public QDialog {
    Q_OBJECT
public:
    FrmAdvanced(Settings& settings, UserInterface& ui, QWidget* parent = nullptr);

    QCheckBox* chkAutoTile() const { return m_chkAutoTile; }
    QCheckBox* chkHtml5Player() const { return m_chkHtml5Player; }
    QSpinBox* txtGridSize() const { return m_txtGridSize; }

signals:
    /// AutoTile was stored; the main window's own check mark follows it.
    void autoTileChanged(bool on);
    /// strDefaultBtn and the options went back to their factory values.
    void defaultsRestored();

protected:
    void showEvent(QShowEvent* event) override;

private:
    void chkAutoTile_Click(bool checked);
    void btnRestoreDefaults_Click();
    void btnOk_Click();
    /// The check boxes show the stored options.
    void showOptions();
    /// Reads the window's section of the language in force and shows its texts.
    void showTexts();

    Settings& m_settings;
    UserInterface& m_ui;
    QCheckBox* m_chkAutoTile = nullptr;
    QCheckBox* m_chkHtml5Player = nullptr;
    QSpinBox* m_txtGridSize = nullptr;
    QPushButton* m_btnRestoreDefaults = nullptr;
    QPushButton* m_btnOk = nullptr;
};

} // namespace orvelin
