#include "mousereporter.h"

namespace orvelin {

void MouseReporter::mousePressEvent(QMouseEvent* event) {
    emit mousePressed(m_id, event);
}

void MouseReporter::mouseMoveEvent(QMouseEvent* event) {
    emit mouseMoved(m_id, event);
}

void MouseReporter::mouseReleaseEvent(QMouseEvent* event) {
    emit mouseReleased(m_id, event);
}

} // namespace orvelin
