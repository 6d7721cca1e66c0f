#pragma once

#include <QImage>
#include <QWidget>

class QMouseEvent;

namespace orvelin {

/**
 * One button's picture on the design surface, `pButtons(i)`. It keeps what was last
 * painted into it, as a picture box does: a transparent button whose background cannot
 * be copied keeps its old picture. The design window paints it through ButtonPainter;
 * this widget only shows the picture and reports the mouse.
 */
class ButtonPicture : public QWidget {
    Q_OBJECT

public:
    ButtonPicture(int index, QWidget* parent = nullptr);

    int index() const { return m_index; }

    /// The picture to paint into, resized to the widget's size (the old content kept at
    /// the top left). Call update() after painting.
    QImage& picture();

signals:
    void mousePressed(int index, QMouseEvent* event);
    void mouseMoved(int index, QMouseEvent* event);
    void mouseReleased(int index, QMouseEvent* event);
    /// The widget changed size by any cause (pButtons_Resize).
    void resized(int index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// A double click is no second press: the designer does nothing with it.
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    /// Brings the picture to the widget's size; true when it had to change.
    bool fitPicture();

    int m_index;
    QImage m_picture;
};

} // namespace orvelin
