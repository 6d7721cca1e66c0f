#include "paintedicon.h"

#include <QPainter>
#include <QPixmap>

namespace orvelin {

void addPaintedPixmaps(QIcon& icon, QSize size, const std::function<void(QPainter&)>& paint,
                       QIcon::Mode mode) {
    for (int ratio : {1, 2, 3}) {
        QPixmap pixmap(size * ratio);
        pixmap.setDevicePixelRatio(ratio);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        paint(painter);
        painter.end();
        icon.addPixmap(pixmap, mode);
    }
}

} // namespace orvelin
