#pragma once

#include "buttonrecord.h"
#include "documentchange.h"
#include "programkind.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace orvelin {

/// The version text that names project files and settings sections.
inline constexpr const char* kVersionText = "1.0  Beta 6";
inline constexpr int kMaxButtons = 101;
inline constexpr int kButtonSlots = 103; ///< slots 0 to 102; slot 0 is never a button

/**
 * The one open project: applet-level settings and buttons 1 to ButtonCount in
 * z-order (a later button is drawn over an earlier one), plus the editing state
 * that lives beside it and is never saved.
 */
/// The applet-level settings of a project; an undo step keeps them as they are.
struct AppletSettings {
    std::int16_t AppletWidth = 510;
    std::int16_t AppletHeight = 170;
    std::int16_t Behaviour = 0;
    std::int16_t DOWNBtn = 0;
    std::int32_t BackGround = 0;
    std::string BackImg;
    std::int16_t BackImgStyle = 0;
    std::string AppletProgramOVER;
    std::string AppletProgramDOWN;
    std::string AppletProgramOUT;
    std::int16_t BgOffsetX = 0;
    std::int16_t BgOffsetY = 0;
    std::string AppletProgramStart;
    std::string AppletName;

    bool operator==(const AppletSettings&) const = default;
};

struct ProjectModel : AppletSettings {
    std::int16_t ButtonCount = 0;
    std::array<ButtonRecord, kButtonSlots> Buttons{};

    // Editing state.
    std::int16_t CurrentButton = 0;
    ButtonState CurrentState = ButtonState::UP; ///< the state being edited
    std::string ProjectFileName;
    /// The file a reader last took content from, named or not (a load that failed part
    /// way keeps the buttons read so far but no file name).
    std::string LoadedFrom;
    bool Saved = true;
    bool Updating = false;
    /// Who is told of each change of the document (a copy starts with nobody).
    DocumentNotices notices;

    /// The file beside which relative image and sound paths are looked up: the project's
    /// file, else the one whose content is shown; "" for none.
    const std::string& fileForRelativePaths() const {
        return ProjectFileName.empty() ? LoadedFrom : ProjectFileName;
    }

    /// Button `index`; an index outside 0 to 102 throws std::out_of_range.
    ButtonRecord& button(int index) { return Buttons.at(static_cast<std::size_t>(index)); }
    const ButtonRecord& button(int index) const {
        return Buttons.at(static_cast<std::size_t>(index));
    }

    /// The new-project reset: no buttons, no background image, no applet programs,
    /// no file name, saved. Size, colour, placement, offset, behaviour and name stay.
    void reset();

    enum class AddResult { Added, LimitReached, CorruptDefault };
    /**
     * Appends a button made from a serialised default record (x and y are not applied:
     * the button keeps the position held by its table slot). Refused at 101 buttons.
     * On CorruptDefault the model is unchanged and `error` says which field failed.
     */
    AddResult addButton(std::string_view defaultButton, FieldError* error = nullptr);

    /// Appends a copy of button `source`; refused at 101 buttons.
    AddResult duplicateButton(int source);

    /// Removes button `index`, moving the later ones down by one place.
    void removeButton(int index);

    /**
     * The program slot of `kind`; the button kinds take the slot of button `button`,
     * nullptr when there is no such button.
     */
    std::string* programSlot(ProgramKind kind, int button);
    const std::string* programSlot(ProgramKind kind, int button) const;
};

using AppletField = RecordField<ProjectModel>;
inline constexpr int kAppletFieldCount = 15;

/**
 * The applet settings in the order of a project file's applet line (the reader takes
 * the name from one field further on, see LoadProject). Text fields are written as
 * they are there; the kinds say how the applet parameter writes them.
 */
const std::array<AppletField, kAppletFieldCount>& appletFields();

/// One field of the applet parameter "p": a setting, or a fixed text where `field` is null.
struct AppletParameterField {
    const AppletField* field;
    const char* fixed;
};
inline constexpr int kAppletParameterFieldCount = 17;
/// The 17 fields of "p" in the order the applet reads them.
const std::array<AppletParameterField, kAppletParameterFieldCount>& appletParameterFields();

/// The applet field called `name`; nullptr for none.
const AppletField* appletFieldNamed(std::string_view name);

} // namespace orvelin
