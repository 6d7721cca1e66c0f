#pragma once

#include "browserlist.h"
#include "projectmodel.h"
#include "publishing.h"
#include "settings.h"
#include "shell.h"
#include "userinterface.h"

#include <QWidget>
#include <string>
#include <vector>

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace orvelin {

/**
 * The HTML window: the applet code of the open project in a read-only box, the
 * applet-name box that names the applet in that code, and the commands on the code:
 * test it in a browser chosen in `cmbBrowser`, regenerate, copy, and build it into a
 * folder with every file it needs. Generating is MakeHTML's job and publishing is the
 * core's (publishing.h); the window only shows, copies and hands on.
 */
class FrmHTML : public QWidget {
    Q_OBJECT

public:
    /// The JSCaller block and the page's program files come from `programFolder`.
    FrmHTML(ProjectModel& model, UserInterface& ui, Settings& settings, Shell& shell,
            std::string programFolder, QWidget* parent = nullptr);

    /// Regenerates the code from the project as it is now.
    void MakeHTML();
    /// Shows the window (without blocking) and regenerates.
    void showAndGenerate();

    /// Whether the last generation found a button that calls JavaScript.
    bool usesJavaScript() const { return m_usesJavaScript; }
    /// The code as generated, with its CR LF line ends.
    QString code() const { return QString::fromStdString(m_code); }

    /// Shows the texts in force again, the default browser's name in the chooser too.
    /// Called after a change of language.
    void retranslate();

    /// Where browsers are looked for on first use and by "Find Browsers" (tests).
    void setBrowserSearchPlaces(BrowserSearchPlaces places);

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void txtAppletName_KeyUp();
    void btnPreview_Click();
    void btnSave_Click();
    void btnCopyToClb_Click();
    void cmbBrowser_Click(int position);
    void btnBrowsers_Click();
    /// The chooser's first entry, the desktop's default browser, in the language in force.
    void showDefaultBrowserName();
    /// Fills cmbBrowser and its hidden program list from the settings.
    void loadBrowsers();
    /// The generated code as preview and build write it, with the player when it is on.
    PageSource pageSource() const;

    ProjectModel& m_model;
    UserInterface& m_ui;
    Settings& m_settings;
    Shell& m_shell;
    std::string m_programFolder;
    BrowserSearchPlaces m_places;
    /// The browsers' programs at the chooser's positions ("" for the default browser).
    std::vector<BrowserEntry> m_browsers;
    std::string m_code;
    bool m_usesJavaScript = false;
    bool m_placed = false;
    QLineEdit* m_txtAppletName = nullptr;
    QPlainTextEdit* m_txtHTML = nullptr;
    QComboBox* m_cmbBrowser = nullptr;
};

} // namespace orvelin
