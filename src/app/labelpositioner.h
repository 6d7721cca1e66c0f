#pragma once

#include "mousereporter.h"

namespace orvelin {

/**
 * The label positioner: a small crosshair whose centre stands on the label position of
 * the current button and state (the first line's left end on its baseline). It is shown
 * only while that state places its label at the position.
 */
class LabelPositioner : public MouseReporter {
    Q_OBJECT

public:
    static constexpr int kSide = 11;

    explicit LabelPositioner(QWidget* parent = nullptr);

    /// Places the crosshair's centre on `point` of the parent.
    void centreOn(QPoint point);
    /// The parent point the crosshair's centre stands on.
    QPoint centre() const;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orvelin
