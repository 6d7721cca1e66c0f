#pragma once

#include "mousereporter.h"

#include <QImage>

namespace orvelin {

/**
 * One button's picture on the design surface, `pButtons(i)`. It keeps what was last
 * painted into it, as a picture box does: a transparent button whose background cannot
 * be copied keeps its old picture. The design window paints it through ButtonPainter;
 * this widget only shows the picture and reports the mouse.
 */
class ButtonPicture : public MouseReporter {
    Q_OBJECT

public:
    ButtonPicture(int index, QWidget* parent = nullptr);

    int index() const { return id(); }

    /// The picture to paint into, resized to the widget's size (the old content kept at
    /// the top left). Call update() after painting.
    QImage& picture();

signals:
    /// The widget changed size by any cause (pButtons_Resize).
    void resized(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    /// A double click is no second press: the designer does nothing with it.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    /// Brings the picture to the widget's size; true when it had to change.
    bool fitPicture();

    QImage m_picture;
};

} // namespace orvelin
