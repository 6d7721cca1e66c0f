#include "appleticons.h"

#include "paintedicon.h"

#include <QPainter>
#include <QPainterPath>

namespace orvelin {

namespace {

constexpr int kSide = 24;

// The applet area the pointer glyphs stand on.
void drawApplet(QPainter& p, const QColor& fill) {
    p.setPen(QPen(QColor(70, 90, 120), 1.2));
    p.setBrush(fill);
    p.drawRoundedRect(QRectF(2.5, 4.5, 15, 11), 2, 2);
}

void drawPointer(QPainter& p, QPointF tip) {
    QPainterPath arrow;
    arrow.moveTo(tip);
    arrow.lineTo(tip + QPointF(0, 11));
    arrow.lineTo(tip + QPointF(2.8, 8.2));
    arrow.lineTo(tip + QPointF(5, 12.5));
    arrow.lineTo(tip + QPointF(6.8, 11.6));
    arrow.lineTo(tip + QPointF(4.6, 7.6));
    arrow.lineTo(tip + QPointF(8, 7.6));
    arrow.closeSubpath();
    p.setPen(QPen(Qt::black, 1));
    p.setBrush(Qt::white);
    p.drawPath(arrow);
}

void drawStart(QPainter& p) {
    p.setPen(QPen(QColor(30, 110, 50), 1.2));
    p.setBrush(QColor(70, 180, 90));
    QPolygonF triangle;
    triangle << QPointF(6, 3.5) << QPointF(19, 11.5) << QPointF(6, 19.5);
    p.drawPolygon(triangle);
}

void drawOver(QPainter& p) {
    drawApplet(p, QColor(200, 225, 250));
    drawPointer(p, QPointF(11, 9));
}

void drawDown(QPainter& p) {
    drawApplet(p, QColor(250, 215, 190));
    p.setPen(QPen(QColor(200, 80, 30), 1.4));
    p.drawLine(QPointF(10, 4), QPointF(10, 7));
    p.drawLine(QPointF(5, 9), QPointF(8, 9.5));
    p.drawLine(QPointF(6.5, 5), QPointF(8.5, 7.2));
    drawPointer(p, QPointF(11, 9));
}

void drawOut(QPainter& p) {
    drawApplet(p, QColor(225, 225, 225));
    p.setPen(QPen(QColor(150, 40, 40), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawLine(QPointF(10, 10), QPointF(21, 18));
    p.drawLine(QPointF(21, 18), QPointF(21, 13));
    p.drawLine(QPointF(21, 18), QPointF(16, 18.5));
}

void draw(QPainter& p, ProgramKind moment, bool hasProgram, bool disabled) {
    switch (moment) {
    case ProgramKind::AppletProgramOVER:
        drawOver(p);
        break;
    case ProgramKind::AppletProgramDOWN:
        drawDown(p);
        break;
    case ProgramKind::AppletProgramOUT:
        drawOut(p);
        break;
    default:
        drawStart(p);
        break;
    }
    if (hasProgram) {
        p.setPen(QPen(Qt::white, 1));
        p.setBrush(QColor(230, 120, 0));
        p.drawEllipse(QRectF(15.5, 0.5, 8, 8));
    }
    if (disabled) {
        p.setCompositionMode(QPainter::CompositionMode_DestinationIn);
        p.fillRect(QRect(0, 0, kSide, kSide), QColor(0, 0, 0, 90));
    }
}

} // namespace

QIcon appletMomentIcon(ProgramKind moment, bool hasProgram) {
    QIcon icon;
    for (bool disabled : {false, true})
        addPaintedPixmaps(
            icon, QSize(kSide, kSide), [=](QPainter& p) { draw(p, moment, hasProgram, disabled); },
            disabled ? QIcon::Disabled : QIcon::Normal);
    return icon;
}

} // namespace orvelin
