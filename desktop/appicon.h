#pragma once

#include <QIcon>

namespace orvelin {

/// The application icon of the programs' windows, from icons.qrc. Sizes stop at 128
/// pixels: X servers refuse a window-icon property as large as a 256-pixel one.
inline QIcon AppIcon() {
    QIcon icon;
    for (int size : {16, 32, 48, 64, 128})
        icon.addFile(QStringLiteral(":/icons/orvelin-%1.png").arg(size));
    return icon;
}

} // namespace orvelin
