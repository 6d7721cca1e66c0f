#include "windowgeometry.h"

#include "settings.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace orvelin {

void RestoreWindowGeometry(QWidget& window, const Settings& settings, const QString& form) {
    const QScreen* screen =
        window.screen() != nullptr ? window.screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect designedFrame(window.pos(), window.size());
    const WindowGeometry designed{designedFrame.x(), designedFrame.y(), designedFrame.width(),
                                  designedFrame.height()};
    const QRect available = screen->availableGeometry();
    const WindowGeometry restored = settings.RestoreGeometry(form.toStdString(), designed,
                                                             available.width(), available.height());
    if (restored == designed)
        return;
    window.move(restored.left, restored.top);
    window.resize(restored.width, restored.height);
}

void SaveWindowGeometry(const QWidget& window, Settings& settings, const QString& form) {
    const QPoint position = window.pos();
    const QSize size = window.size();
    settings.SaveGeometry(form.toStdString(),
                          {position.x(), position.y(), size.width(), size.height()});
}

} // namespace orvelin
