#include "settings.h"

#include "buttonrecord.h"
#include "projectmodel.h"
#include "texthelpers.h"

#include <algorithm>
#include <array>

namespace orvelin {

namespace {

constexpr std::array<SettingInfo, static_cast<std::size_t>(SettingKey::Count)> kSettings{{
    {SettingsSection::Params, "strDefaultBtn", kUnsetValue},
    {SettingsSection::Params, "frmDesignOnTop", "0"},
    {SettingsSection::Params, "AutoTile", "1"},
    {SettingsSection::Params, "DontAskToAssociate", "0"},
    {SettingsSection::Params, "ShortCut", "none"},
    {SettingsSection::Params, "Html5Player", "1"},
    {SettingsSection::Params, "SnapToButtons", "1"},
    {SettingsSection::Params, "GridSize", "0"},
    {SettingsSection::Language, "Current", "English"},
    {SettingsSection::Recent, "File", kUnsetValue},
    {SettingsSection::Browsers, "Count", "0"},
    {SettingsSection::Browsers, "Name", ""},
    {SettingsSection::Browsers, "Path", ""},
    {SettingsSection::Browsers, "Selected", "0"},
    {SettingsSection::Sizes, "Left", "0"},
    {SettingsSection::Sizes, "Top", "0"},
    {SettingsSection::Sizes, "Width", "0"},
    {SettingsSection::Sizes, "Height", "0"},
}};

std::string keyName(const SettingInfo& info, int index) {
    std::string name = info.key;
    if (index > 0)
        name += std::to_string(index);
    return name;
}

int numberOr0(const std::string& text) {
    const WholeNumber n = parseWholeNumber(text, -2147483647 - 1, 2147483647);
    return n.error == NumberError::None ? static_cast<int>(n.value) : 0;
}

} // namespace

std::string normalizeSection(std::string_view section) {
    while (!section.empty() && (section.back() == '\\' || section.back() == '/'))
        section.remove_suffix(1);
    return std::string(section);
}

std::string sectionPath(SettingsSection section, std::string_view formName) {
    std::string path = kVersionText;
    switch (section) {
    case SettingsSection::Params:
        return path + "\\Params";
    case SettingsSection::Language:
        return path + "\\Language";
    case SettingsSection::Recent:
        return path + "\\Recent";
    case SettingsSection::Browsers:
        return path + "\\Browsers";
    case SettingsSection::Sizes:
        return path + "\\Sizes\\" + std::string(formName);
    }
    return path;
}

const SettingInfo& settingDefinition(SettingKey key) {
    return kSettings.at(static_cast<std::size_t>(key));
}

WindowGeometry restoredGeometry(const WindowGeometry& stored, const WindowGeometry& designed,
                                int screenWidth, int screenHeight) {
    if (stored.width == 0 || stored.height == 0)
        return designed;
    WindowGeometry out = stored;
    // A window saved on a larger screen (or a second monitor since unplugged) must
    // come back where it can be seen and grabbed.
    const int maxLeft = std::max(0, screenWidth - screenWidth / 10);
    const int maxTop = std::max(0, screenHeight - screenHeight / 10);
    out.left = std::clamp(stored.left, 0, maxLeft);
    out.top = std::clamp(stored.top, 0, maxTop);
    return out;
}

std::string Settings::value(SettingKey key, int index, std::string_view form) const {
    const SettingInfo& info = settingDefinition(key);
    return m_backend.get(sectionPath(info.section, form), keyName(info, index), info.defaultValue);
}

void Settings::setValue(SettingKey key, const std::string& text, int index, std::string_view form) {
    const SettingInfo& info = settingDefinition(key);
    m_backend.set(sectionPath(info.section, form), keyName(info, index), text);
}

bool Settings::flag(SettingKey key) const {
    const std::string text = toLowerAscii(value(key));
    return text == "1" || text == "-1" || text == "true";
}

void Settings::setFlag(SettingKey key, bool on) {
    setValue(key, on ? "1" : "0");
}

std::string Settings::defaultButton() const {
    std::string text = value(SettingKey::strDefaultBtn);
    return text == kUnsetValue ? std::string(kFactoryDefaultButton) : text;
}

void Settings::setDefaultButton(const std::string& serialised) {
    // Written under "...\Params\" as the designer always did; the store makes it the
    // same section it is read from.
    m_backend.set(sectionPath(SettingsSection::Params) + "\\",
                  settingDefinition(SettingKey::strDefaultBtn).key, serialised);
}

std::string Settings::recentFile(int slot) const {
    return value(SettingKey::RecentFile, slot);
}

void Settings::setRecentFile(int slot, const std::string& path) {
    setValue(SettingKey::RecentFile, path, slot);
}

WindowGeometry Settings::storedGeometry(std::string_view form) const {
    return {numberOr0(value(SettingKey::SizeLeft, 0, form)),
            numberOr0(value(SettingKey::SizeTop, 0, form)),
            numberOr0(value(SettingKey::SizeWidth, 0, form)),
            numberOr0(value(SettingKey::SizeHeight, 0, form))};
}

void Settings::saveGeometry(std::string_view form, const WindowGeometry& geometry) {
    setValue(SettingKey::SizeLeft, std::to_string(geometry.left), 0, form);
    setValue(SettingKey::SizeTop, std::to_string(geometry.top), 0, form);
    setValue(SettingKey::SizeWidth, std::to_string(geometry.width), 0, form);
    setValue(SettingKey::SizeHeight, std::to_string(geometry.height), 0, form);
}

WindowGeometry Settings::restoreGeometry(std::string_view form, const WindowGeometry& designed,
                                         int screenWidth, int screenHeight) const {
    return restoredGeometry(storedGeometry(form), designed, screenWidth, screenHeight);
}

} // namespace orvelin
