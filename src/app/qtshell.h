#pragma once

#include "shell.h"

namespace orvelin {

/// The desktop shell on Qt: the desktop's default program for a document, and a
/// detached process for a chosen program.
class QtShell : public Shell {
public:
    bool openDocument(const std::string& path) override;
    bool startProgram(const std::string& program,
                      const std::vector<std::string>& arguments) override;
};

} // namespace orvelin
