#pragma once

#include <QProxyStyle>

namespace orvelin {

/**
 * The desktop style the application would have chosen by itself, minus a start-up cost
 * of the images it reads from Qt's own resources. Reading such a PNG by the usual route
 * makes Qt load every image-format plugin installed (and the libraries behind them) just
 * to learn that none of them claims PNG. So:
 * - standard icons are read when first drawn, not when asked for: widgets ask for some
 *   while they are built (the menu bar its overflow arrow, shown only in a narrow window);
 * - the frame picture the Fusion style draws every group box with is read once with the
 *   PNG reader named, and left where Fusion looks for it first.
 * What is drawn stays exactly what the desktop style draws.
 */
class StartupStyle : public QProxyStyle {
    Q_OBJECT

public:
    StartupStyle();

    QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option = nullptr,
                       const QWidget* widget = nullptr) const override;

    using QProxyStyle::polish;
    void polish(QApplication* application) override;

    /// Reads Fusion's group box frame into the pixmap cache under the key QPixmap::load
    /// looks up first, and returns it; a null pixmap when the file is not there to read.
    static QPixmap PreloadGroupBoxFrame();
};

} // namespace orvelin
