#pragma once

// Shared by the painting tests: a QGuiApplication for fonts and image readers, and small
// pixel probes.

#include "buttonpainter.h"
#include "imagecache.h"
#include "paintsupport.h"
#include "projectmodel.h"

#include <QColor>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QString>
#include <gtest/gtest.h>
#include <memory>

namespace orvelin::testing {

class GuiEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
            qputenv("QT_QPA_PLATFORM", "offscreen");
        static int argc = 1;
        static char name[] = "painttest";
        static char* argv[] = {name, nullptr};
        m_app = std::make_unique<QGuiApplication>(argc, argv);
    }
    void TearDown() override { m_app.reset(); }

private:
    std::unique_ptr<QGuiApplication> m_app;
};

inline const bool kGuiEnvironmentRegistered = [] {
    ::testing::AddGlobalTestEnvironment(new GuiEnvironment);
    return true;
}();

/// A plain button: white background, black label, no border, at (0, 0).
inline ButtonRecord PlainButton(int width, int height, const std::string& label) {
    ButtonRecord b;
    b.Width = static_cast<std::int16_t>(width);
    b.Height = static_cast<std::int16_t>(height);
    b.Border = 0;
    b.BackColorUP = 0xFFFFFF;
    b.FontColorUP = 0;
    b.LabelUP = label;
    return b;
}

/// A model holding `button` as its only button.
inline ProjectModel OneButton(const ButtonRecord& button) {
    ProjectModel model;
    model.Button(1) = button;
    model.ButtonCount = 1;
    model.CurrentButton = 1;
    return model;
}

/// Paints button `index` of `model` through PaintButton into a fresh picture.
inline QImage Paint(const ProjectModel& model, int index = 1, const QImage* background = nullptr,
                    const ButtonList* selection = nullptr, UserInterface* ui = nullptr) {
    ImageCache images;
    images.setProjectFile(model.ProjectFileName);
    ButtonPainter painter(model, images);
    painter.setState(model.CurrentState);
    painter.setBackground(background);
    painter.setSelection(selection);
    painter.setUserInterface(ui);
    const ButtonRecord& b = model.Button(index);
    QImage picture = NewPicture(QSize(b.Width, b.Height));
    QPainter p(&picture);
    painter.PaintButton(p, index);
    p.end();
    return picture;
}

inline QRgb Pixel(const QImage& image, int x, int y) {
    return image.pixel(x, y) & 0xFFFFFFu;
}

/// The box of every pixel within `area` that differs from `background`; empty when none.
inline QRect InkBox(const QImage& image, QRgb background, QRect area = {}) {
    if (area.isNull())
        area = image.rect();
    QRect box;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (Pixel(image, x, y) != (background & 0xFFFFFFu))
                box |= QRect(x, y, 1, 1);
    return box;
}

/// Whether row `y` holds any pixel other than `background`.
inline bool RowHasInk(const QImage& image, int y, QRgb background) {
    for (int x = 0; x < image.width(); ++x)
        if (Pixel(image, x, y) != (background & 0xFFFFFFu))
            return true;
    return false;
}

inline bool SameColour(QRgb a, QRgb b, int tolerance = 0) {
    return std::abs(qRed(a) - qRed(b)) <= tolerance &&
           std::abs(qGreen(a) - qGreen(b)) <= tolerance &&
           std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

/**
 * Writes `image` as a GIF (Qt reads GIFs but does not write them). The pixels go out as
 * plain 9-bit codes with a clear code every 250 of them, so the code table never grows:
 * valid for every reader, just not compressed. At most 256 colours.
 */
inline bool SaveGif(const QImage& image, const QString& path) {
    const QImage indexed = image.convertToFormat(QImage::Format_Indexed8, Qt::ThresholdDither);
    QByteArray out("GIF89a");
    auto word = [&out](int v) {
        out.append(static_cast<char>(v & 0xFF));
        out.append(static_cast<char>((v >> 8) & 0xFF));
    };
    word(indexed.width());
    word(indexed.height());
    out.append(static_cast<char>(0xF7)); // global table of 256 entries
    out.append('\0');
    out.append('\0');
    for (int i = 0; i < 256; ++i) {
        const QRgb c = i < indexed.colorCount() ? indexed.color(i) : 0;
        out.append(static_cast<char>(qRed(c)));
        out.append(static_cast<char>(qGreen(c)));
        out.append(static_cast<char>(qBlue(c)));
    }
    out.append(',');
    word(0);
    word(0);
    word(indexed.width());
    word(indexed.height());
    out.append('\0');
    out.append(static_cast<char>(8)); // minimum code size

    QByteArray data;
    quint32 bits = 0;
    int bitCount = 0;
    auto put = [&](int code) {
        bits |= static_cast<quint32>(code) << bitCount;
        bitCount += 9;
        while (bitCount >= 8) {
            data.append(static_cast<char>(bits & 0xFF));
            bits >>= 8;
            bitCount -= 8;
        }
    };
    put(256);
    int sinceClear = 0;
    for (int y = 0; y < indexed.height(); ++y)
        for (int x = 0; x < indexed.width(); ++x) {
            if (sinceClear == 250) {
                put(256);
                sinceClear = 0;
            }
            put(indexed.pixelIndex(x, y));
            ++sinceClear;
        }
    put(257);
    if (bitCount > 0)
        data.append(static_cast<char>(bits & 0xFF));
    for (qsizetype at = 0; at < data.size(); at += 255) {
        const qsizetype n = std::min<qsizetype>(255, data.size() - at);
        out.append(static_cast<char>(n));
        out.append(data.mid(at, n));
    }
    out.append('\0');
    out.append(';');

    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(out) == out.size();
}

} // namespace orvelin::testing
