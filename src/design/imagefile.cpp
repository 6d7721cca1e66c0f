#include "imagefile.h"

#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <utility>

namespace orvelin {

namespace {

bool StartsWith(const QByteArray& head, const char* signature, qsizetype length) {
    return head.size() >= length && std::equal(signature, signature + length, head.constData());
}

// Reads with the reader the first bytes name, and with every reader Qt has when they
// name none or that one fails (damaged behind a known signature).
template <typename Read, typename Good>
auto withReader(const QString& file, Read read, Good good)
    -> decltype(read(std::declval<QImageReader&>())) {
    using Result = decltype(read(std::declval<QImageReader&>()));
    QFile device(file);
    if (!device.open(QIODevice::ReadOnly))
        return Result();
    const QByteArray format = imageFormatOf(device.peek(8));
    if (!format.isEmpty()) {
        QImageReader reader(&device, format);
        reader.setAutoDetectImageFormat(false);
        Result result = read(reader);
        if (good(result))
            return result;
        device.seek(0);
    }
    QImageReader reader(&device);
    reader.setDecideFormatFromContent(true);
    return read(reader);
}

} // namespace

QByteArray imageFormatOf(const QByteArray& head) {
    if (StartsWith(head, "GIF87a", 6) || StartsWith(head, "GIF89a", 6))
        return QByteArrayLiteral("gif");
    if (StartsWith(head, "\xFF\xD8\xFF", 3))
        return QByteArrayLiteral("jpeg");
    if (StartsWith(head, "\x89PNG\r\n\x1A\n", 8))
        return QByteArrayLiteral("png");
    if (StartsWith(head, "BM", 2))
        return QByteArrayLiteral("bmp");
    return {};
}

QImage readImageFile(const QString& file) {
    return withReader(
        file, [](QImageReader& reader) { return reader.read(); },
        [](const QImage& image) { return !image.isNull(); });
}

QSize imageFileSize(const QString& file) {
    return withReader(
        file, [](QImageReader& reader) { return reader.size(); },
        [](const QSize& size) { return size.isValid(); });
}

} // namespace orvelin
