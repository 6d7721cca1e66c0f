#pragma once

#include "programkind.h"

#include <QIcon>

namespace orvelin {

/**
 * The icon of an applet program kind in the " Set Action:" frame, drawn in code so the
 * program folder needs no image files. `hasProgram` adds the mark that tells a
 * program is attached.
 */
QIcon appletMomentIcon(ProgramKind moment, bool hasProgram);

} // namespace orvelin
