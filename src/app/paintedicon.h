#pragma once

#include <QIcon>
#include <QSize>
#include <functional>

class QPainter;

namespace orvelin {

/**
 * Adds to `icon` what `paint` draws on a transparent `size` (in logical pixels), once
 * for each common device pixel ratio, so that a dense screen shows a sharp picture
 * rather than a doubled one.
 */
void addPaintedPixmaps(QIcon& icon, QSize size, const std::function<void(QPainter&)>& paint,
                       QIcon::Mode mode = QIcon::Normal);

} // namespace orvelin
