#pragma once

#include <QColor>
#include <QImage>
#include <QSize>
#include <cstdint>

namespace orvelin {

/// A picture's resolution: font sizes are points at 96 dots per inch, in the window and
/// offscreen alike, so a rendered PNG matches what the design window shows.
inline constexpr int kPictureDotsPerMeter = 3780;

/// A colour value of the project (0x00BBGGRR, red in the low byte); the high byte is ignored.
QColor colorFromRef(std::int32_t colour);
/// The project's colour value of `colour`.
std::int32_t colorToRef(const QColor& colour);

/// A transparent picture of `size` at 96 dpi, ready for the painting routines.
QImage newPicture(QSize size);

/// `colour` moved towards white (amount > 0) or black (amount < 0) by |amount| (0 to 1),
/// each of red, green and blue on its own.
QColor shadeColor(const QColor& colour, double amount);

} // namespace orvelin
