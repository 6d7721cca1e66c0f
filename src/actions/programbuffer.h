#pragma once

#include <string>

namespace orvelin {

/**
 * The program text that "Copy" left for "Paste": one for the whole run of the
 * designer, shared by all seven program kinds, empty at start and never saved.
 */
std::string& ProgramBuffer();

} // namespace orvelin
