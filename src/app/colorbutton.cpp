#include "colorbutton.h"

#include "paintsupport.h"

#include <QColorDialog>
#include <QPainter>
#include <QPixmap>

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
    const QColor chosen = QColorDialog::getColor(ColorFromRef(m_colour), this, toolTip());
    if (!chosen.isValid())
        return;
    m_colour = ColorToRef(chosen);
    updateSwatch();
    emit colourChosen(m_colour);
}

void ColorButton::updateSwatch() {
    QPixmap swatch(iconSize());
    swatch.fill(ColorFromRef(m_colour));
    QPainter painter(&swatch);
    painter.setPen(QColor(0, 0, 0, 110));
    painter.drawRect(swatch.rect().adjusted(0, 0, -1, -1));
    painter.end();
    setIcon(QIcon(swatch));
}

} // namespace orvelin
