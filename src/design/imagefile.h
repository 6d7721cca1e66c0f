#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

namespace orvelin {

/**
 * The image format a file's first bytes announce: "gif", "jpeg", "png" or "bmp", or an
 * empty text for anything else. Named from the content, as the applet reads it, whatever
 * the file's extension says.
 */
QByteArray imageFormatOf(const QByteArray& head);

/**
 * Reads the image in `file`, by its content. A file whose first bytes name a format goes
 * straight to that format's reader; only the others are offered to every reader Qt has,
 * since asking them all loads every image-format plugin. A null image when the file is
 * missing or unreadable.
 */
QImage readImageFile(const QString& file);

/// The size of the image in `file` without reading its pixels; invalid when unreadable.
QSize imageFileSize(const QString& file);

} // namespace orvelin
