#pragma once

#include <string>

namespace orvelin {

/**
 * The program text that "Copy" left for "Paste": shared by all seven program kinds,
 * empty at start and never saved. The main window holds the one of a designer run and
 * hands it to every action editor it opens.
 */
struct ProgramBuffer {
    std::string text;
};

} // namespace orvelin
