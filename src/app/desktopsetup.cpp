#include "desktopsetup.h"

#include "desktopdialogs.h"
#include "programfolder.h"
#include "settings.h"
#include "textcatalogue.h"
#include "userinterface.h"

namespace orvelin {

DesktopSetup::DesktopSetup(Settings& settings, UserInterface& ui, DesktopTools& tools,
                           std::string programFolder, QWidget* owner)
    : m_settings(settings), m_ui(ui), m_tools(tools), m_programFolder(std::move(programFolder)),
      m_owner(owner) {}

void DesktopSetup::offerAtStartup() {
    const StartupOffers offers =
        decideStartupOffers(m_settings, runFromBuildFolder(), isAssociated(m_tools));
    if (!offers.shortCut) {
        if (offers.associate)
            askToAssociate();
        return;
    }
    auto* dialog = new FrmShortCut(m_owner);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, offers](int result) {
        if (result != QDialog::Accepted) {
            m_settings.setValue(SettingKey::ShortCut, "Canceled");
        } else if (const std::string error =
                       addToApplicationsMenu(m_tools, currentDesktopPlaces(m_programFolder));
                   error.empty()) {
            m_settings.setValue(SettingKey::ShortCut, "Created");
        } else {
            m_ui.showMessage(texts()[Msg::ShortCutFailed] + error + ".");
        }
        if (offers.associate)
            askToAssociate();
    });
    dialog->open();
}

void DesktopSetup::askToAssociate() {
    auto* dialog = new FrmAskToAssociate(m_owner);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        if (dialog->dontAskAgain())
            m_settings.setValue(SettingKey::DontAskToAssociate, "1");
        if (result == QDialog::Accepted)
            associate();
    });
    dialog->open();
}

void DesktopSetup::associateNow() {
    if (associate())
        m_ui.showMessage(texts()[Msg::AssociateDone]);
}

bool DesktopSetup::associate() {
    const std::string error = registerFileType(m_tools, currentDesktopPlaces(m_programFolder));
    if (!error.empty())
        m_ui.showMessage(texts()[Msg::AssociateFailed] + error + ".");
    return error.empty();
}

} // namespace orvelin
