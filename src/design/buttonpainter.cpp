#include "buttonpainter.h"

#include "imagecache.h"
#include "paintsupport.h"
#include "propertyeditor.h"
#include "textcatalogue.h"

#include <QBrush>
#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QStringList>
#include <cmath>
#include <stdexcept>

namespace orvelin {

namespace {

/// A label that cannot be drawn; `what` is the description the user is shown.
class LabelError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Rounds halves to the even number, as the designer's integer conversions do.
int roundEven(double value) {
    return static_cast<int>(std::nearbyint(value));
}

int floorHalf(int difference) {
    return static_cast<int>(std::floor(difference / 2.0));
}

} // namespace

void drawPlacedImage(QPainter& painter, const QImage& image, const QRect& area, int style,
                     QPoint origin) {
    if (image.isNull() || area.isEmpty())
        return;
    switch (style) {
    case 1: {
        QBrush tiles(image);
        // The brush origin anchors the tile grid; the whole area is covered whatever it is.
        painter.setBrushOrigin(area.topLeft() + origin);
        painter.fillRect(area, tiles);
        painter.setBrushOrigin(QPoint());
        break;
    }
    case 2:
        painter.drawImage(area.translated(origin), image);
        break;
    default:
        painter.drawImage(area.topLeft() + origin +
                              QPoint(floorHalf(area.width() - image.width()),
                                     floorHalf(area.height() - image.height())),
                          image);
        break;
    }
}

ButtonPainter::ButtonPainter(const ProjectModel& model, ImageCache& images)
    : m_model(model), m_images(images) {}

bool ButtonPainter::showsMultiSelector(int index) const {
    return m_selection && m_selection->selectedCount() >= 2 && m_selection->isSelected(index);
}

void ButtonPainter::paintButton(QPainter& painter, int index) {
    try {
        DrawPix(painter, index);
        DrawLabel(painter, index);
        DrawBorder(painter, index);
        if (showsMultiSelector(index))
            DrawMultiSelector(painter, index);
    } catch (const std::exception&) {
        // The picture may stay partly painted; the next redraw paints it whole.
    }
}

void ButtonPainter::DrawPix(QPainter& painter, int index) {
    const ButtonRecord& button = m_model.button(index);
    const QRect area(0, 0, button.Width, button.Height);
    if (button.noBackGround != 0)
        MakeTransparent(painter, index);
    else
        painter.fillRect(area, colorFromRef(button.backColor(m_state)));

    const std::string& file = button.image(m_state);
    if (file.empty())
        return;
    // A missing or unreadable image leaves the background alone: the user sees the colour
    // and the label, and the image field still names the file.
    const QImage image = m_images.image(file);
    drawPlacedImage(painter, image, area, button.ImgStyle(m_state));
}

bool ButtonPainter::DrawLabel(QPainter& painter, int index) {
    try {
        const ButtonRecord& button = m_model.button(index);
        const ButtonState s = m_state;
        bool bold = false;
        bool italic = false;
        fontStyleFlags(button.fontStyle(s), bold, italic);
        const QString font = QString::fromStdString(button.font(s));
        const int size = button.fontSize(s);
        const std::int32_t colour = button.fontColor(s);

        // The record keeps a line break as the two characters backslash and n.
        const QStringList lines =
            QString::fromStdString(button.label(s)).split(QStringLiteral("\\n"));
        const int count = static_cast<int>(lines.size());

        drawString(painter, QString(), font, size, colour, bold, italic, 0, 0);
        const QFontMetrics metrics = painter.fontMetrics();
        const int step = metrics.lineSpacing();

        if (button.positionText(s) != 0) {
            for (int k = 0; k < count; ++k)
                drawString(painter, lines[k], font, size, colour, bold, italic, button.labelPosX(s),
                           button.labelPosY(s) + k * step);
            return true;
        }
        // One line: its baseline is Height/2 + TextHeight/3, which centres capitals. More
        // lines keep that reference for the middle of the block and step by the line height.
        const double reference = button.Height / 2.0 + metrics.height() / 3.0;
        for (int k = 0; k < count; ++k) {
            const double width = metrics.horizontalAdvance(lines[k]);
            const int left = roundEven(button.Width / 2.0 - width / 2.0);
            const int baseline = roundEven(reference + (k - (count - 1) / 2.0) * step);
            drawString(painter, lines[k], font, size, colour, bold, italic, left, baseline);
        }
        return true;
    } catch (const std::exception& error) {
        if (m_ui) {
            const std::string description = dynamic_cast<const std::out_of_range*>(&error)
                                                ? texts()[Msg::CauseSubscriptOutOfRange]
                                                : std::string(error.what());
            const TextCatalogue& msg = texts();
            m_ui->showWarning(msg[Msg::SomethingWrong] + std::string(kCrLf) +
                              msg[Msg::OnDrawLabel] + std::to_string(index) + ") " +
                              std::string(kCrLf) + description);
        }
        return false;
    }
}

void ButtonPainter::drawString(QPainter& painter, const QString& StringToDraw,
                               const QString& strFont, int iFontSize, std::int32_t lFontColor,
                               bool bBold, bool bItalic, int x, int y) {
    // A larger or non-positive size is refused the way a picture refuses an invalid one.
    if (iFontSize <= 0 || iFontSize > kMaxFontSize)
        throw LabelError("Invalid property value");
    QFont font(strFont);
    font.setPointSize(iFontSize);
    font.setBold(bBold);
    font.setItalic(bItalic);
    painter.setFont(font);
    painter.setPen(colorFromRef(lFontColor));
    if (!StringToDraw.isEmpty())
        painter.drawText(QPoint(x, y), StringToDraw);
}

void ButtonPainter::DrawBorder(QPainter& painter, int index) {
    const ButtonRecord& button = m_model.button(index);
    if (button.Border == 0)
        return;
    const int w = button.Width;
    const int h = button.Height;
    if (w < 2 || h < 2)
        return;
    const QColor back = colorFromRef(button.backColor(m_state));
    const QColor lightOuter = shadeColor(back, 0.65);
    const QColor lightInner = shadeColor(back, 0.35);
    const QColor darkOuter = shadeColor(back, -0.6);
    const QColor darkInner = shadeColor(back, -0.3);

    // Two rings; the dark sides are drawn last so they own the bottom-left and top-right
    // corner pixels, as a raised edge does.
    painter.fillRect(0, 0, w - 1, 1, lightOuter);
    painter.fillRect(0, 0, 1, h - 1, lightOuter);
    painter.fillRect(0, h - 1, w, 1, darkOuter);
    painter.fillRect(w - 1, 0, 1, h, darkOuter);
    if (w < 4 || h < 4)
        return;
    painter.fillRect(1, 1, w - 3, 1, lightInner);
    painter.fillRect(1, 1, 1, h - 3, lightInner);
    painter.fillRect(1, h - 2, w - 2, 1, darkInner);
    painter.fillRect(w - 2, 1, 1, h - 2, darkInner);
}

void ButtonPainter::DrawMultiSelector(QPainter& painter, int index) {
    const ButtonRecord& button = m_model.button(index);
    const int w = button.Width;
    const int h = button.Height;
    const int side = std::min(7, std::max(3, std::min(w, h) / 3));
    const QPoint corners[] = {{0, 0}, {w - side, 0}, {0, h - side}, {w - side, h - side}};
    for (const QPoint& corner : corners) {
        painter.fillRect(QRect(corner, QSize(side, side)), Qt::black);
        painter.fillRect(QRect(corner + QPoint(1, 1), QSize(side - 2, side - 2)), Qt::white);
    }
}

bool ButtonPainter::MakeTransparent(QPainter& painter, int index) {
    const ButtonRecord& button = m_model.button(index);
    if (!m_background)
        return false;
    const QRect under(button.x, button.y, button.Width, button.Height);
    if (under.isEmpty() || !m_background->rect().contains(under))
        return false;
    const QPainter::CompositionMode mode = painter.compositionMode();
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(QPoint(0, 0), *m_background, under);
    painter.setCompositionMode(mode);
    return true;
}

} // namespace orvelin
