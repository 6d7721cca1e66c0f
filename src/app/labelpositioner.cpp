#include "labelpositioner.h"

#include <QPainter>

namespace orvelin {

LabelPositioner::LabelPositioner(QWidget* parent) : MouseReporter(0, parent) {
    setObjectName(QStringLiteral("picLabelPositioner"));
    setFixedSize(kSide, kSide);
    setCursor(Qt::SizeAllCursor);
    // Only the cross itself hides what lies under it.
    setAttribute(Qt::WA_TranslucentBackground);
}

void LabelPositioner::centreOn(QPoint point) {
    move(point - QPoint(kSide / 2, kSide / 2));
}

QPoint LabelPositioner::centre() const {
    return pos() + QPoint(kSide / 2, kSide / 2);
}

void LabelPositioner::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int mid = kSide / 2;
    // A light cross under a dark one, so it shows on dark and light labels alike.
    painter.fillRect(mid - 1, 0, 3, kSide, Qt::white);
    painter.fillRect(0, mid - 1, kSide, 3, Qt::white);
    painter.fillRect(mid, 0, 1, kSide, QColor(0xD0, 0x00, 0x00));
    painter.fillRect(0, mid, kSide, 1, QColor(0xD0, 0x00, 0x00));
}

} // namespace orvelin
