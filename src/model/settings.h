#pragma once

#include <string>
#include <string_view>

namespace orvelin {

/**
 * Where settings live: string values addressed by section and key. The Qt layer
 * keeps them in a per-user INI file; tests keep them in memory. A section written
 * with a trailing "\" is the same section as the one without it.
 */
class SettingsBackend {
public:
    virtual ~SettingsBackend() = default;
    /// The stored value, or `defaultValue` when the key is missing.
    virtual std::string get(const std::string& section, const std::string& key,
                            const std::string& defaultValue) const = 0;
    virtual void set(const std::string& section, const std::string& key,
                     const std::string& value) = 0;
};

/// A section name without its trailing "\" (or "/"), so both spellings meet.
std::string normalizeSection(std::string_view section);

/// The sub-sections of the program's settings, each below the version text.
enum class SettingsSection { Params, Language, Recent, Browsers, Sizes };

/// "1.0  Beta 6\Params" and so on; Sizes takes the window's form name
/// ("1.0  Beta 6\Sizes\frmDesign").
std::string sectionPath(SettingsSection section, std::string_view formName = {});

/// Every setting the program reads or writes. Indexed keys (File1..File4, the browser
/// names) take their number as a suffix.
enum class SettingKey {
    strDefaultBtn,
    frmDesignOnTop,
    AutoTile,
    DontAskToAssociate,
    ShortCut,
    Html5Player,   ///< "1": preview and build write pages that play through orvelin-player.js
    SnapToButtons, ///< "1": a dragged or resized button snaps to the others and the applet area
    GridSize,      ///< the design surface's grid in applet pixels, "0": none
    LanguageCurrent,
    RecentFile, ///< "File" + 1..4
    BrowsersCount,
    BrowsersName, ///< "Name" + position (1 for the first entry)
    BrowsersPath, ///< "Path" + position: the browser's program, "" for the default browser
    BrowsersSelected,
    SizeLeft, ///< the four window-geometry keys, under Sizes\<form>
    SizeTop,
    SizeWidth,
    SizeHeight,
    Count
};

struct SettingInfo {
    SettingsSection section;
    const char* key;
    const char* defaultValue;
};

/// The one table of keys, their sections and their defaults.
const SettingInfo& settingDefinition(SettingKey key);

/// "-1" in strDefaultBtn and in a recent slot stands for "nothing stored".
inline constexpr const char* kUnsetValue = "-1";

/// A window's position and size in pixels.
struct WindowGeometry {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const WindowGeometry&) const = default;
};

/**
 * The geometry a window gets back: the stored one when its width and height are both
 * non-zero, with the position kept within the screen less a tenth of each dimension
 * (a window saved on a larger screen still shows); otherwise the designed geometry.
 */
WindowGeometry restoredGeometry(const WindowGeometry& stored, const WindowGeometry& designed,
                                int screenWidth, int screenHeight);

/**
 * Typed access to the settings store. Nothing outside this class spells a key or a
 * section; every read supplies the table's default.
 */
class Settings {
public:
    explicit Settings(SettingsBackend& backend) : m_backend(backend) {}

    /// The value of `key` (with `index` appended to indexed keys; `form` for Sizes).
    std::string value(SettingKey key, int index = 0, std::string_view form = {}) const;
    void setValue(SettingKey key, const std::string& value, int index = 0,
                  std::string_view form = {});

    /// "1"/"-1"/"True" read as true; written as "1" or "0".
    bool flag(SettingKey key) const;
    void setFlag(SettingKey key, bool on);

    /// The default-button string; the factory string when nothing is stored ("-1").
    std::string defaultButton() const;
    void setDefaultButton(const std::string& serialised);

    /// Recent slot 1..4; "-1" when empty.
    std::string recentFile(int slot) const;
    void setRecentFile(int slot, const std::string& path);

    WindowGeometry storedGeometry(std::string_view form) const;
    /// Writes Left, Top, Width and Height, in that order.
    void saveGeometry(std::string_view form, const WindowGeometry& geometry);
    /// RestoredGeometry over the stored values of `form`.
    WindowGeometry restoreGeometry(std::string_view form, const WindowGeometry& designed,
                                   int screenWidth, int screenHeight) const;

    SettingsBackend& backend() { return m_backend; }

private:
    SettingsBackend& m_backend;
};

} // namespace orvelin
