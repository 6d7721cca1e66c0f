#pragma once

#include "desktopintegration.h"

namespace orvelin {

/// The freedesktop tools run as programs, waiting for each to finish.
class QtDesktopTools : public DesktopTools {
public:
    Result run(const std::string& program, const std::vector<std::string>& arguments) override;
};

} // namespace orvelin
