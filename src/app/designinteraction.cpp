#include "designinteraction.h"

#include "buttonpicture.h"
#include "frmdesign.h"
#include "labelpositioner.h"
#include "sizerhandle.h"
#include "snapguides.h"
#include "surfaceeditorlink.h"
#include "windowtexts.h"

#include <QAction>
#include <QMenu>
#include <QMouseEvent>
#include <QShortcut>

namespace orvelin {

namespace {

MouseButton buttonOf(const QMouseEvent* event) {
    switch (event->button()) {
    case Qt::LeftButton:
        return MouseButton::Left;
    case Qt::RightButton:
        return MouseButton::Right;
    default:
        return MouseButton::Middle;
    }
}

bool ctrlHeld(const QMouseEvent* event) {
    return event->modifiers().testFlag(Qt::ControlModifier);
}

/// Alt held while dragging: no snapping for this step.
bool altHeld(const QMouseEvent* event) {
    return event->modifiers().testFlag(Qt::AltModifier);
}

} // namespace

DesignInteraction::DesignInteraction(FrmDesign& design, ProjectModel& model, ButtonList& list,
                                     SurfaceEditorLink& editor, QObject* parent)
    : QObject(parent), m_design(design), m_model(model), m_list(list), m_editor(editor) {
    buildMenu();
    bindKeys();
    connect(&design, &FrmDesign::buttonMouseDown, this, &DesignInteraction::pButtons_MouseDown);
    connect(&design, &FrmDesign::buttonMouseMove, this, &DesignInteraction::pButtons_MouseMove);
    connect(&design, &FrmDesign::buttonMouseUp, this, &DesignInteraction::pButtons_MouseUp);
    connect(&design, &FrmDesign::sizerMouseDown, this, &DesignInteraction::picSizer_MouseDown);
    connect(&design, &FrmDesign::sizerMouseMove, this, &DesignInteraction::picSizer_MouseMove);
    connect(&design, &FrmDesign::sizerMouseUp, this, &DesignInteraction::picSizer_MouseUp);
    connect(&design, &FrmDesign::positionerMouseDown, this,
            &DesignInteraction::picLabelPositioner_MouseDown);
    connect(&design, &FrmDesign::positionerMouseMove, this,
            &DesignInteraction::picLabelPositioner_MouseMove);
    connect(&design, &FrmDesign::positionerMouseUp, this,
            &DesignInteraction::picLabelPositioner_MouseUp);
    connect(&design, &FrmDesign::surfaceMouseDown, this, &DesignInteraction::Form_MouseDown);
}

DesignInteraction::~DesignInteraction() = default;

QPointF DesignInteraction::appletPosition(const QMouseEvent* event) const {
    // The rules see the pointer as at 100%, and round it as they do there.
    const SurfaceZoom& zoom = m_design.zoom();
    const QPointF onScreen = event->position();
    return {zoom.toApplet(onScreen.x()), zoom.toApplet(onScreen.y())};
}

void DesignInteraction::buildMenu() {
    m_mnuMove = std::make_unique<QMenu>();
    m_mnuMove->setObjectName(QStringLiteral("mnuMove"));
    m_mnuBringToFront = m_mnuMove->addAction(QString());
    m_mnuBringToFront->setObjectName(QStringLiteral("mnuBringToFront"));
    m_mnuSendBack = m_mnuMove->addAction(QString());
    m_mnuSendBack->setObjectName(QStringLiteral("mnuSendBack"));
    connect(m_mnuBringToFront, &QAction::triggered, this,
            &DesignInteraction::mnuBringToFront_Click);
    connect(m_mnuSendBack, &QAction::triggered, this, &DesignInteraction::mnuSendBack_Click);
}

void DesignInteraction::bindKeys() {
    const struct {
        Qt::Key key;
        NudgeDirection direction;
    } arrows[] = {{Qt::Key_Left, NudgeDirection::Left},
                  {Qt::Key_Right, NudgeDirection::Right},
                  {Qt::Key_Up, NudgeDirection::Up},
                  {Qt::Key_Down, NudgeDirection::Down}};
    for (const auto& arrow : arrows) {
        for (bool shift : {false, true}) {
            const QKeySequence keys(shift ? QKeyCombination(Qt::ShiftModifier, arrow.key)
                                          : QKeyCombination(arrow.key));
            auto* shortcut = new QShortcut(keys, &m_design);
            shortcut->setContext(Qt::WindowShortcut);
            const NudgeDirection direction = arrow.direction;
            connect(shortcut, &QShortcut::activated, this,
                    [this, direction, shift] { nudge(direction, shift); });
        }
    }
}

void DesignInteraction::announce(const DocumentChange& change) {
    m_model.notices.announce(change);
}

void DesignInteraction::announceSelection() {
    DocumentChange change;
    change.selection = true;
    announce(change);
}

void DesignInteraction::pButtons_MouseDown(int index, QMouseEvent* event) {
    const unsigned revision = m_list.revision();
    const int current = m_model.CurrentButton;
    const QPointF at = appletPosition(event);
    const PressOutcome out = pressOnButton(m_model, m_list, m_drag, index, buttonOf(event),
                                           ctrlHeld(event), at.x(), at.y());
    // The notice repaints the markers that came or went, places the handles around the
    // current button (a handle left around another would resize by the distance between
    // them) and shows its properties.
    if (m_list.revision() != revision || m_model.CurrentButton != current)
        announceSelection();
    if (out.openMoveMenu) {
        m_mnuBringToFront->setEnabled(out.enableBringToFront);
        m_mnuSendBack->setEnabled(out.enableSendBack);
        m_mnuBringToFront->setText(uiText("frmDesign", "#bringToFront"));
        m_mnuSendBack->setText(uiText("frmDesign", "#sendBack"));
        m_mnuMove->popup(event->globalPosition().toPoint());
    }
}

void DesignInteraction::announceMove(const MoveOutcome& moved, bool gesture) {
    if (!moved.moved)
        return;
    DocumentChange change;
    change.gesture = gesture;
    for (int i : moved.buttons)
        change.button(i, true);
    announce(change);
}

void DesignInteraction::pButtons_MouseMove(int, QMouseEvent* event) {
    if (!m_drag.dragging)
        return;
    const QPointF at = appletPosition(event);
    MoveOutcome moved = dragOnButton(m_model, m_list, m_drag, at.x(), at.y());
    if (m_snap)
        m_snap->afterDrag(moved, altHeld(event));
    announceMove(moved, true);
}

void DesignInteraction::pButtons_MouseUp(int index, QMouseEvent*) {
    if (m_snap)
        m_snap->finish();
    const ReleaseOutcome out = releaseOnButton(m_model, m_list, m_drag, index);
    if (out.placeSizer != 0)
        m_design.moveSizer(out.placeSizer);
    // The drag is over: moved transparent buttons show the background of their new place.
    DocumentChange change;
    if (out.redrawReleased != 0)
        change.button(out.redrawReleased, true);
    for (int i : out.redrawMovedTransparent)
        change.button(i, true);
    if (!change.buttons.empty())
        announce(change);
}

void DesignInteraction::nudge(NudgeDirection direction, bool shift) {
    if (m_drag.dragging)
        return; // the pointer owns the buttons until it lets go
    announceMove(nudgeSelection(m_model, m_list, direction, shift), false);
}

void DesignInteraction::Form_MouseDown(QMouseEvent* event) {
    const unsigned revision = m_list.revision();
    pressOnSurface(m_model, m_list, buttonOf(event));
    if (m_list.revision() != revision)
        announceSelection();
}

void DesignInteraction::picSizer_MouseDown(int handle, QMouseEvent* event) {
    const QPointF at = appletPosition(event);
    pressSizer(m_sizers, handle, at.x(), at.y());
}

void DesignInteraction::picSizer_MouseMove(int handle, QMouseEvent* event) {
    const int current = m_model.CurrentButton;
    if (!m_design.picSizer(handle) || !isButtonNumber(m_model, current))
        return;
    // The rules see the handle in applet pixels, where it stands at 100%; on the screen
    // it keeps its size at every zoom, and the pointer's offsets are scaled instead.
    const int side = SizerHandle::kSide;
    const PixelPoint at = sizerPosition(handle, buttonRect(m_model, current), side, side);
    const QPointF pointer = appletPosition(event);
    const ResizeOutcome out =
        dragSizer(m_model, m_sizers, handle, at, side, side, pointer.x(), pointer.y());
    if (!out.changed)
        return;
    if (m_snap)
        m_snap->afterResize(handle, altHeld(event));
    // The panel shows the new size when the handle is let go.
    DocumentChange change;
    change.gesture = true;
    announce(change.button(m_model.CurrentButton));
}

void DesignInteraction::picSizer_MouseUp(int handle, QMouseEvent*) {
    if (m_snap)
        m_snap->finish();
    const SizerReleaseOutcome out = releaseSizer(m_sizers, handle);
    // A moved top or left edge counts as a change of what lies under every transparent
    // button, not only under the resized one.
    if (out.updateTransparentButtons)
        m_design.UpdateTransparentBtns();
    if (out.showGeometry)
        m_editor.showGeometry(m_model.CurrentButton);
}

void DesignInteraction::picLabelPositioner_MouseDown(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    const QPointF at = appletPosition(event);
    pressLabelPositioner(m_positioner, at.x(), at.y());
}

void DesignInteraction::picLabelPositioner_MouseMove(QMouseEvent* event) {
    const QPointF at = appletPosition(event);
    const LabelMoveOutcome out = dragLabelPositioner(m_model, m_list, m_positioner, at.x(), at.y());
    if (out.buttons.empty())
        return;
    // "Center Text" goes off and the position fields show the new place.
    DocumentChange change;
    for (int i : out.buttons)
        change.button(i);
    announce(change);
}

void DesignInteraction::picLabelPositioner_MouseUp(QMouseEvent*) {
    releaseLabelPositioner(m_positioner);
}

void DesignInteraction::mnuBringToFront_Click() {
    const int before = m_model.CurrentButton;
    if (BringToFront(m_model, m_list) == 0)
        return;
    announceSwap(before);
}

void DesignInteraction::mnuSendBack_Click() {
    const int before = m_model.CurrentButton;
    if (SendBack(m_model, m_list) == 0)
        return;
    announceSwap(before);
}

void DesignInteraction::announceSwap(int before) {
    // The two records changed places, and so did their selection.
    DocumentChange change;
    change.selection = true;
    change.button(before).button(m_model.CurrentButton);
    announce(change);
}

} // namespace orvelin
