#pragma once

#include <string>
#include <vector>

namespace orvelin {

/// The desktop shell: open a document with its default program, or start a program.
class Shell {
public:
    virtual ~Shell() = default;
    /// Opens `path` with the program the desktop associates with it; false on failure.
    virtual bool openDocument(const std::string& path) = 0;
    /// Starts `program` detached with `arguments`; false when it cannot be started.
    virtual bool startProgram(const std::string& program,
                              const std::vector<std::string>& arguments) = 0;
};

} // namespace orvelin
