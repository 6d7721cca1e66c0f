#pragma once

#include "programkind.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

struct ProgramBuffer;
struct ProjectModel;
class UserInterface;

/// The captions of the main editor's three state buttons in force, UP first.
std::array<std::string, 3> mainStateCaptions();

/// Which input controls the selected command offers; the others are hidden or disabled.
struct ActionPanels {
    bool buttonList = false;
    bool movePanel = false;
    bool labelPanel = false; ///< the label box and the state list
    bool colorButton = false;
    bool timerPanel = false;
    bool javaScript = false;
};

/// The typed inputs for a new command, as the dialog's boxes hold them.
struct ActionInputs {
    std::string x, y, width, height;  ///< txtX, txtY, txtWidth, txtHeight
    std::string label;                ///< txtLabel (label text or colour)
    std::string milliseconds = "100"; ///< lsMiliseconds
    std::string javaScript;           ///< txtJavaScript
};

/**
 * The action program editor without its window: the two parallel lists, the
 * inputs for a new command and every rule of adding, removing, reordering,
 * copying and storing. The dialog only mirrors this state in its controls.
 *
 * lstActionsCode holds the command lines; lstActions their readable lines. A
 * command line without a readable form puts the lists out of step, and the
 * commands that act on "the selected line" then act on the command line at the
 * readable selection's index, as they always have.
 */
class ActionEditor {
public:
    /// Copy and paste go through `buffer`, which outlives the editor.
    ActionEditor(ProjectModel& model, UserInterface& ui, ProgramBuffer& buffer,
                 std::array<std::string, 3> stateCaptions = mainStateCaptions());

    /**
     * Fills the lists for `kind` and loads its program: a button kind from the
     * current button's slot, an applet kind from the project's. The command texts and
     * the move panel's captions are the action editor's texts in force at this moment.
     */
    void open(ProgramKind kind);
    ProgramKind kind() const { return m_kind; }

    const std::vector<std::string>& commandLines() const { return m_code; }
    const std::vector<std::string>& readableLines() const { return m_readable; }
    /// Index of the selected readable line, -1 for none.
    int selection() const { return m_selection; }
    /// Selects a readable line; an index outside the list selects nothing.
    void select(int index);
    /// The list's tool tip: the selected line's full text.
    std::string listToolTip() const;

    const std::vector<std::string>& commandTexts() const { return m_commandTexts; }
    const std::vector<std::string>& buttonTexts() const { return m_buttonTexts; }
    const std::vector<std::string>& stateTexts() const { return m_stateTexts; }

    /// Selected entries (0-based, -1 for none) of the command, button and state lists.
    int command() const { return m_command; }
    int button() const { return m_button; }
    int state() const { return m_state; }
    /// Choosing a command sets the panels; "Set Color" also empties the label box.
    void setCommand(int index);
    void setButton(int index);
    void setState(int index);
    ActionPanels panels() const;

    ActionInputs& inputs() { return m_inputs; }
    const ActionInputs& inputs() const { return m_inputs; }

    /// "&Add": builds the selected command from the inputs; true when a line was added.
    bool add();
    /// "&Remove": drops the line at the selection from both lists, keeping the index.
    void remove();
    void moveUp();
    void moveDown();
    /// Drag reordering: the line at `from` goes to position `to` (readable indices).
    void moveLine(int from, int to);
    /// "Copy": the whole program into the ProgramBuffer.
    void copy();
    /// "Paste": the ProgramBuffer's commands after the current ones.
    void paste();

    /**
     * Puts the command of readable line `index` back into the input controls, so
     * that it can be changed and added again. False when the line has no command
     * behind it any more.
     */
    bool loadLine(int index);

    /// The colour picker's choice (0x00BBGGRR) written into the label box.
    void takeColor(std::int32_t colour);

    /**
     * "&Ok": stores the program into every selected button (entry i-1 of
     * `selected` for button i) or into the applet's slot, and clears Saved.
     */
    void ok(const std::vector<bool>& selected);
    /// The buttons that ok() writes a button program into; none for an applet program.
    std::vector<int> targetButtons(const std::vector<bool>& selected) const;

    /// AppendProgram: the command lines of `text` after the current ones.
    void appendProgram(std::string_view text);
    /// StoreProgram: the command lines as program text.
    std::string storeProgram() const;
    /// RefreshActionList: the readable lines rebuilt from the command lines.
    void refreshActionList();

private:
    void swapLines(int a, int b);

    ProjectModel& m_model;
    UserInterface& m_ui;
    ProgramBuffer& m_buffer;
    ProgramKind m_kind = ProgramKind::ProgramUP;

    std::vector<std::string> m_code;     // lstActionsCode
    std::vector<std::string> m_readable; // lstActions
    // For each readable line, the command line it was built from (-1 once that
    // line is gone); only loadLine needs it.
    std::vector<int> m_source;
    int m_selection = -1;

    std::vector<std::string> m_commandTexts;
    std::vector<std::string> m_buttonTexts;
    std::vector<std::string> m_stateTexts;
    std::string m_widthCaption;
    std::string m_heightCaption;
    int m_command = -1;
    int m_button = -1;
    int m_state = -1;
    ActionInputs m_inputs;
};

} // namespace orvelin
