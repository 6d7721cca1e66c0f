#pragma once

#include "buttonlist.h"
#include "designview.h"
#include "editorview.h"
#include "projectfile.h"
#include "projectmodel.h"
#include "projectsnapshot.h"
#include "propertyeditor.h"
#include "recentfiles.h"
#include "settings.h"
#include "shell.h"
#include "userinterface.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

/// The answer of AskToSave; AskToSaveText gives "SAVED", "YES", "NO", "CANCEL".
enum class SaveAnswer { Saved, Yes, No, Cancel };
const char* askToSaveText(SaveAnswer answer);

/// What the caller does after Startup or a command that may end the program.
enum class StartupResult { Ready, Quit };

/// File dialog filters, in Qt's form.
/// How far right and down a duplicated button stands from its original, in pixels.
inline constexpr int kDuplicateOffset = 10;

inline constexpr const char* kProposedProjectName = "untitled.orv";

/**
 * The file a save-as writes: `chosen` with ".orv" added when its name has no extension
 * (no "." after its first character) and the chosen filter is the project one, which is
 * what the open dialog shows by default; otherwise `chosen` as it is.
 */
std::string projectSavePath(std::string_view chosen, std::string_view chosenFilter);

/**
 * What the user is told after a project was read, in this order: the earlier-version
 * note, "Error loading project." with the cause, the characters removed. Returns
 * result.loaded().
 */
bool showLoadResult(const LoadResult& result, UserInterface& ui);

/**
 * The main editor's commands as operations on the project: they change the model,
 * the button list's selection and the settings, ask the user through UserInterface,
 * and tell the design surface and the main window what to show. The windows only bind
 * their controls to it. The property controls are bound to properties().
 */
class LanguageFiles;

class Editor {
public:
    /// Help and the sound converter come from `programFolder`; without one the editor
    /// finds it (findProgramFolder) when they are asked for.
    Editor(ProjectModel& model, ButtonList& list, UserInterface& ui, Settings& settings,
           DesignView& design, Shell& shell, EditorView& view, std::string programFolder = {});
    ~Editor();
    Editor(const Editor&) = delete;
    Editor& operator=(const Editor&) = delete;

    /**
     * The main editor's loading and the command line: caption, recent menu, language,
     * state "UP", the first button, keep-on-top, tiling, action title, Saved; then the
     * project named on `commandLine` (trimmed, surrounding quotes dropped). Quit when
     * the default-button setting was damaged and has been repaired: the caller ends the
     * program (Startup does not call EditorView::QuitProgram, there is no event loop yet;
     * a later AddButton that meets a damaged setting does).
     */
    StartupResult startup(std::string_view commandLine);
    /// Whether the file-association prompt may be shown (DontAskToAssociate is not "1").
    bool mayAskToAssociate() const;

    // File menu.
    void newProject();
    void open();
    void openRecent(int slot);
    /// Save to ProjectFileName, or save-as when there is none. True when written.
    bool save();
    bool saveAs();
    /// Reads a project of the legacy INI format; the result has no file name yet.
    void importLegacy();
    /// Yes/No/Cancel on an unsaved project; "Yes" saves.
    SaveAnswer AskToSave();
    /// The close path: true when the program may end.
    bool close();

    // Buttons.
    void addButton();
    void duplicateButton();
    void removeButton();
    /// The selected buttons as clipboard text (ButtonsClipboardText); "" when none is.
    std::string copyButtons() const;
    /// CopyButtons, then the selected buttons are removed; "" when none is selected.
    std::string cutButtons();
    /**
     * Adds the buttons of clipboard text at the end, 10 pixels right of and below where
     * they were copied from, and selects them. Text that is not Orvelin buttons is
     * ignored; buttons beyond the 101-button limit refuse the whole paste with its
     * message.
     */
    void pasteButtons(std::string_view text);
    /// A click on the list entry of button `index` (1-based): it becomes current. The
    /// selection itself is the list's: report it first with SetListSelection.
    void clickList(int index);
    /// The list widget's selection changed: `selected` holds button numbers.
    void setListSelection(const std::vector<int>& selected);
    /// "UP", "OVER" or "DOWN"; anything else is ignored.
    void switchState(std::string_view state);
    /// The button kind of CurrentState: what the action command edits.
    ProgramKind actionProgramKind() const;

    // Options and tools.
    void makeDefault();
    void soundConverter();
    void help();
    void toggleKeepOnTop();
    bool keepOnTop() const;
    /// "English", "rus" or "heb".
    void setLanguage(const std::string& language);
    /// The language files the language commands and the start-up read; without them a
    /// language choice is only stored.
    void setLanguageFiles(LanguageFiles* languages) { m_languages = languages; }
    void setAutoTile(bool on);

    /// Fills the property panel from button `index` with Updating set (no-op for 0).
    void ShowProp(int index);
    /// Fills the applet controls with Updating set.
    void SetMainParams();
    /// The main window's part of a change notice: the button list, the applet controls
    /// and the property panel show the document again where it changed.
    void showChange(const DocumentChange& change);

    PropertyEditor& properties() { return m_properties; }
    RecentFiles& recent() { return m_recent; }

private:
    // The main block and the always-shown windows' sections of `language`, then the
    // windows show the texts in force.
    void applyLanguage(const std::string& language);
    // Empties model and list for a project about to be read; the old button count.
    int clearProject();
    // After a reader ran: list entries, the first button, the notice of a new project.
    void showLoadedProject(int countBefore);
    void announceReplaced(int countBefore);
    // Buttons were added or removed; those from `firstChanged` on have other records.
    void announceCount(int countBefore, int firstChanged, std::string name = {});
    void announceSelection();
    bool loadFile(const std::string& path);
    void applyKeepOnTop();
    // AddButton without the view refresh; Quit when the default string is damaged.
    StartupResult appendDefaultButton();
    void repairDefaultButton();
    void showCurrentState();
    std::string programFolder() const;

    ProjectModel& m_model;
    ButtonList& m_list;
    UserInterface& m_ui;
    Settings& m_settings;
    DesignView& m_design;
    Shell& m_shell;
    EditorView& m_view;
    std::string m_programFolder;
    LanguageFiles* m_languages = nullptr;
    RecentFiles m_recent;
    PropertyEditor m_properties;
    int m_listening = 0;
};

/// The first line of buttons on the clipboard, "Orvelin Buttons 1.0  Beta 6".
std::string buttonsClipboardHeader();
/// The header line, then one serialised button per line, each line ending in CR LF.
std::string buttonsClipboardText(const ProjectModel& model, const std::vector<int>& buttons);
/// The buttons of clipboard text; nothing when it is not Orvelin buttons.
std::optional<std::vector<ButtonRecord>> buttonsFromClipboardText(std::string_view text);

/// The main window's title, "Orvelin 1.0  Beta 6".
std::string mainTitle();
/// The command line's project path: trimmed, a leading quote drops the first and last
/// character.
std::string projectPathFromCommandLine(std::string_view commandLine);

} // namespace orvelin
