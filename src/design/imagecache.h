#pragma once

#include <QDateTime>
#include <QHash>
#include <QImage>
#include <QString>
#include <string>

namespace orvelin {

/**
 * The images of buttons and of the applet background, by the path stored in the project.
 * A path may use "\" (projects made on Windows); a relative one is looked up beside the
 * project file first, then in the current folder. An entry is read again when its file's
 * modification time or size changes, so an image edited in another program shows on the
 * next repaint. GIF, JPEG and PNG come through Qt's image readers.
 */
class ImageCache {
public:
    /// Relative paths are resolved against the folder of `projectFileName` (none when empty).
    void setProjectFile(const std::string& projectFileName);

    /// The image of `path`; a null image when the path is empty, missing or unreadable.
    QImage image(const std::string& path);

    /// The file `path` names, or an empty text when there is no such file.
    QString resolve(const std::string& path) const;

    void clear() { m_entries.clear(); }

private:
    struct Entry {
        QImage image;
        qint64 size = -1;
        QDateTime modified;
    };

    QString m_projectFolder;
    QHash<QString, Entry> m_entries;
};

} // namespace orvelin
