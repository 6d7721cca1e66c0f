// Repainting a full applet (101 buttons with images and labels) through the design
// surface's painting, beside the same rectangles, images and texts drawn with QPainter
// directly. The surface's extra work (image lookups, font setup per line, one picture
// per button) should keep it within twice the direct drawing.
#include "buttonpainter.h"
#include "imagecache.h"
#include "paintsupport.h"
#include "rendersurface.h"

#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <memory>

namespace {

using namespace orvelin;

struct Fixture {
    std::unique_ptr<QGuiApplication> app;
    QTemporaryDir dir;
    ProjectModel model;
    std::vector<QImage> images; ///< the direct drawing's images, one per button
};

Fixture& Shared() {
    static Fixture fixture = [] {
        Fixture f;
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "bench_paint";
        static char* argv[] = {name, nullptr};
        f.app = std::make_unique<QGuiApplication>(argc, argv);

        const char* files[] = {"a.png", "b.jpg", "c.png"};
        for (int k = 0; k < 3; ++k) {
            QImage art(24 + 8 * k, 20 + 6 * k, QImage::Format_RGB32);
            for (int y = 0; y < art.height(); ++y)
                for (int x = 0; x < art.width(); ++x)
                    art.setPixel(x, y, qRgb(x * 9, y * 11, 40 * k));
            art.save(f.dir.filePath(QString::fromLatin1(files[k])));
        }

        ProjectModel& m = f.model;
        m.AppletWidth = 800;
        m.AppletHeight = 400;
        m.BackGround = 0x503020;
        m.ButtonCount = kMaxButtons;
        ImageCache cache;
        for (int i = 1; i <= kMaxButtons; ++i) {
            ButtonRecord& b = m.button(i);
            b.x = static_cast<std::int16_t>(((i - 1) % 11) * 72 + 4);
            b.y = static_cast<std::int16_t>(((i - 1) / 11) * 42 + 4);
            b.Width = 68;
            b.Height = 38;
            b.LabelUP = i % 3 == 0 ? "Item\\n" + std::to_string(i) : "Item " + std::to_string(i);
            b.FontStyleUP = std::to_string(i % 4);
            b.ImageUP = f.dir.filePath(QString::fromLatin1(files[i % 3])).toStdString();
            b.ImgStyleUP = static_cast<std::int16_t>(i % 3);
            f.images.push_back(cache.image(b.ImageUP));
        }
        return f;
    }();
    return fixture;
}

void BM_RenderSurface101Buttons(benchmark::State& state) {
    Fixture& f = Shared();
    ImageCache images;
    RenderOptions options;
    options.images = &images;
    for (auto _ : state) {
        QImage surface = renderSurface(f.model, ButtonState::UP, options);
        benchmark::DoNotOptimize(surface.constBits());
    }
}
BENCHMARK(BM_RenderSurface101Buttons)->Unit(benchmark::kMillisecond);

void BM_DirectQPainter101Buttons(benchmark::State& state) {
    Fixture& f = Shared();
    const ProjectModel& m = f.model;
    for (auto _ : state) {
        QImage surface = newPicture(QSize(m.AppletWidth, m.AppletHeight));
        QPainter p(&surface);
        p.fillRect(surface.rect(), colorFromRef(m.BackGround));
        for (int i = 1; i <= m.ButtonCount; ++i) {
            const ButtonRecord& b = m.button(i);
            const QRect r(b.x, b.y, b.Width, b.Height);
            p.save();
            p.setClipRect(r);
            p.fillRect(r, colorFromRef(b.BackColorUP));
            drawPlacedImage(p, f.images[static_cast<std::size_t>(i - 1)], r, b.ImgStyleUP);
            QFont font(QString::fromStdString(b.FontUP));
            font.setPointSize(b.FontSizeUP);
            p.setFont(font);
            p.setPen(Qt::black);
            const QStringList lines =
                QString::fromStdString(b.LabelUP).split(QStringLiteral("\\n"));
            for (int k = 0; k < lines.size(); ++k)
                p.drawText(QPoint(b.x + 10, b.y + 22 + 14 * k), lines[k]);
            p.fillRect(QRect(b.x, b.y, b.Width, 1), Qt::white);
            p.fillRect(QRect(b.x, b.y + b.Height - 1, b.Width, 1), Qt::black);
            p.restore();
        }
        p.end();
        benchmark::DoNotOptimize(surface.constBits());
    }
}
BENCHMARK(BM_DirectQPainter101Buttons)->Unit(benchmark::kMillisecond);

} // namespace
