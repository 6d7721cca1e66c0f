#pragma once

#include <QIcon>

namespace orvelin {

/// The four applet moments an action program can be attached to.
enum class AppletMoment { Start, Over, Down, Out };

/**
 * The icon of an applet moment in the " Set Action:" frame, drawn in code so the
 * program folder needs no image files. `hasProgram` adds the mark that tells a
 * program is attached.
 */
QIcon appletMomentIcon(AppletMoment moment, bool hasProgram);

} // namespace orvelin
