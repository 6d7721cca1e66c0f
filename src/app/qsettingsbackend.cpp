#include "qsettingsbackend.h"

#include <QStringList>
#include <QVariant>

namespace orvelin {

QSettingsBackend::QSettingsBackend()
    : m_settings(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                             QStringLiteral("Orvelin"),
                                             QStringLiteral("Orvelin"))) {}

QSettingsBackend::QSettingsBackend(const std::string& filePath)
    : m_settings(
          std::make_unique<QSettings>(QString::fromStdString(filePath), QSettings::IniFormat)) {}

QString settingsKeyPath(const std::string& section, const std::string& key) {
    QString group = QString::fromStdString(normalizeSection(section));
    group.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return group + QLatin1Char('/') + QString::fromStdString(key);
}

std::string QSettingsBackend::get(const std::string& section, const std::string& key,
                                  const std::string& defaultValue) const {
    const QString path = settingsKeyPath(section, key);
    if (!m_settings->contains(path))
        return defaultValue;
    const QVariant value = m_settings->value(path);
    // A hand-edited file may hold an unquoted value with commas, which the INI reader
    // hands back as a list; the program only ever stores single texts.
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList().join(QStringLiteral(", ")).toStdString();
    return value.toString().toStdString();
}

void QSettingsBackend::set(const std::string& section, const std::string& key,
                           const std::string& value) {
    m_settings->setValue(settingsKeyPath(section, key), QString::fromStdString(value));
    m_settings->sync();
}

std::string QSettingsBackend::fileName() const {
    return m_settings->fileName().toStdString();
}

} // namespace orvelin
