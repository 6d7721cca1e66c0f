#pragma once

#include "desktopintegration.h"

#include <QObject>
#include <string>

class QWidget;

namespace orvelin {

class Settings;
class UserInterface;

/**
 * The designer's place on the desktop: at start-up the menu-entry offer and the
 * file-association prompt as the settings decide, and the Options menu's command
 * that makes Orvelin the program for .orv files at any time.
 */
class DesktopSetup : public QObject {
    Q_OBJECT

public:
    /// The desktop files come from `programFolder`.
    DesktopSetup(Settings& settings, UserInterface& ui, DesktopTools& tools,
                 std::string programFolder, QWidget* owner);

    /// Shows the prompts start-up owes, one after the other, without blocking.
    void offerAtStartup();
    /// Registers the file type now and says how it went.
    void associateNow();

private:
    void askToAssociate();
    /// Registers; shows the failure's reason. True when done.
    bool associate();

    Settings& m_settings;
    UserInterface& m_ui;
    DesktopTools& m_tools;
    std::string m_programFolder;
    QWidget* m_owner;
};

} // namespace orvelin
