#include "imagecache.h"

#include "imagefile.h"
#include "programfolder.h"

#include <QDir>
#include <QFileInfo>

namespace orvelin {

void ImageCache::setProjectFile(const std::string& projectFileName) {
    const QString folder = QString::fromStdString(projectFolderOf(projectFileName));
    if (folder == m_projectFolder)
        return;
    m_projectFolder = folder;
    m_lookups.clear();
}

void ImageCache::clear() {
    m_lookups.clear();
    m_entries.clear();
}

QString ImageCache::resolve(const std::string& path) const {
    return QString::fromStdString(resolveStoredPath(path, m_projectFolder.toStdString()));
}

QImage ImageCache::image(const std::string& path) {
    if (path.empty())
        return {};
    Lookup& lookup = m_lookups[QString::fromStdString(path)];
    if (lookup.pass == m_pass) {
        const auto found = m_entries.constFind(lookup.file);
        return found == m_entries.constEnd() ? QImage() : found->image;
    }
    lookup.pass = m_pass;
    lookup.file = resolve(path);
    if (lookup.file.isEmpty())
        return {};

    const QFileInfo info(lookup.file);
    Entry& entry = m_entries[lookup.file];
    if (entry.size != info.size() || entry.modified != info.lastModified()) {
        // A GIF or JPEG saved under another extension is still read by its content.
        const QImage read = readImageFile(lookup.file);
        // Indexed GIFs would be converted on every paint; convert them once here.
        entry.image = read.convertToFormat(
            read.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        entry.size = info.size();
        entry.modified = info.lastModified();
    }
    return entry.image;
}

} // namespace orvelin
