#pragma once

#include "mousereporter.h"

namespace orvelin {

/**
 * One of the four resize handles `picSizer(0..3)` around the current button: 0 bottom,
 * 1 right, 2 top, 3 left. It draws itself and reports the mouse; what a drag does is the
 * design window's business.
 */
class SizerHandle : public MouseReporter {
    Q_OBJECT

public:
    static constexpr int kSide = 7;

    SizerHandle(int handle, QWidget* parent = nullptr);

    int handle() const { return id(); }

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace orvelin
