#include "programbuffer.h"

namespace orvelin {

std::string& ProgramBuffer() {
    static std::string buffer;
    return buffer;
}

} // namespace orvelin
