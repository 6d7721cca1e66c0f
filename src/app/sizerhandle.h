#pragma once

#include <QString>
#include <QWidget>

class QMouseEvent;

namespace orvelin {

/**
 * One of the four resize handles `picSizer(0..3)` around the current button: 0 bottom,
 * 1 right, 2 top, 3 left. It draws itself and reports the mouse; what a drag does is the
 * design window's business.
 */
class SizerHandle : public QWidget {
    Q_OBJECT

public:
    static constexpr int kSide = 7;

    SizerHandle(int handle, QWidget* parent = nullptr);

    int handle() const { return m_handle; }

signals:
    void mousePressed(int handle, QMouseEvent* event);
    void mouseMoved(int handle, QMouseEvent* event);
    void mouseReleased(int handle, QMouseEvent* event);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_handle;
};

} // namespace orvelin
