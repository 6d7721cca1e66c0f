#pragma once

#include "buttonlist.h"
#include "editorview.h"
#include "projectmodel.h"
#include "settings.h"
#include "userinterface.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace orvelin {

/// The largest font size a label is drawn with.
inline constexpr int kMaxFontSize = 2048;
/// Whether `text` is a font size that labels can be drawn with: a whole number from 1
/// to kMaxFontSize (blanks around it allowed).
bool isUsableFontSize(const std::string& text);

/// Background placement chosen automatically for a new background image while tiling
/// is on: "Tile" (1) when the image is smaller than the applet both ways, else
/// "Center" (0). Nothing when tiling is off: the placement stays as it was.
std::optional<std::int16_t> autoBackImgStyle(bool autoTile, const std::optional<ImageSize>& image,
                                             int appletWidth, int appletHeight);

/**
 * The property panel's controls as operations on the project. A button property is
 * written into every selected button (per-state ones into CurrentState), Saved is
 * cleared and the model announces the change; applet properties write the model directly. Every
 * setter does nothing while the model's Updating flag is set, so that filling the
 * controls from the model is not taken as an edit.
 */
class PropertyEditor {
public:
    PropertyEditor(ProjectModel& model, ButtonList& list, UserInterface& ui, Settings& settings,
                   EditorView& view);

    // Button geometry, from typed text (non-numbers give 0).
    void setX(const std::string& text);
    void setY(const std::string& text);
    void setWidth(const std::string& text);
    void setHeight(const std::string& text);

    // Per-state properties.
    void setLabel(const std::string& text);
    void setLabelPosX(const std::string& text);
    void setLabelPosY(const std::string& text);
    /// chkPositionText: 1 draws the label at its position; refreshes the panel so the
    /// position fields show the current button's values.
    void setPositionText(bool on);
    /// chkCenterText, the counterpart: on means PositionText 0.
    void setCenterText(bool on);
    void setFont(const std::string& family);
    /// An empty box (a size being typed) or a size that IsUsableFontSize refuses writes
    /// nothing.
    void setFontSize(const std::string& text);
    void setFontStyle(bool bold, bool italic);
    void setFontColor(std::int32_t colour);
    void setBackColor(std::int32_t colour);
    void setImage(const std::string& path);
    void setImgStyle(int style);
    void setSound(const std::string& path);

    // Per-button properties.
    void setURL(const std::string& text);
    void setStatus(const std::string& text);
    void setTarget(const std::string& text);
    void setBorder(bool on);
    void setTransparent(bool on);
    void setShowHand(bool on);
    void setHidden(bool on);

    /// File choosers: a chosen file is written as if typed, then the panel refreshed.
    void browseImage();
    void browseSound();

    // Applet properties.
    /// The applet's size as typed; the design surface follows at once. A size below 1
    /// (an empty box included) is refused: nothing is written and the result is false.
    bool setAppletWidth(const std::string& text);
    bool setAppletHeight(const std::string& text);
    void setBehaviour(int behaviour); ///< 0 push buttons, 1 radio buttons
    void setDOWNBtn(bool on);
    void setBackGround(std::int32_t colour);
    void setBackImg(const std::string& path);
    void setBackImgStyle(int style);
    /// A background image chosen in the file dialog, with the placement AutoTile picks.
    void setChosenBackImg(const std::string& path, const std::optional<ImageSize>& image);
    void browseBackImg();

    /// Fills the property panel from button `index` with Updating set and the caption
    /// "Properties for Button # <index>"; nothing for an index that is no button.
    void ShowProp(int index);
    /// Fills the applet controls with Updating set.
    void SetMainParams();

private:
    // Applies `change` to every selected button, clears Saved and announces it.
    void forSelected(const std::function<void(ButtonRecord&, ButtonState)>& change);
    // Clears Saved and announces an applet setting's change.
    void appletEdited(bool background = false, bool fromPanel = true);
    bool setAppletSize(std::int16_t& field, const std::string& text);

    ProjectModel& m_model;
    ButtonList& m_list;
    UserInterface& m_ui;
    Settings& m_settings;
    EditorView& m_view;
};

} // namespace orvelin
