#pragma once

#include <QWidget>

class QMouseEvent;

namespace orvelin {

/**
 * A widget of the design surface that reports the mouse to the design window with its
 * number: the button pictures (the button's index), the sizer handles (0 to 3) and the
 * label positioner (0). What a press or a drag does is the design window's business.
 */
class MouseReporter : public QWidget {
    Q_OBJECT

public:
    MouseReporter(int id, QWidget* parent) : QWidget(parent), m_id(id) {}

    int id() const { return m_id; }

signals:
    void mousePressed(int id, QMouseEvent* event);
    void mouseMoved(int id, QMouseEvent* event);
    void mouseReleased(int id, QMouseEvent* event);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_id;
};

} // namespace orvelin
