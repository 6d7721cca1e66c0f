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
 * project file first, then in the current folder. GIF, JPEG and PNG come through Qt's
 * image readers.
 *
 * The file behind a path is looked at once per pass: the first request of a pass checks
 * its modification time and size and reads the image again when they changed, so an
 * image edited in another program shows on the next repaint, while the hundred buttons
 * of one repaint share one check.
 */
class ImageCache {
public:
    /// Relative paths are resolved against the folder of `projectFileName` (none when empty).
    void setProjectFile(const std::string& projectFileName);

    /// Starts a pass: the next request of every path looks at its file again.
    void newPass() { ++m_pass; }

    /// The image of `path`; a null image when the path is empty, missing or unreadable.
    QImage image(const std::string& path);

    /// The file `path` names, or an empty text when there is no such file.
    QString resolve(const std::string& path) const;

    void clear();

private:
    struct Entry {
        QImage image;
        qint64 size = -1;
        QDateTime modified;
    };
    struct Lookup {
        QString file; ///< empty: no such file
        unsigned pass = 0;
    };

    QString m_projectFolder;
    unsigned m_pass = 1;
    QHash<QString, Lookup> m_lookups; ///< by stored path
    QHash<QString, Entry> m_entries;  ///< by resolved file
};

} // namespace orvelin
