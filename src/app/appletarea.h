#pragma once

#include <QImage>
#include <QWidget>

class QMouseEvent;

namespace orvelin {

/**
 * The applet area of the design surface: exactly the applet's size, showing the applet
 * background. The button pictures are its children, so a button dragged past the edge
 * is cut off where the applet would cut it off.
 */
class AppletArea : public QWidget {
    Q_OBJECT

public:
    explicit AppletArea(QWidget* parent = nullptr);

    /// The background as painted (RenderBackground); MakeTransparent copies from it.
    const QImage& background() const { return m_background; }
    void setBackground(const QImage& background);

signals:
    void mousePressed(QMouseEvent* event);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    QImage m_background;
};

} // namespace orvelin
