#pragma once

#include <QWidget>

class QMouseEvent;

namespace orvelin {

/**
 * The label positioner: a small crosshair whose centre stands on the label position of
 * the current button and state (the first line's left end on its baseline). It is shown
 * only while that state places its label at the position.
 */
class LabelPositioner : public QWidget {
    Q_OBJECT

public:
    static constexpr int kSide = 11;

    explicit LabelPositioner(QWidget* parent = nullptr);

    /// Places the crosshair's centre on `point` of the parent.
    void centreOn(QPoint point);
    /// The parent point the crosshair's centre stands on.
    QPoint centre() const;

signals:
    void mousePressed(QMouseEvent* event);
    void mouseMoved(QMouseEvent* event);
    void mouseReleased(QMouseEvent* event);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
};

} // namespace orvelin
