#include "startupstyle.h"

#include <QApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QStyleOption>
#include <QWidget>
#include <optional>

namespace orvelin {

namespace {

// Stands for a standard icon until someone needs its pictures, then asks the
// wrapped style for the real one once and answers with it from then on.
class DeferredStandardIcon : public QIconEngine {
public:
    DeferredStandardIcon(const QStyle* style, QStyle::StandardPixmap which,
                         const QStyleOption* option, const QWidget* widget)
        : m_style(style), m_which(which), m_widget(widget) {
        if (option != nullptr)
            m_direction = option->direction;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State state) override {
        real().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return real().actualSize(size, mode, state);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return real().pixmap(size, mode, state);
    }

    // `size` comes scaled already; the real icon scales what it is given.
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override {
        return real().pixmap(scale > 0 ? size / scale : size, scale, mode, state);
    }

    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override {
        return real().availableSizes(mode, state);
    }

    bool isNull() override { return real().isNull(); }

    QString key() const override { return QStringLiteral("DeferredStandardIcon"); }

    QIconEngine* clone() const override { return new DeferredStandardIcon(*this); }

private:
    const QIcon& real() {
        if (!m_icon && m_style == nullptr)
            m_icon.emplace();
        if (!m_icon) {
            // The option only carried the layout direction; the widget may be gone.
            QStyleOption option;
            if (m_direction)
                option.direction = *m_direction;
            m_icon =
                m_style->standardIcon(m_which, m_direction ? &option : nullptr, m_widget.data());
        }
        return *m_icon;
    }

    QPointer<const QStyle> m_style;
    QStyle::StandardPixmap m_which;
    QPointer<const QWidget> m_widget;
    std::optional<Qt::LayoutDirection> m_direction;
    std::optional<QIcon> m_icon;
};

const QString kGroupBoxFrame =
    QStringLiteral(":/qt-project.org/styles/commonstyle/images/fusion_groupbox.png");

// QPixmap::load's cache key: the absolute path, then the modification time, the size
// and the pixmap type, each written byte by byte, low nibble first, in hex.
template <typename Number> void AppendHex(QString& key, Number value) {
    static constexpr char kDigits[] = "0123456789abcdef";
    const auto* byte = reinterpret_cast<const unsigned char*>(&value);
    for (std::size_t i = 0; i < sizeof(Number); ++i, ++byte) {
        key += QLatin1Char(kDigits[*byte & 0xFu]);
        key += QLatin1Char(kDigits[*byte >> 4]);
    }
}

QString PixmapLoadKey(const QFileInfo& file) {
    QString key = QStringLiteral("qt_pixmap") + file.absoluteFilePath();
    AppendHex(key, static_cast<uint>(file.lastModified().toSecsSinceEpoch()));
    AppendHex(key, static_cast<quint64>(file.size()));
    AppendHex(key, static_cast<uint>(0)); // an ordinary pixmap, not a bitmap
    return key;
}

} // namespace

StartupStyle::StartupStyle() = default;

QIcon StartupStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                 const QWidget* widget) const {
    return QIcon(new DeferredStandardIcon(baseStyle(), standardIcon, option, widget));
}

void StartupStyle::polish(QApplication* application) {
    QProxyStyle::polish(application);
    if (baseStyle()->name().compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0)
        PreloadGroupBoxFrame();
}

QPixmap StartupStyle::PreloadGroupBoxFrame() {
    QImageReader reader(kGroupBoxFrame, "png");
    reader.setAutoDetectImageFormat(false);
    const QPixmap frame = QPixmap::fromImage(reader.read());
    // Should Qt name its cache entries otherwise one day, Fusion reads the file itself
    // as before: the picture is the same either way, only the plugins get loaded.
    if (!frame.isNull())
        QPixmapCache::insert(PixmapLoadKey(QFileInfo(kGroupBoxFrame)), frame);
    return frame;
}

} // namespace orvelin
