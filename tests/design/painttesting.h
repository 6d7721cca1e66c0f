#pragma once

// Shared by the painting tests: a QGuiApplication for fonts and image readers, test
// buttons and images, and pixel probes.

#include "buttonpainter.h"
#include "imagecache.h"
#include "paintsupport.h"
#include "projectmodel.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <string>

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

inline const bool kGuiEnvironmentRegistered =
    (::testing::AddGlobalTestEnvironment(new GuiEnvironment), true);

/// The example project's GIF tile, 40 by 40 pixels of several colours.
inline const std::string kTileGif = std::string(ORVELIN_SOURCE_DIR) + "/examples/images/tile.gif";

inline constexpr QRgb kWhite = 0xFFFFFF, kRed = 0xFF0000, kGreen = 0x00FF00, kBlue = 0x0000FF;

/// A plain button at (0, 0): white background, black label, no border.
inline ButtonRecord PlainButton(int width, int height, const std::string& label = {}) {
    ButtonRecord b;
    b.Width = static_cast<std::int16_t>(width);
    b.Height = static_cast<std::int16_t>(height);
    b.Border = 0;
    b.BackColorUP = 0xFFFFFF;
    b.FontColorUP = 0;
    b.LabelUP = label;
    return b;
}

/// A model holding `button` as its only, current button.
inline ProjectModel OneButton(const ButtonRecord& button) {
    ProjectModel model;
    model.button(1) = button;
    model.ButtonCount = 1;
    model.CurrentButton = 1;
    return model;
}

/// Button `index` of `model` painted through PaintButton into a fresh picture.
inline QImage Paint(const ProjectModel& model, int index = 1, const QImage* background = nullptr,
                    const ButtonList* selection = nullptr, UserInterface* ui = nullptr) {
    ImageCache images;
    images.setProjectFile(model.ProjectFileName);
    ButtonPainter painter(model, images);
    painter.setState(model.CurrentState);
    painter.setBackground(background);
    painter.setSelection(selection);
    painter.setUserInterface(ui);
    QImage picture = newPicture(QSize(model.button(index).Width, model.button(index).Height));
    QPainter p(&picture);
    painter.paintButton(p, index);
    p.end();
    return picture;
}

inline QRgb Pixel(const QImage& image, int x, int y) {
    return image.pixel(x, y) & 0xFFFFFFu;
}

/// The box of every pixel within `area` (default: all) that differs from `background`.
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

/// An image whose every pixel tells its place: red = x, green = y.
inline QImage Coordinates(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x, y, 200));
    return image;
}

/// Saves a blue square with a red top left pixel as `name` in `dir`; gives its path.
inline std::string SaveMarkedTile(const QTemporaryDir& dir, int side, const char* name) {
    QImage tile(side, side, QImage::Format_RGB32);
    tile.fill(qRgb(0, 0, 255));
    tile.setPixel(0, 0, qRgb(255, 0, 0));
    const QString path = dir.filePath(QString::fromLatin1(name));
    EXPECT_TRUE(tile.save(path)) << name;
    return path.toStdString();
}

} // namespace orvelin::testing
