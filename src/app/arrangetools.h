#pragma once

#include "buttonlist.h"
#include "projectmodel.h"

#include <QObject>
#include <QString>
#include <functional>
#include <vector>

class QAction;
class QMenu;
class QToolBar;

namespace orvelin {

class FrmDesign;
class UndoHistory;
struct PixelRect;

/**
 * The Arrange menu `mnuArrange` and the toolbar `tbArrange` of the design window: align,
 * distribute and same size for the selected buttons, the current button being the one
 * the others line up on or take the size of. Each command is one undo step named after
 * it; a command is disabled while fewer buttons are selected than it needs.
 */
class ArrangeTools : public QObject {
    Q_OBJECT

public:
    /// The menu and the toolbar belong to `design`; the views follow the model's notices.
    ArrangeTools(FrmDesign& design, ProjectModel& model, ButtonList& list, UndoHistory& history,
                 QObject* parent = nullptr);
    ~ArrangeTools() override;

    QMenu* menu() const { return m_menu; }
    QToolBar* toolBar() const { return m_toolBar; }
    /// The command of that objectName ("mnuAlignLeft"), or null.
    QAction* action(const QString& name) const;
    /// Enables each command by the size of the selection.
    void updateEnabled();

private:
    using Tool = std::function<std::vector<PixelRect>(std::vector<PixelRect>, std::size_t)>;
    struct Command {
        QAction* action;
        int needs; ///< the fewest selected buttons it works on
    };
    void add(const char* name, int needs, const char* icon, Tool tool);
    /// The tool tips and the toolbar buttons' names, from the commands' texts in force.
    void showTexts();
    /// Runs `tool` on the selection, shows the result and records one step `stepName`.
    void apply(const Tool& tool, const QString& stepName);

    ProjectModel& m_model;
    ButtonList& m_list;
    UndoHistory& m_history;
    QMenu* m_menu = nullptr;
    QToolBar* m_toolBar = nullptr;
    std::vector<Command> m_commands;
    unsigned m_seenRevision = ~0U;
};

} // namespace orvelin
