#include "sizerhandle.h"

#include <QPainter>

namespace orvelin {

SizerHandle::SizerHandle(int handle, QWidget* parent) : MouseReporter(handle, parent) {
    setObjectName(QStringLiteral("picSizer%1").arg(handle));
    setFixedSize(kSide, kSide);
    // The top and bottom handles change the height, the side ones the width.
    setCursor(handle % 2 == 0 ? Qt::SizeVerCursor : Qt::SizeHorCursor);
}

void SizerHandle::paintEvent(QPaintEvent*) {
    // picSizer_Paint: dark with a light frame, seen on any background.
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.fillRect(rect().adjusted(1, 1, -1, -1), QColor(0x20, 0x20, 0x20));
}

} // namespace orvelin
