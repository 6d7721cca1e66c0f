#pragma once

#include "surfacezoom.h"

#include <QImage>
#include <QWidget>

class QMouseEvent;

namespace orvelin {

/**
 * The applet area of the design surface: exactly the applet's size (times the zoom),
 * showing the applet background. The button pictures are its children, so a button dragged past the
 * edge is cut off where the applet would cut it off.
 */
class AppletArea : public QWidget {
    Q_OBJECT

public:
    explicit AppletArea(QWidget* parent = nullptr);

    /// The background as painted (RenderBackground); MakeTransparent copies from it.
    const QImage& background() const { return m_background; }
    void setBackground(const QImage& background);
    /// The applet's size in applet pixels; the widget is that times the zoom.
    QSize appletSize() const { return m_background.size(); }
    /// Shows the applet `zoom` times its size.
    void setZoom(const SurfaceZoom& zoom);

signals:
    void mousePressed(QMouseEvent* event);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void fitSize();

    QImage m_background;
    SurfaceZoom m_zoom;
};

} // namespace orvelin
