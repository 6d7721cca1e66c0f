#pragma once

#include <QObject>
#include <QString>
#include <array>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;

namespace orvelin {

class Editor;

/**
 * The main editor's menu bar and its keys: File, Edit, View, Options, Tools and Help.
 * Commands the core owns go straight to the editor; the ones that open other windows
 * are signals the main window routes.
 */
class MainMenus : public QObject {
    Q_OBJECT

public:
    MainMenus(QMainWindow& window, Editor& editor);

    /// Recent entry `slot` (1..4) shows `caption`, or is hidden.
    void setRecentEntry(int slot, const QString& caption, bool visible);
    void setOnTopChecked(bool checked);
    /// "English", "rus" or "heb".
    void setLanguageChecked(const QString& language);
    void setAutoTileChecked(bool checked);
    /// Puts undo and redo at the top of the Edit menu, in the design window as well.
    void addUndoActions(QAction* undo, QAction* redo);

    /// The commands worth having in the design window as well (file keys, button
    /// commands), so the same keys work there.
    QList<QAction*> sharedActions() const;
    QAction* htmlAction() const { return m_html; }
    QAction* removeAction() const { return m_remove; }

signals:
    void designWindowRequested();
    void htmlViewRequested();
    void aboutRequested();
    void advancedRequested();
    void associateRequested();

private:
    QAction* add(QMenu* menu, const char* name);
    void buildFile(QMenu* menu);
    void buildEdit(QMenu* menu);
    void buildView(QMenu* menu);
    void buildOptions(QMenu* menu);
    void buildTools(QMenu* menu);
    void buildHelp(QMenu* menu);

    QMainWindow& m_window;
    Editor& m_editor;
    std::array<QAction*, 4> m_recent{};
    QList<QAction*> m_shared;
    QMenu* m_edit = nullptr;
    QAction* m_onTop = nullptr;
    QAction* m_html = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_autoTile = nullptr;
    QActionGroup* m_languages = nullptr;
};

} // namespace orvelin
