#pragma once

#include "buttonlist.h"
#include "projectmodel.h"
#include "userinterface.h"

#include <QImage>
#include <QString>
#include <cstdint>
#include <string>
#include <string_view>

class QPainter;

namespace orvelin {

class ImageCache;

/**
 * Paints one button's picture from its record, in the state being edited: background or
 * the applet background under it, image, label, border and the multi-selection marker.
 * The design window's button pictures, the rendered surface and the tests all paint
 * through it, so they show the same pixels.
 *
 * Every routine paints with a painter whose origin is the picture's top left corner and
 * whose device is a picture at 96 dpi (NewPicture). The picture's width and height are the
 * record's Width and Height.
 */
class ButtonPainter {
public:
    ButtonPainter(const ProjectModel& model, ImageCache& images);

    /// The state whose fields are painted.
    void setState(ButtonState state) { m_state = state; }
    /// The applet background as the surface shows it, the source of MakeTransparent.
    void setBackground(const QImage* background) { m_background = background; }
    /// The button list whose multi-selection gets the marker; none: no marker.
    void setSelection(const ButtonList* selection) { m_selection = selection; }
    /// Where DrawLabel reports a failure; null: failures stay silent.
    void setUserInterface(UserInterface* ui) { m_ui = ui; }

    /// DrawPix, DrawLabel, DrawBorder, then DrawMultiSelector when two or more buttons are
    /// selected and this is one of them. A failure ends the painting silently.
    void paintButton(QPainter& painter, int index);

    /// The background (own colour, or the applet background under a transparent button)
    /// and the state's image in its placement.
    void DrawPix(QPainter& painter, int index);

    /// The state's label, line by line. False when it failed; the failure has been reported.
    bool DrawLabel(QPainter& painter, int index);

    /// One line of text with its baseline at (x, y); an empty text only selects the font.
    void drawString(QPainter& painter, const QString& StringToDraw, const QString& strFont,
                    int iFontSize, std::int32_t lFontColor, bool bBold, bool bItalic, int x, int y);

    /// A raised edge whose light and dark sides derive from the state's background colour;
    /// only when the button's Border flag is set.
    void DrawBorder(QPainter& painter, int index);

    /// Corner marks, dark framed and light filled, that stand out on any colour.
    void DrawMultiSelector(QPainter& painter, int index);

    /// Copies the applet background under the button into its picture. False, painting
    /// nothing, when that rectangle is not wholly inside the background.
    bool MakeTransparent(QPainter& painter, int index);

    /// Whether PaintButton draws the multi-selection marker on `index`.
    bool showsMultiSelector(int index) const;

private:
    const ProjectModel& m_model;
    ImageCache& m_images;
    ButtonState m_state = ButtonState::UP;
    const QImage* m_background = nullptr;
    const ButtonList* m_selection = nullptr;
    UserInterface* m_ui = nullptr;
};

/// Draws `image` into `area` of the painter in a placement: 0 centred (clipped evenly when it
/// is larger), 1 tiled from the area's top left plus `origin`, 2 stretched to the area;
/// any other value is taken as centred.
void drawPlacedImage(QPainter& painter, const QImage& image, const QRect& area, int style,
                     QPoint origin = {});

} // namespace orvelin
