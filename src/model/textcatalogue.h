#pragma once

#include "messages.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvelin {

/**
 * The parts of a language file. Main is the positional block at the file's start; every
 * other part is a section that begins with its header line. The first ten are the
 * sections every language file of the program has always had; the ones after them hold
 * the windows and texts added since, each after the last.
 */
enum class TextSection : std::size_t {
    Main,
    Design,
    Html,
    About,
    Advanced,
    BrowserSetup,
    EditBrowser,
    SetAction,
    AskToAssociate,
    ShortCut,
    MainMore,
    DesignTools,
    Messages,
    BackgroundOffset,
    LabelEditor,
    SoundConverter,
    SetActionMore,
    BrowsersMore,
    Count
};

inline constexpr std::size_t kTextSectionCount = static_cast<std::size_t>(TextSection::Count);

/**
 * One text the user can see. A window's text names the window (its objectName) and the
 * control that shows it: the control's objectName, followed by ".toolTip" for its tool
 * tip or ".item<N>" for the N-th entry of a list, or the window's own name for its
 * caption. A text the code puts together itself (a status line, a list entry) has a
 * name of its own that begins with "#" ("#zoomLevel"). A message names only its Msg.
 */
struct TextEntry {
    std::string_view window;
    std::string_view control;
    std::string_view english;
    Msg message = Msg::Count;

    constexpr bool isMessage() const { return message != Msg::Count; }
};

/// A message's place in a section.
constexpr TextEntry message(Msg id) {
    return {{}, {}, {}, id};
}

struct SectionInfo {
    TextSection section;
    std::string_view header; ///< "[frmDesign]"; empty for the main block
    std::span<const TextEntry> entries;
};

/// Every section in the order a language file gives them, the main block first.
std::span<const SectionInfo> textSections();
const SectionInfo& sectionInfo(TextSection section);

/// The English text of an entry, whether a window's or a message.
std::string_view englishText(const TextEntry& entry);
/// "frmDesign cmdAdd.toolTip", or "message PleaseWait": how lists for translators name it.
std::string entryLabel(const TextEntry& entry);

/**
 * The texts in force, one for every entry of every section; built with the English
 * texts, changed position by position by a language file.
 */
class TextCatalogue {
public:
    TextCatalogue();

    const std::string& operator[](Msg id) const;
    /// The text of `control` in `window`; a name that no entry has gives "?window/control"
    /// so that the fault shows.
    const std::string& text(std::string_view window, std::string_view control) const;

    const std::string& at(TextSection section, std::size_t position) const;
    void set(TextSection section, std::size_t position, std::string text);

private:
    std::array<std::vector<std::string>, kTextSectionCount> m_texts;
};

/// The texts the program shows: the catalogue handed to useTexts, English until then.
const TextCatalogue& texts();
/// Makes `catalogue` the texts in force; nullptr goes back to English. The catalogue must
/// outlive its use; the application owns it.
void useTexts(const TextCatalogue* catalogue);

} // namespace orvelin
