#include "colorbutton.h"

#include "paintedicon.h"
#include "paintsupport.h"

#include <QColorDialog>
#include <QPainter>

namespace orvelin {

ColorButton::ColorButton(const QString& objectName, QWidget* parent) : QToolButton(parent) {
    setObjectName(objectName);
    setIconSize(QSize(34, 14));
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    connect(this, &QToolButton::clicked, this, &ColorButton::choose);
    updateSwatch();
}

void ColorButton::setColour(std::int32_t colour) {
    if (colour == m_colour)
        return;
    m_colour = colour;
    updateSwatch();
}

void ColorButton::choose() {
    const QColor chosen = QColorDialog::getColor(colorFromRef(m_colour), this, toolTip());
    if (!chosen.isValid())
        return;
    m_colour = colorToRef(chosen);
    updateSwatch();
    emit colourChosen(m_colour);
}

void ColorButton::updateSwatch() {
    QIcon swatch;
    const QSize size = iconSize();
    addPaintedPixmaps(swatch, size, [&](QPainter& painter) {
        painter.fillRect(QRect(QPoint(0, 0), size), colorFromRef(m_colour));
        painter.setPen(QPen(QColor(0, 0, 0, 110), 0));
        painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    });
    setIcon(swatch);
}

} // namespace orvelin
