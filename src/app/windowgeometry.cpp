#include "windowgeometry.h"

#include "settings.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>

namespace orvelin {

void restoreWindowGeometry(QWidget& window, const Settings& settings, const QString& form) {
    const QScreen* screen =
        window.screen() != nullptr ? window.screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return;
    const QRect designedFrame(window.pos(), window.size());
    const WindowGeometry designed{designedFrame.x(), designedFrame.y(), designedFrame.width(),
                                  designedFrame.height()};
    const QRect available = screen->availableGeometry();
    const WindowGeometry restored = settings.restoreGeometry(form.toStdString(), designed,
                                                             available.width(), available.height());
    if (restored == designed)
        return;
    window.move(restored.left, restored.top);
    window.resize(restored.width, restored.height);
}

void saveWindowGeometry(const QWidget& window, Settings& settings, const QString& form) {
    const QPoint position = window.pos();
    const QSize size = window.size();
    settings.saveGeometry(form.toStdString(),
                          {position.x(), position.y(), size.width(), size.height()});
}

void keepAboveOnTopWindows(QWidget& dialog) {
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        if (window != &dialog && window->isVisible() &&
            window->windowFlags().testFlag(Qt::WindowStaysOnTopHint)) {
            dialog.setWindowFlag(Qt::WindowStaysOnTopHint, true);
            return;
        }
    }
}

QRect placeDesignWindow(const QRect& screen, const QRect& main, const QSize& wanted,
                        const QSize& minimum) {
    constexpr int gap = 8;
    const int below = main.bottom() + 1 + gap;
    const int right = main.right() + 1 + gap;
    const auto clampedWidth = [&](int left) {
        return std::max(minimum.width(), std::min(wanted.width(), screen.right() + 1 - left));
    };
    if (screen.bottom() + 1 - below >= minimum.height()) {
        const int left = std::max(screen.left(), main.left());
        return {left, below, clampedWidth(left),
                std::min(wanted.height(), screen.bottom() + 1 - below)};
    }
    if (screen.right() + 1 - right >= minimum.width()) {
        const int top = std::max(screen.top(), main.top());
        return {right, top, std::min(wanted.width(), screen.right() + 1 - right),
                std::max(minimum.height(), std::min(wanted.height(), screen.bottom() + 1 - top))};
    }
    // Neither fits: the design window keeps its minimum size at the bottom of the screen.
    const int top = std::max(screen.top(), screen.bottom() + 1 - minimum.height());
    const int left = std::max(screen.left(), main.left());
    return {left, top, clampedWidth(left), minimum.height()};
}

} // namespace orvelin
