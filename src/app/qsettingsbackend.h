#pragma once

#include "settings.h"

#include <QSettings>
#include <memory>
#include <string>

namespace orvelin {

/**
 * The settings store on QSettings in INI format. A section such as
 * "1.0  Beta 6\Params" is a group path ("1.0  Beta 6/Params"), so "...\Params\" names
 * the same group. Every value is written to the file at once.
 */
class QSettingsBackend : public SettingsBackend {
public:
    /// The user's store: organisation "Orvelin", application "Orvelin".
    QSettingsBackend();
    /// A store in `filePath`, so that tests never touch the user's settings.
    explicit QSettingsBackend(const std::string& filePath);

    std::string get(const std::string& section, const std::string& key,
                    const std::string& defaultValue) const override;
    void set(const std::string& section, const std::string& key, const std::string& value) override;

    /// The file the values are kept in.
    std::string fileName() const;

private:
    std::unique_ptr<QSettings> m_settings;
};

/// The QSettings key of `key` in `section`: the section's "\" become "/".
QString settingsKeyPath(const std::string& section, const std::string& key);

} // namespace orvelin
