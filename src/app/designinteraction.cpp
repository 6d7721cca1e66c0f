#include "designinteraction.h"

#include "buttonpicture.h"
#include "frmdesign.h"
#include "labelpositioner.h"
#include "sizerhandle.h"
#include "snapguides.h"
#include "surfaceeditorlink.h"

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
    m_mnuBringToFront = m_mnuMove->addAction(QStringLiteral("bring to front"));
    m_mnuBringToFront->setObjectName(QStringLiteral("mnuBringToFront"));
    m_mnuSendBack = m_mnuMove->addAction(QStringLiteral("send back"));
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

std::vector<bool> DesignInteraction::markers() const {
    std::vector<bool> out(static_cast<std::size_t>(m_model.ButtonCount) + 1, false);
    if (m_list.selectedCount() < 2)
        return out;
    for (int i = 1; i <= m_model.ButtonCount; ++i)
        out[static_cast<std::size_t>(i)] = m_list.isSelected(i);
    return out;
}

void DesignInteraction::selectionChanged(const std::vector<bool>& markersBefore, int skip) {
    m_editor.showSelection();
    const std::vector<bool> now = markers();
    for (int i = 1; i <= m_model.ButtonCount; ++i) {
        const auto k = static_cast<std::size_t>(i);
        const bool before = k < markersBefore.size() && markersBefore[k];
        if (i != skip && before != now[k])
            m_design.RedrawButton(i, false, false, true);
    }
}

void DesignInteraction::pButtons_MouseDown(int index, QMouseEvent* event) {
    const std::vector<bool> before = markers();
    const unsigned revision = m_list.revision();
    const QPointF at = appletPosition(event);
    const PressOutcome out = pressOnButton(m_model, m_list, m_drag, index, buttonOf(event),
                                           ctrlHeld(event), at.x(), at.y());
    // The markers of the new group: the selection has already changed, so a repaint of
    // the earlier current button and of the added one draws them.
    if (m_list.revision() != revision)
        selectionChanged(before, out.redrawPressed);
    if (out.redrawPressed != 0)
        m_design.RedrawButton(out.redrawPressed, true, false, false);
    // The handles always stand around the current button, which a Ctrl+click changes
    // too: a handle left around another button would resize by the distance between them.
    if (m_model.CurrentButton != 0)
        m_design.moveSizer(m_model.CurrentButton);
    if (out.showProp)
        m_editor.ShowProp(m_model.CurrentButton);
    m_design.moveLabelPositioner(m_model.CurrentButton);
    if (out.openMoveMenu) {
        m_mnuBringToFront->setEnabled(out.enableBringToFront);
        m_mnuSendBack->setEnabled(out.enableSendBack);
        m_mnuMove->popup(event->globalPosition().toPoint());
    }
}

void DesignInteraction::showMove(const MoveOutcome& moved, bool repaintTransparent) {
    if (!moved.moved)
        return;
    for (int i : moved.buttons) {
        ButtonPicture* picture = m_design.pButtons(i);
        if (!picture)
            continue;
        picture->move(m_design.pictureRect(i).topLeft());
        if (repaintTransparent && m_model.button(i).noBackGround == 1)
            m_design.RedrawButton(i, false, false, true);
    }
    const int current = m_model.CurrentButton;
    m_editor.showGeometry(current);
    m_design.moveSizer(current);
    m_design.moveLabelPositioner(current);
}

void DesignInteraction::pButtons_MouseMove(int, QMouseEvent* event) {
    if (!m_drag.dragging)
        return;
    const QPointF at = appletPosition(event);
    MoveOutcome moved = dragOnButton(m_model, m_list, m_drag, at.x(), at.y());
    if (m_snap)
        m_snap->afterDrag(moved, altHeld(event));
    showMove(moved, false);
}

void DesignInteraction::pButtons_MouseUp(int index, QMouseEvent*) {
    if (m_snap)
        m_snap->finish();
    const ReleaseOutcome out = releaseOnButton(m_model, m_list, m_drag, index);
    if (out.placeSizer != 0)
        m_design.moveSizer(out.placeSizer);
    if (out.redrawReleased != 0)
        m_design.RedrawButton(out.redrawReleased, true, false, false);
    for (int i : out.redrawMovedTransparent)
        m_design.RedrawButton(i, false, false, false);
}

void DesignInteraction::nudge(NudgeDirection direction, bool shift) {
    if (m_drag.dragging)
        return; // the pointer owns the buttons until it lets go
    showMove(nudgeSelection(m_model, m_list, direction, shift), true);
}

void DesignInteraction::Form_MouseDown(QMouseEvent* event) {
    const std::vector<bool> before = markers();
    const unsigned revision = m_list.revision();
    const int sizerOn = pressOnSurface(m_model, m_list, buttonOf(event));
    if (m_list.revision() != revision)
        selectionChanged(before);
    if (sizerOn != 0)
        m_design.moveSizer(sizerOn);
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
    // A change of size paints the picture through its resize path.
    if (ButtonPicture* picture = m_design.pButtons(current))
        picture->setGeometry(m_design.pictureRect(current));
    if (m_snap)
        m_snap->afterResize(handle, altHeld(event));
    m_design.moveSizer(current);
    m_design.moveLabelPositioner(current);
}

void DesignInteraction::picSizer_MouseUp(int handle, QMouseEvent*) {
    if (m_snap)
        m_snap->finish();
    const SizerReleaseOutcome out = releaseSizer(m_sizers, handle);
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
    for (int i : out.buttons)
        m_design.RedrawButton(i, false, false, true);
    m_design.moveLabelPositioner(m_model.CurrentButton);
    // "Center Text" goes off and the position fields show the new place.
    m_editor.ShowProp(m_model.CurrentButton);
}

void DesignInteraction::picLabelPositioner_MouseUp(QMouseEvent*) {
    releaseLabelPositioner(m_positioner);
}

void DesignInteraction::mnuBringToFront_Click() {
    const int before = m_model.CurrentButton;
    const std::vector<bool> markersBefore = markers();
    if (BringToFront(m_model, m_list) == 0)
        return;
    m_design.RedrawButton(before, false, false, false);
    m_design.RedrawButton(m_model.CurrentButton, true, true, false);
    selectionChanged(markersBefore, m_model.CurrentButton);
    m_editor.ShowProp(m_model.CurrentButton);
}

void DesignInteraction::mnuSendBack_Click() {
    const int before = m_model.CurrentButton;
    const std::vector<bool> markersBefore = markers();
    if (SendBack(m_model, m_list) == 0)
        return;
    m_design.RedrawButton(before, false, false, false);
    m_design.RedrawButton(m_model.CurrentButton, true, true, false);
    selectionChanged(markersBefore, m_model.CurrentButton);
    m_editor.ShowProp(m_model.CurrentButton);
}

} // namespace orvelin
