#include "paintsupport.h"

#include <algorithm>
#include <cmath>

namespace orvelin {

QColor colorFromRef(std::int32_t colour) {
    const auto value = static_cast<std::uint32_t>(colour);
    return QColor(static_cast<int>(value & 0xFFu), static_cast<int>((value >> 8) & 0xFFu),
                  static_cast<int>((value >> 16) & 0xFFu));
}

std::int32_t colorToRef(const QColor& colour) {
    const auto value = static_cast<std::uint32_t>(colour.red()) |
                       (static_cast<std::uint32_t>(colour.green()) << 8) |
                       (static_cast<std::uint32_t>(colour.blue()) << 16);
    return static_cast<std::int32_t>(value);
}

QImage newPicture(QSize size) {
    QImage picture(size.expandedTo(QSize(1, 1)), QImage::Format_ARGB32_Premultiplied);
    picture.setDotsPerMeterX(kPictureDotsPerMeter);
    picture.setDotsPerMeterY(kPictureDotsPerMeter);
    picture.fill(Qt::transparent);
    return picture;
}

QColor shadeColor(const QColor& colour, double amount) {
    const double a = std::clamp(amount, -1.0, 1.0);
    auto shade = [a](int component) {
        const double target = a > 0 ? 255.0 : 0.0;
        return static_cast<int>(std::lround(component + (target - component) * std::abs(a)));
    };
    return QColor(shade(colour.red()), shade(colour.green()), shade(colour.blue()));
}

} // namespace orvelin
