#pragma once

#include "projectmodel.h"
#include "userinterface.h"

#include <QWidget>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace orvelin {

/**
 * The HTML window: the applet code of the open project in a read-only box, the
 * applet-name box that names the applet in that code, and the commands on the code.
 * Generating is MakeHTML's job; the window only shows and copies what it returns.
 */
class FrmHTML : public QWidget {
    Q_OBJECT

public:
    FrmHTML(ProjectModel& model, UserInterface& ui, QWidget* parent = nullptr);

    /// Regenerates the code from the project as it is now.
    void MakeHTML();
    /// Shows the window (without blocking) and regenerates.
    void showAndGenerate();

    /// Whether the last generation found a button that calls JavaScript.
    bool usesJavaScript() const { return m_usesJavaScript; }
    QString code() const;

private:
    void txtAppletName_KeyUp();
    void btnCopyToClb_Click();

    ProjectModel& m_model;
    UserInterface& m_ui;
    QLineEdit* m_txtAppletName = nullptr;
    QPlainTextEdit* m_txtHTML = nullptr;
    QPushButton* m_btnReGenerate = nullptr;
    QPushButton* m_btnCopyToClb = nullptr;
    bool m_usesJavaScript = false;
};

} // namespace orvelin
