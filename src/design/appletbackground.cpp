#include "appletbackground.h"

#include "buttonpainter.h"
#include "imagecache.h"
#include "paintsupport.h"

#include <QPainter>

namespace orvelin {

namespace {

constexpr int kCheckerSquare = 8;

} // namespace

void DrawBackGround(QPainter& painter, const ProjectModel& model, ImageCache& images) {
    const QRect area(0, 0, model.AppletWidth, model.AppletHeight);
    painter.fillRect(area, colorFromRef(model.BackGround));
    if (model.BackImg.empty())
        return;
    drawPlacedImage(painter, images.image(model.BackImg), area, model.BackImgStyle,
                    QPoint(model.BgOffsetX, model.BgOffsetY));
}

void drawPlainSurface(QPainter& painter, QSize size) {
    const QColor light(0xF4, 0xF4, 0xF4);
    const QColor dark(0xDC, 0xDC, 0xDC);
    painter.fillRect(QRect(QPoint(), size), light);
    for (int y = 0; y < size.height(); y += kCheckerSquare)
        for (int x = (y / kCheckerSquare) % 2 * kCheckerSquare; x < size.width();
             x += 2 * kCheckerSquare)
            painter.fillRect(x, y, kCheckerSquare, kCheckerSquare, dark);
}

QImage renderBackground(const ProjectModel& model, ImageCache& images, bool switchedOff) {
    const QSize size(model.AppletWidth, model.AppletHeight);
    QImage background = newPicture(size);
    QPainter painter(&background);
    if (switchedOff)
        drawPlainSurface(painter, size);
    else
        DrawBackGround(painter, model, images);
    return background;
}

} // namespace orvelin
