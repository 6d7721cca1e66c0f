#include "colorbutton.h"

#include "paintedicon.h"

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

QColor ColorButton::ToQColor(std::int32_t colour) {
    const auto value = static_cast<std::uint32_t>(colour);
    return QColor(static_cast<int>(value & 0xFFu), static_cast<int>((value >> 8) & 0xFFu),
                  static_cast<int>((value >> 16) & 0xFFu));
}

std::int32_t ColorButton::FromQColor(const QColor& colour) {
    const auto value = static_cast<std::uint32_t>(colour.red()) |
                       (static_cast<std::uint32_t>(colour.green()) << 8) |
                       (static_cast<std::uint32_t>(colour.blue()) << 16);
    return static_cast<std::int32_t>(value);
}

void ColorButton::setColour(std::int32_t colour) {
    if (colour == m_colour)
        return;
    m_colour = colour;
    updateSwatch();
}

void ColorButton::choose() {
    const QColor chosen = QColorDialog::getColor(ToQColor(m_colour), this, toolTip());
    if (!chosen.isValid())
        return;
    m_colour = FromQColor(chosen);
    updateSwatch();
    emit colourChosen(m_colour);
}

void ColorButton::updateSwatch() {
    QIcon swatch;
    const QSize size = iconSize();
    AddPaintedPixmaps(swatch, size, [&](QPainter& painter) {
        painter.fillRect(QRect(QPoint(0, 0), size), ToQColor(m_colour));
        painter.setPen(QPen(QColor(0, 0, 0, 110), 0));
        painter.drawRect(QRectF(0.5, 0.5, size.width() - 1, size.height() - 1));
    });
    setIcon(swatch);
}

} // namespace orvelin
