#include "rendersurface.h"

#include "appletbackground.h"
#include "buttonpainter.h"
#include "imagecache.h"
#include "paintsupport.h"

#include <QPainter>

namespace orvelin {

QImage renderSurface(const ProjectModel& model, ButtonState state, const RenderOptions& options) {
    ImageCache ownImages;
    ImageCache& images = options.images ? *options.images : ownImages;
    images.setProjectFile(model.fileForRelativePaths());
    images.newPass();

    QImage surface = renderBackground(model, images, options.noBackGround);
    // Transparent buttons copy the background alone, never the buttons below them; the
    // copy is made only when some button needs it.
    QImage background;
    for (int index = 1; index <= model.ButtonCount; ++index)
        if (model.button(index).noBackGround != 0) {
            background = surface.copy();
            break;
        }

    ButtonPainter painter(model, images);
    painter.setState(state);
    painter.setBackground(&background);
    painter.setSelection(options.selection);
    painter.setUserInterface(options.ui);

    QPainter onSurface(&surface);
    QImage picture;
    for (int index = 1; index <= model.ButtonCount; ++index) {
        const ButtonRecord& button = model.button(index);
        if (button.Width <= 0 || button.Height <= 0)
            continue;
        const QRect area(button.x, button.y, button.Width, button.Height);
        if (button.noBackGround == 0) {
            // A button with a colour of its own covers its whole picture, so painting it
            // straight onto the surface, clipped to its rectangle, gives the same pixels.
            onSurface.save();
            onSurface.setClipRect(area);
            onSurface.translate(area.topLeft());
            painter.paintButton(onSurface, index);
            onSurface.restore();
            continue;
        }
        // A transparent one may leave pixels unpainted: its own picture shows what is
        // under them, as the window's picture does.
        if (picture.size() != area.size())
            picture = newPicture(area.size());
        else
            picture.fill(Qt::transparent);
        {
            QPainter onPicture(&picture);
            painter.paintButton(onPicture, index);
        }
        onSurface.drawImage(area.topLeft(), picture);
    }
    return surface;
}

} // namespace orvelin
