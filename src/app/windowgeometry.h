#pragma once

#include <QString>

class QWidget;

namespace orvelin {

class Settings;

/// Gives `window` its stored geometry under "Sizes\<form>", limited to the screen it
/// opens on; a window with nothing stored keeps its designed geometry.
void RestoreWindowGeometry(QWidget& window, const Settings& settings, const QString& form);

/// Stores the geometry of `window` under "Sizes\<form>".
void SaveWindowGeometry(const QWidget& window, Settings& settings, const QString& form);

} // namespace orvelin
