#pragma once

#include "actioneditor.h"
#include "programbuffer.h"

#include <QDialog>
#include <array>
#include <string>
#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QModelIndex;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace orvelin {

struct ProjectModel;
class UserInterface;

/**
 * The modal action program editor `frmSetAction`. Every rule lives in the
 * ActionEditor it owns; this window only mirrors that state in its controls and
 * turns clicks into calls. The controls carry their designer names (lstActions,
 * cmbAction, btnAdd, ...), which language sections and tests rely on.
 */
class FrmSetAction : public QDialog {
    Q_OBJECT

public:
    /// `selected` is the main button list's selection: entry i-1 for button i.
    FrmSetAction(ProjectModel& model, UserInterface& ui, ProgramBuffer& buffer,
                 std::vector<bool> selected, QWidget* parent = nullptr,
                 const std::array<std::string, 3>& stateCaptions = mainStateCaptions());

    /**
     * Loads the program of `kind` without showing it. The window is titled `title`, the
     * caption of what opened it; without one, after the kind.
     */
    void load(ProgramKind kind, const QString& title = {});
    /// myShow: loads, then runs modally; on return OK has written the model, if chosen.
    void myShow(ProgramKind kind, const QString& title = {});

    ActionEditor& editor() { return m_editor; }

private:
    void buildControls();
    void connectControls();

    // Control events.
    void cmbAction_Click(int index);
    void lstActions_Click(int row);
    void lstActions_DblClick(int row);
    void lstActions_RowsMoved(const QModelIndex& parent, int start, int end,
                              const QModelIndex& destination, int row);
    void btnAdd_Click();
    void btnGetHexColor_Click();
    void btnOk_Click();

    /// Runs an editor command and shows its outcome.
    template <typename Command> void run(Command command);
    void takeInputs();
    void showInputs();
    void showCombos();
    void showList();
    void showPanels();

    ActionEditor m_editor;
    std::vector<bool> m_selected;
    bool m_showing = false; // set while controls are filled from the editor

    QListWidget* m_lstActions = nullptr;
    QComboBox* m_cmbAction = nullptr;
    QComboBox* m_cmbButtonNumber = nullptr;
    QComboBox* m_cmbStateSelector = nullptr;
    QStackedWidget* m_parameters = nullptr;
    QWidget* m_noParameters = nullptr;
    QWidget* m_picActionMove = nullptr;
    QLineEdit* m_txtX = nullptr;
    QLineEdit* m_txtY = nullptr;
    QLineEdit* m_txtWidth = nullptr;
    QLineEdit* m_txtHeight = nullptr;
    QLabel* m_lblTargets = nullptr;
    QLabel* m_lblInputNote = nullptr;
    QLabel* m_lblWidth = nullptr;
    QLabel* m_lblHeight = nullptr;
    QWidget* m_picSetLabel = nullptr;
    QLineEdit* m_txtLabel = nullptr;
    QToolButton* m_btnGetHexColor = nullptr;
    QWidget* m_picSetTimer = nullptr;
    QComboBox* m_lsMiliseconds = nullptr;
    QLabel* m_lblMiliseconds = nullptr;
    QWidget* m_javaScriptPage = nullptr;
    QLineEdit* m_txtJavaScript = nullptr;
    QPushButton* m_btnAdd = nullptr;
    QPushButton* m_btnRemove = nullptr;
    QToolButton* m_btnUP = nullptr;
    QToolButton* m_btnDown = nullptr;
    QPushButton* m_btnCopyProg = nullptr;
    QPushButton* m_btnPasteProg = nullptr;
    QPushButton* m_btnOk = nullptr;
    QPushButton* m_btnCancel = nullptr;
};

/**
 * Opens the action program editor for `kind` over `parent` and
 * returns when it is closed. OK writes the program into every selected button
 * (button kinds) or the applet's slot and clears Saved; Cancel writes nothing.
 */
void showActionEditor(QWidget* parent, ProjectModel& model, const std::vector<bool>& selected,
                      UserInterface& ui, ProgramBuffer& buffer, ProgramKind kind,
                      const QString& title = {},
                      const std::array<std::string, 3>& stateCaptions = mainStateCaptions());

} // namespace orvelin
