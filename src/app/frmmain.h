#pragma once

#include "editor.h"
#include "editorview.h"
#include "programbuffer.h"

#include <QMainWindow>
#include <QPointer>

class QListWidget;

namespace orvelin {

class AppletPanel;
class ButtonListBinding;
class FrmMultiLineEditor;
class MainMenus;
class PropertyPanel;
class UndoHistory;

/**
 * The main editor window `frmMain`: the button list, the property panel and the
 * menus. It owns the editor core and shows what the core reports; the panels, the
 * list binding and the menus are separate pieces, so this class only puts them
 * together and routes what opens other windows.
 */
class FrmMain : public QMainWindow, public EditorView {
    Q_OBJECT

public:
    /// `programFolder` goes to the editor (help, the sound converter).
    FrmMain(ProjectModel& model, ButtonList& list, UserInterface& ui, Settings& settings,
            DesignView& design, Shell& shell, std::string programFolder = {},
            QWidget* parent = nullptr);
    ~FrmMain() override;

    Editor& editor() { return m_editor; }
    MainMenus& menus() { return *m_menus; }
    UndoHistory& history() { return *m_history; }

    // EditorView
    void ShowProp(int index, const std::string& caption) override;
    void SetMainParams() override;
    void showButtonList() override;
    void setCaption(const std::string& caption) override;
    void setRecentEntry(int slot, const std::string& caption, bool visible) override;
    void setActionTitle(const std::string& title) override;
    void showState(ButtonState state) override;
    void setOnTopChecked(bool checked) override;
    void setLanguageChecked(const std::string& language) override;
    void showTexts(const std::string& language) override;
    void setAutoTileChecked(bool checked) override;
    void closeLabelEditor() override;
    void quitProgram() override;
    std::optional<ImageSize> imageSizeOf(const std::string& path) override;
    void projectReplaced() override;

signals:
    void designWindowRequested();
    void htmlViewRequested();
    /// A language changed the texts in force; this window has taken them already.
    void textsChanged(const QString& language);
    /// The close path said yes: the program ends.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* buildButtonColumn();
    void openActionEditor(ProgramKind kind);
    void openLabelEditor();
    void openAdvanced();
    void openOffset();
    void showAbout();

    ProjectModel& m_model;
    ButtonList& m_list;
    UserInterface& m_ui;
    Settings& m_settings;
    Editor m_editor;
    /// What the action editor's Copy left for Paste, for the whole run.
    ProgramBuffer m_programBuffer;
    QListWidget* m_buttons = nullptr;
    ButtonListBinding* m_binding = nullptr;
    PropertyPanel* m_properties = nullptr;
    AppletPanel* m_applet = nullptr;
    MainMenus* m_menus = nullptr;
    UndoHistory* m_history = nullptr;
    QPointer<FrmMultiLineEditor> m_labelEditor;
    bool m_quitting = false;
};

} // namespace orvelin
