#pragma once

#include <QRect>
#include <QString>

class QWidget;

namespace orvelin {

class Settings;

/// Gives `window` its stored geometry under "Sizes\<form>", limited to the screen it
/// opens on; a window with nothing stored keeps its designed geometry.
void restoreWindowGeometry(QWidget& window, const Settings& settings, const QString& form);

/// A dialog about to open comes up above every window kept on top of the others (the
/// design window's "Keep on Top"), instead of underneath it. Call before showing it.
void keepAboveOnTopWindows(QWidget& dialog);

/**
 * Where the design window first goes, as a frame rectangle, so that it hides nothing
 * of the main editor's frame `main` on `screen` (the available area): below the editor
 * when at least `minimum` fits there, else to its right, else below it at its minimum
 * size, overlapping as little as the screen allows. It is never larger than `wanted`.
 */
QRect placeDesignWindow(const QRect& screen, const QRect& main, const QSize& wanted,
                        const QSize& minimum);

/// Stores the geometry of `window` under "Sizes\<form>".
void saveWindowGeometry(const QWidget& window, Settings& settings, const QString& form);

} // namespace orvelin
