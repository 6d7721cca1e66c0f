#pragma once

#include "buttonlist.h"
#include "projectmodel.h"

#include <array>
#include <string>
#include <vector>

namespace orvelin {

/**
 * The rules of direct manipulation on the design surface: what a press, a move or a
 * release on a button picture, on a resize handle, on the label positioner or on the
 * empty surface does to the model and to the selection, and what the surface has to
 * show afterwards. Pure functions over the model and the button list, driven by the
 * event data (pointer position in the pressed widget's own coordinates, mouse button,
 * Ctrl and Shift); they know nothing of widgets, so every rule is tested without a
 * display. The surface performs the returned view work in the order the fields are
 * documented.
 *
 * Button pictures are kept exactly where their records say (RedrawButton places them
 * from x, y, Width and Height), so the rules read the geometry from the records.
 */

enum class MouseButton { Left, Right, Middle };

struct PixelPoint {
    int x = 0;
    int y = 0;
    bool operator==(const PixelPoint&) const = default;
};

struct PixelRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const PixelRect&) const = default;
};

/// The picture geometry of button `index`, from its record.
PixelRect buttonRect(const ProjectModel& model, int index);

/// True for 1 to ButtonCount.
bool isButtonNumber(const ProjectModel& model, int index);

/// Half-way values go to the even neighbour, as every other conversion of the program.
int roundPixel(double value);

// ---- Buttons: select, drag, release ---------------------------------------------

/// The surface's drag state: idle, pressed (grab point stored), moving.
struct DragState {
    bool dragging = false;
    double grabX = 0; ///< kept as the pointer delivered it
    int grabY = 0;    ///< rounded
    bool moved = false;
};

/// What the surface shows after a press on a button picture (0: nothing to do).
struct PressOutcome {
    int markPrevious = 0;      ///< DrawMultiSelector on the button current until now, first
    int markPressed = 0;       ///< Ctrl added the pressed button: DrawMultiSelector on it
    int redrawPressed = 0;     ///< Ctrl removed it: RedrawButton(n, true, false, false)
    int placeSizer = 0;        ///< moveSizer(n)
    bool showProp = false;     ///< ShowProp for the new current button
    bool openMoveMenu = false; ///< the pop-up menu mnuMove at the pointer
    bool enableBringToFront = false;
    bool enableSendBack = false;
};

/**
 * pButtons_MouseDown on button `number`; `x`, `y` in the picture's coordinates.
 * Any button but the left one selects the button alone and opens the stacking menu.
 * The left one selects (Ctrl adds or removes) and starts a drag; a press on a button
 * that is already part of a group keeps the group, so that the group can be dragged.
 */
PressOutcome pressOnButton(ProjectModel& model, ButtonList& list, DragState& drag, int number,
                           MouseButton button, bool ctrl, double x, double y);

/// Buttons whose records moved, the current one first, and the offset they moved by.
struct MoveOutcome {
    bool moved = false;
    int dx = 0;
    int dy = 0;
    std::vector<int> buttons;
};

/**
 * The common path of a drag step and a key nudge: the current button and every other
 * selected one move by the same offset, records x and y take the new places, the
 * project is marked changed. No grid and no limits of the applet area; the offset is
 * only shortened where a record would leave the 16-bit range, so that the group keeps
 * its shape.
 */
MoveOutcome moveSelection(ProjectModel& model, const ButtonList& list, int dx, int dy);

/**
 * pButtons_MouseMove: nothing unless a drag is under way; otherwise the pointer keeps
 * its place on the pressed picture, which takes the whole selection along.
 */
MoveOutcome dragOnButton(ProjectModel& model, const ButtonList& list, DragState& drag, double x,
                         double y);

enum class NudgeDirection { Left, Right, Up, Down };

/// An arrow key: one pixel, ten with Shift, through the same path as a drag step.
MoveOutcome nudgeSelection(ProjectModel& model, const ButtonList& list, NudgeDirection direction,
                           bool shift);

struct ReleaseOutcome {
    int placeSizer = 0;     ///< moveSizer(n) when fewer than two buttons are selected
    int redrawReleased = 0; ///< a transparent released button: RedrawButton(n, true, false, false)
    /// Other transparent buttons the drag moved: they show the background of the new place.
    std::vector<int> redrawMovedTransparent;
};

/// pButtons_MouseUp on button `number`: ends the drag.
ReleaseOutcome releaseOnButton(const ProjectModel& model, const ButtonList& list, DragState& drag,
                               int number);

/**
 * Form_MouseDown on the empty surface: any button but the right one collapses a group
 * to the current button. Returns the button to place the handles on (0: nothing).
 */
int pressOnSurface(const ProjectModel& model, ButtonList& list, MouseButton button);

// ---- Stacking order ---------------------------------------------------------------

struct MoveMenuEnabling {
    bool bringToFront = false;
    bool sendBack = false;
};

/// "bring to front" unless the current button is the last, "send back" unless the first.
MoveMenuEnabling moveMenuFor(const ProjectModel& model);

/**
 * mnuBringToFront / mnuSendBack: the current button's record changes places with the
 * next (previous) one, which becomes current and the one selected button. Both numbers
 * must be redrawn. Returns the other number, or 0 when the command is not offered.
 */
int BringToFront(ProjectModel& model, ButtonList& list);
int SendBack(ProjectModel& model, ButtonList& list);

// ---- Resize handles ---------------------------------------------------------------

inline constexpr int kSizerCount = 4;
/// picSizer(0) to picSizer(3), by the edge each one stands on.
enum SizerEdge : int { SizerBottom = 0, SizerRight = 1, SizerTop = 2, SizerLeft = 3 };
inline constexpr int kSmallestSize = 5;

inline constexpr const char* kSizerTagUp = "Up";
inline constexpr const char* kSizerTagDown = "Down";

/// MoveSizer: the top left corner of handle `handle` (w by h) around `button`; every
/// handle stands 2 pixels outside its edge, centred on it.
PixelPoint sizerPosition(int handle, const PixelRect& button, int w, int h);

struct SizerState {
    std::array<std::string, kSizerCount> tag{kSizerTagUp, kSizerTagUp, kSizerTagUp, kSizerTagUp};
    double grabX = 0;
    int grabY = 0;
};

/// picSizer_MouseDown: the handle's tag becomes "Down", the grab point is kept.
void pressSizer(SizerState& sizers, int handle, double x, double y);

struct ResizeOutcome {
    bool changed = false; ///< false: the move was ignored (tag "Up", or refused)
    PixelRect rect;       ///< the current button's new geometry, already in its record
};

/**
 * picSizer_MouseMove on `handle`, whose top left corner is `handleAt` and whose size
 * is w by h; `x`, `y` in the handle's coordinates. The bottom and right handles clamp
 * the size at 5, the top and left ones refuse a move that would go below 5 (and the
 * left one a handle left of 0 or less). The bottom and right sizes include a "+ 2":
 * the first movement of those handles adds 4 pixels, since the handle already stands
 * 2 pixels outside its edge.
 */
ResizeOutcome dragSizer(ProjectModel& model, SizerState& sizers, int handle, PixelPoint handleAt,
                        int w, int h, double x, double y);

struct SizerReleaseOutcome {
    bool updateTransparentButtons = false; ///< a top or left edge moved
    bool showGeometry = true;              ///< txtX, txtY, txtWidth, txtHeight, with Updating set
};

/// picSizer_MouseUp: the tag goes back to "Up".
SizerReleaseOutcome releaseSizer(SizerState& sizers, int handle);

// ---- Label positioner -------------------------------------------------------------

/// The label position of the edited state of button `index`, in surface pixels.
PixelPoint labelAnchor(const ProjectModel& model, int index);

struct PositionerState {
    bool dragging = false;
    double grabX = 0;
    int grabY = 0;
};

void pressLabelPositioner(PositionerState& positioner, double x, double y);

/// Buttons whose label position changed (current one first); empty when nothing did.
struct LabelMoveOutcome {
    std::vector<int> buttons;
    PixelPoint position; ///< the new label position, from the button's top left corner
};

/**
 * Moving the label positioner: the edited state's label position follows the pointer,
 * kept inside the current button, and "Center Text" goes off (PositionText 1). Like
 * the editor's label position fields it writes into every selected button.
 */
LabelMoveOutcome dragLabelPositioner(ProjectModel& model, const ButtonList& list,
                                     PositionerState& positioner, double x, double y);

void releaseLabelPositioner(PositionerState& positioner);

} // namespace orvelin
