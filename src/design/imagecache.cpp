#include "imagecache.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>

namespace orvelin {

namespace {

QString NativePath(const std::string& path) {
    QString text = QString::fromStdString(path);
    text.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return text;
}

} // namespace

void ImageCache::setProjectFile(const std::string& projectFileName) {
    m_projectFolder =
        projectFileName.empty() ? QString() : QFileInfo(NativePath(projectFileName)).absolutePath();
}

QString ImageCache::resolve(const std::string& path) const {
    if (path.empty())
        return {};
    const QString text = NativePath(path);
    if (QDir::isAbsolutePath(text))
        return QFileInfo(text).isFile() ? text : QString();
    if (!m_projectFolder.isEmpty()) {
        const QString beside = QDir(m_projectFolder).filePath(text);
        if (QFileInfo(beside).isFile())
            return beside;
    }
    const QString here = QDir::current().absoluteFilePath(text);
    return QFileInfo(here).isFile() ? here : QString();
}

QImage ImageCache::image(const std::string& path) {
    const QString file = resolve(path);
    if (file.isEmpty())
        return {};
    const QFileInfo info(file);
    Entry& entry = m_entries[file];
    if (entry.size != info.size() || entry.modified != info.lastModified()) {
        QImageReader reader(file);
        // A GIF or JPEG saved under another extension is still read by its content.
        reader.setDecideFormatFromContent(true);
        QImage read = reader.read();
        // Indexed GIFs would be converted on every paint; convert them once here.
        entry.image = read.convertToFormat(
            read.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        entry.size = info.size();
        entry.modified = info.lastModified();
    }
    return entry.image;
}

} // namespace orvelin
