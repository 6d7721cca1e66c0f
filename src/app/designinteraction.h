#pragma once

#include "buttonlist.h"
#include "manipulation.h"
#include "projectmodel.h"

#include <QObject>
#include <memory>
#include <vector>

class QAction;
class QMenu;
class QMouseEvent;
class QPointF;

namespace orvelin {

class FrmDesign;
class SnapGuides;
class SurfaceEditorLink;

/**
 * The mouse and keys on the design window: selecting, dragging and resizing buttons,
 * the label positioner, the stacking menu `mnuMove` and the arrow keys. It listens to
 * the window's input signals, lets the manipulation rules change the model and the
 * selection, and announces the change through the model: the views show it from there.
 */
class DesignInteraction : public QObject {
    Q_OBJECT

public:
    DesignInteraction(FrmDesign& design, ProjectModel& model, ButtonList& list,
                      SurfaceEditorLink& editor, QObject* parent = nullptr);
    ~DesignInteraction() override;

    QMenu* mnuMove() const { return m_mnuMove.get(); }
    QAction* mnuBringToFront() const { return m_mnuBringToFront; }
    QAction* mnuSendBack() const { return m_mnuSendBack; }

    const DragState& dragState() const { return m_drag; }
    /// Drags and handle moves snap through `snap` from now on (null: never).
    void setSnapping(SnapGuides* snap) { m_snap = snap; }

    // The handlers, named after the events they answer.
    void pButtons_MouseDown(int index, QMouseEvent* event);
    void pButtons_MouseMove(int index, QMouseEvent* event);
    void pButtons_MouseUp(int index, QMouseEvent* event);
    void picSizer_MouseDown(int handle, QMouseEvent* event);
    void picSizer_MouseMove(int handle, QMouseEvent* event);
    void picSizer_MouseUp(int handle, QMouseEvent* event);
    void picLabelPositioner_MouseDown(QMouseEvent* event);
    void picLabelPositioner_MouseMove(QMouseEvent* event);
    void picLabelPositioner_MouseUp(QMouseEvent* event);
    void Form_MouseDown(QMouseEvent* event);
    void mnuBringToFront_Click();
    void mnuSendBack_Click();
    /// An arrow key: the selection moves one pixel, ten with Shift.
    void nudge(NudgeDirection direction, bool shift);

private:
    /// Where the pointer of `event` is in its widget, in applet pixels.
    QPointF appletPosition(const QMouseEvent* event) const;
    void buildMenu();
    void bindKeys();
    // The views follow the document's change notices; these announce what the mouse did.
    void announce(const DocumentChange& change);
    void announceSelection();
    /// The buttons of a drag step (`gesture`) or a nudge moved.
    void announceMove(const MoveOutcome& moved, bool gesture);
    /// Bring to front or send back swapped the button that was current, `before`.
    void announceSwap(int before);

    FrmDesign& m_design;
    ProjectModel& m_model;
    ButtonList& m_list;
    SurfaceEditorLink& m_editor;
    DragState m_drag;
    SizerState m_sizers;
    PositionerState m_positioner;
    SnapGuides* m_snap = nullptr;
    std::unique_ptr<QMenu> m_mnuMove; ///< a pop-up of its own, no parent window
    QAction* m_mnuBringToFront = nullptr;
    QAction* m_mnuSendBack = nullptr;
};

} // namespace orvelin
