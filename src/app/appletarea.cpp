#include "appletarea.h"

#include <QPaintEvent>
#include <QPainter>

namespace orvelin {

AppletArea::AppletArea(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picApplet"));
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void AppletArea::setBackground(const QImage& background) {
    m_background = background;
    fitSize();
    update();
}

void AppletArea::setZoom(const SurfaceZoom& zoom) {
    m_zoom = zoom;
    fitSize();
    update();
}

void AppletArea::fitSize() {
    setFixedSize(m_zoom.toScreen(m_background.width()), m_zoom.toScreen(m_background.height()));
}

void AppletArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    if (m_zoom.percent() == SurfaceZoom::kActualSize) {
        const QRect area = event->rect();
        painter.drawImage(area.topLeft(), m_background, area);
        return;
    }
    // Zoomed in, each applet pixel is a sharp square, as the pictures' edges are;
    // zoomed out, the pixels that share a screen pixel are blended.
    painter.setRenderHint(QPainter::SmoothPixmapTransform, m_zoom.factor() < 1.0);
    painter.drawImage(QRectF(rect()), m_background, QRectF(m_background.rect()));
}

void AppletArea::mousePressEvent(QMouseEvent* event) {
    emit mousePressed(event);
}

} // namespace orvelin
