#pragma once

class QWidget;

namespace orvelin {

/**
 * Gives the controls of `window` the names a screen reader speaks ("X", "Label
 * position Y", "Font colour", "On Applet Start program"), looked up by the window's and
 * the control's objectName, and makes each caption label (`lblX`) the buddy of the
 * field it names. Called once a window has all its controls; a name already set stays.
 */
void nameControls(QWidget& window);

} // namespace orvelin
