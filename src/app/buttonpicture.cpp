#include "buttonpicture.h"

#include "paintsupport.h"

#include <QMouseEvent>
#include <QPainter>

namespace orvelin {

ButtonPicture::ButtonPicture(int index, QWidget* parent) : MouseReporter(index, parent) {
    setObjectName(QStringLiteral("pButtons%1").arg(index));
    // The picture covers the widget; transparent pixels of a fresh picture show the
    // surface under it.
    setAttribute(Qt::WA_NoSystemBackground);
}

QImage& ButtonPicture::picture() {
    fitPicture();
    return m_picture;
}

bool ButtonPicture::fitPicture() {
    // Painted at the screen's density, so that labels are as sharp as the widgets'
    // texts; the painters draw in the widget's (the applet's) pixels all the same.
    const qreal ratio = devicePixelRatioF();
    const QSize wanted = (QSizeF(size().expandedTo(QSize(1, 1))) * ratio).toSize();
    if (m_picture.size() == wanted && m_picture.devicePixelRatio() == ratio)
        return false;
    QImage fitted = newPicture(wanted);
    fitted.setDevicePixelRatio(ratio);
    if (!m_picture.isNull()) {
        QPainter painter(&fitted);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.drawImage(0, 0, m_picture);
    }
    m_picture = fitted;
    return true;
}

void ButtonPicture::paintEvent(QPaintEvent*) {
    // Moved to a screen of another density: painted again at the new one.
    if (!qFuzzyCompare(m_picture.devicePixelRatio(), devicePixelRatioF()) && fitPicture()) {
        emit resized(index());
        return;
    }
    QPainter painter(this);
    painter.drawImage(0, 0, m_picture);
}

void ButtonPicture::resizeEvent(QResizeEvent*) {
    // A resize that the design window already answered (it painted at the new size)
    // leaves the picture as it is: a move paints once.
    if (fitPicture())
        emit resized(index());
}

void ButtonPicture::mouseDoubleClickEvent(QMouseEvent*) {}

} // namespace orvelin
