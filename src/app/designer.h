#pragma once

#include "buttonlist.h"
#include "editor.h"
#include "languagefiles.h"
#include "projectmodel.h"
#include "qsettingsbackend.h"
#include "qtshell.h"
#include "qtuserinterface.h"
#include "settings.h"
#include "textcatalogue.h"
#include "windowtexts.h"

#include <QObject>
#include <QString>
#include <memory>

namespace orvelin {

class ArrangeTools;
class DesignInteraction;
class SnapGuides;
class EditorSurfaceLink;
class FrmDesign;
class FrmHTML;
class FrmMain;

/**
 * The designer as one program: the project, its selection, the settings, the shell
 * and the two top-level windows, and the wiring between the windows. main() makes one,
 * starts it and runs the event loop.
 */
class Designer : public QObject {
    Q_OBJECT

public:
    /// `ui` replaces the message boxes and file dialogs (a scripted user in tests).
    explicit Designer(UserInterface* ui = nullptr);
    ~Designer() override;

    /**
     * Shows both windows and runs the editor's start-up with `commandLine` (one
     * project path, possibly in double quotes). Quit when the program must end at
     * once (a damaged default-button setting was repaired).
     */
    StartupResult start(const QString& commandLine);

    FrmMain& mainWindow() { return *m_main; }
    FrmDesign& designWindow() { return *m_design; }
    ProjectModel& model() { return m_model; }
    ButtonList& selection() { return m_list; }
    /// The program's own folder, found once at start.
    const std::string& programFolder() const { return m_programFolder; }

private:
    void connectWindows();
    void placeWindows();
    /// Puts the design window where it hides nothing of the main editor.
    void placeDesignWindow();
    /// Shows the HTML window with freshly generated code.
    void showHtml();
    /// The windows that are always there take the texts in force, laid out for
    /// `language`.
    void showTexts(const QString& language);
    /// Sizes the design window to show the whole applet, within the screen.
    void fitDesignWindow();

    std::string m_programFolder;
    ProjectModel m_model;
    ButtonList m_list;
    QSettingsBackend m_backend;
    Settings m_settings{m_backend};
    QtUserInterface m_qtUi;
    UserInterface& m_ui;
    QtShell m_shell;
    // The texts every window takes as it is made: before the windows.
    TextCatalogue m_texts;
    LanguageFiles m_languages{m_texts, m_settings, m_programFolder};
    LanguageInForce m_inForce{m_texts, m_languages};
    // The main window's editor refers to the design window: it goes first.
    std::unique_ptr<FrmDesign> m_design;
    std::unique_ptr<FrmMain> m_main;
    // The mouse on the design window; it refers to both windows, so it goes before them.
    std::unique_ptr<EditorSurfaceLink> m_surfaceLink;
    std::unique_ptr<DesignInteraction> m_interaction;
    std::unique_ptr<ArrangeTools> m_arrange;
    std::unique_ptr<SnapGuides> m_snap;
    std::unique_ptr<FrmHTML> m_html;
    int m_listening = 0;
    bool m_htmlPending = false;
};

} // namespace orvelin
