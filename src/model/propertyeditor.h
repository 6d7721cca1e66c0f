#pragma once

#include "buttonlist.h"
#include "designview.h"
#include "editorview.h"
#include "projectmodel.h"
#include "settings.h"
#include "userinterface.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace orvelin {

/// File chooser filters for images and sounds, in Qt's form: Qt reads the patterns
/// between the last parentheses, separated by blanks, and matches them without regard
/// to case; "*" (not "*.*") is every file on a system where names need no extension.
/// PNG is offered beside the two formats the applet names, since the designer reads it too.
inline constexpr const char* kImageFilter = "GIF , JPG (*.gif *.jpg *.jpeg *.png);;All Files (*)";
inline constexpr const char* kSoundFilter = "Sun's Audio (*.au);;All Files (*)";

/// The largest font size a label is drawn with.
inline constexpr int kMaxFontSize = 2048;
/// Whether `text` is a font size that labels can be drawn with: a whole number from 1
/// to kMaxFontSize (blanks around it allowed).
bool IsUsableFontSize(const std::string& text);

/// Background placement chosen automatically for a new background image while tiling
/// is on: "Tile" (1) when the image is smaller than the applet both ways, else
/// "Center" (0). Nothing when tiling is off: the placement stays as it was.
std::optional<std::int16_t> AutoBackImgStyle(bool autoTile, const std::optional<ImageSize>& image,
                                             int appletWidth, int appletHeight);

/**
 * The property panel's controls as operations on the project. A button property is
 * written into every selected button (per-state ones into CurrentState), those buttons
 * are redrawn and Saved is cleared; applet properties write the model directly. Every
 * setter does nothing while the model's Updating flag is set, so that filling the
 * controls from the model is not taken as an edit.
 */
class PropertyEditor {
public:
    PropertyEditor(ProjectModel& model, ButtonList& list, UserInterface& ui, Settings& settings,
                   DesignView& design, EditorView& view);

    // Button geometry, from typed text (non-numbers give 0).
    void SetX(const std::string& text);
    void SetY(const std::string& text);
    void SetWidth(const std::string& text);
    void SetHeight(const std::string& text);

    // Per-state properties.
    void SetLabel(const std::string& text);
    void SetLabelPosX(const std::string& text);
    void SetLabelPosY(const std::string& text);
    /// chkPositionText: 1 draws the label at its position; refreshes the panel so the
    /// position fields show the current button's values.
    void SetPositionText(bool on);
    /// chkCenterText, the counterpart: on means PositionText 0.
    void SetCenterText(bool on);
    void SetFont(const std::string& family);
    /// An empty box (a size being typed) or a size that IsUsableFontSize refuses writes
    /// nothing.
    void SetFontSize(const std::string& text);
    void SetFontStyle(bool bold, bool italic);
    void SetFontColor(std::int32_t colour);
    void SetBackColor(std::int32_t colour);
    void SetImage(const std::string& path);
    void SetImgStyle(int style);
    void SetSound(const std::string& path);

    // Per-button properties.
    void SetURL(const std::string& text);
    void SetStatus(const std::string& text);
    void SetTarget(const std::string& text);
    void SetBorder(bool on);
    void SetTransparent(bool on);
    void SetShowHand(bool on);
    void SetHidden(bool on);

    /// File choosers: a chosen file is written as if typed, then the panel refreshed.
    void BrowseImage();
    void BrowseSound();

    // Applet properties.
    /// The applet's size as typed; the design surface follows at once. A size below 1
    /// (an empty box included) is refused: nothing is written and the result is false.
    bool SetAppletWidth(const std::string& text);
    bool SetAppletHeight(const std::string& text);
    /// The design surface takes the applet's size.
    void CommitAppletSize();
    void SetBehaviour(int behaviour); ///< 0 push buttons, 1 radio buttons
    void SetDOWNBtn(bool on);
    void SetBackGround(std::int32_t colour);
    void SetBackImg(const std::string& path);
    void SetBackImgStyle(int style);
    /// A background image chosen in the file dialog, with the placement AutoTile picks.
    void SetChosenBackImg(const std::string& path, const std::optional<ImageSize>& image);
    void BrowseBackImg();

    /// Fills the property panel from button `index` with Updating set and the caption
    /// "Properties for Button # <index>"; nothing for an index that is no button.
    void ShowProp(int index);
    /// Fills the applet controls with Updating set.
    void SetMainParams();

private:
    // Applies `change` to every selected button, redraws them, clears Saved.
    void ForSelected(const std::function<void(ButtonRecord&, ButtonState)>& change);
    void AppletEdited();
    void BackgroundEdited();
    bool SetAppletSize(std::int16_t& field, const std::string& text);

    ProjectModel& m_model;
    ButtonList& m_list;
    UserInterface& m_ui;
    Settings& m_settings;
    DesignView& m_design;
    EditorView& m_view;
};

} // namespace orvelin
