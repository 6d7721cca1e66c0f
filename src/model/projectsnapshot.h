#pragma once

#include "buttonlist.h"
#include "projectmodel.h"

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace orvelin {

/**
 * The document as it stood at one moment: the applet settings, the buttons, the
 * current button and the selection. The editing state beside it (file name, Saved,
 * the edited state) is not part of it. Slots past the last button keep only their
 * position, which is where the next added button appears.
 */
struct ProjectSnapshot {
    AppletSettings applet;
    std::vector<ButtonRecord> buttons; ///< buttons 1 to ButtonCount
    std::array<std::pair<std::int16_t, std::int16_t>, kButtonSlots> slotPositions{};
    std::int16_t currentButton = 0;
    std::vector<int> selection;
};

ProjectSnapshot makeSnapshot(const ProjectModel& model, const ButtonList& list);

/**
 * Puts the document of `snapshot` back into the model and the list's selection. Given
 * `change`, the change from the model's document to the snapshot's, only what it names
 * is written back.
 */
void restoreSnapshot(const ProjectSnapshot& snapshot, ProjectModel& model, ButtonList& list,
                     const DocumentChange* change = nullptr);

/// Whether the model's document (applet settings and buttons) is the snapshot's.
bool sameDocument(const ProjectSnapshot& snapshot, const ProjectModel& model);
bool sameDocument(const ProjectSnapshot& a, const ProjectSnapshot& b);

/// Whether the settings that lie under the buttons (size and background) are the same.
bool sameBackground(const AppletSettings& a, const AppletSettings& b);

/// What changed from `before` to `after`, as the notice that announces it.
DocumentChange changeBetween(const ProjectSnapshot& before, const ProjectSnapshot& after);

/// What an undo step did to buttons, named with their count.
enum class ButtonStep { Add, Remove, Move, Resize };
/// "Add Button" for one button, "Add 3 Buttons" for three, in the language in force.
std::string countedButtons(ButtonStep step, std::size_t n);

/**
 * The name of the edit that led from `before` to `after`, as an undo step shows it:
 * "Move 3 Buttons", "Change Label", "Add Button", "Bring to Front".
 */
std::string describeChange(const ProjectSnapshot& before, const ProjectSnapshot& after);

} // namespace orvelin
