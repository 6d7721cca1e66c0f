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
    setFixedSize(background.size());
    update();
}

void AppletArea::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const QRect area = event->rect();
    painter.drawImage(area.topLeft(), m_background, area);
}

void AppletArea::mousePressEvent(QMouseEvent* event) {
    emit mousePressed(event);
}

} // namespace orvelin
