#pragma once

#include "buttonrecord.h"

#include <optional>
#include <string>

namespace orvelin {

struct ImageSize {
    int width = 0;
    int height = 0;
};

/**
 * What the main editor's window must reflect when a command of the editor core has
 * run. The window implements it by filling its controls from the model; the core
 * sets `Updating` around ShowProp and SetMainParams, so the control changes these
 * cause write nothing back. Button numbers are 1-based.
 */
class EditorView {
public:
    virtual ~EditorView() = default;

    /// Fills the property panel from button `index` for the model's CurrentState and
    /// shows `caption` ("Properties for Button # 3").
    virtual void ShowProp(int index, const std::string& caption) = 0;
    /// Fills the applet-level controls from the model.
    virtual void SetMainParams() = 0;
    /// Rebuilds `lstButtons` from the ButtonList: one entry per button, its selection.
    virtual void showButtonList() = 0;
    /// The main window's caption.
    virtual void setCaption(const std::string& caption) = 0;
    /// Recent-files menu entry `slot` (1..4): caption and visibility.
    virtual void setRecentEntry(int slot, const std::string& caption, bool visible) = 0;
    /// The action command's title ("Set Action: On Leaving Button...").
    virtual void setActionTitle(const std::string& title) = 0;
    /// Checks the UP, OVER or DOWN toggle.
    virtual void showState(ButtonState state) = 0;
    /// The keep-design-on-top menu entry's check mark.
    virtual void setOnTopChecked(bool checked) = 0;
    /// The language menu's check mark ("English", "rus", "heb").
    virtual void setLanguageChecked(const std::string& language) = 0;
    /// The automatic tiling check box.
    virtual void setAutoTileChecked(bool checked) = 0;
    /// Closes the multi-line label editor when it is open.
    virtual void closeLabelEditor() = 0;
    /// Ends the program at once (after the default-button repair).
    virtual void quitProgram() = 0;
    /// The pixel size of an image file, or nothing when it cannot be read.
    virtual std::optional<ImageSize> imageSizeOf(const std::string& path) = 0;
    /// A new, opened or imported project took the place of the old one (whose edits
    /// can no longer be undone).
    virtual void projectReplaced() {}
    /// A language file changed the texts in force: the windows show them, laid out
    /// for `language` ("rus", "heb").
    virtual void showTexts(const std::string& language) { (void)language; }
};

} // namespace orvelin
