#pragma once

#include "projectmodel.h"

#include <QImage>
#include <QSize>

class QPainter;

namespace orvelin {

class ImageCache;

/**
 * DrawBackGround: the applet area filled with the BackGround colour, then BackImg in its
 * placement, shifted by BgOffsetX and BgOffsetY: "Center" centres the image in the area,
 * "Tile" covers the whole area with a tile grid anchored at the offset, "Stretch" scales the
 * image to the area's size. A missing image leaves the plain colour.
 */
void DrawBackGround(QPainter& painter, const ProjectModel& model, ImageCache& images);

/// What the surface shows when the applet background is switched off: a light neutral
/// checkerboard, the usual sign of "nothing here", which no button colour is mistaken for.
void drawPlainSurface(QPainter& painter, QSize size);

/// The applet area's background as the design surface shows it (AppletWidth by
/// AppletHeight, 96 dpi): DrawBackGround, or the plain surface when `switchedOff`.
QImage renderBackground(const ProjectModel& model, ImageCache& images, bool switchedOff);

} // namespace orvelin
