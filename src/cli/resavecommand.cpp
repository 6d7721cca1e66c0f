#include "arguments.h"
#include "commands.h"
#include "consoleuserinterface.h"
#include "editor.h"
#include "projectfile.h"
#include "projectmodel.h"

#include <ostream>

namespace orvelin::cli {

const char* const kResaveUsage =
    "  orvelin-cli resave IN OUT [--legacy]\n"
    "      Loads the project file IN as the designer opens it and saves it as OUT\n"
    "      in the current project format, as the designer's save command does\n"
    "      (an earlier version's project is converted). With --legacy, IN is read\n"
    "      as an old INI-style project. A failed save leaves an existing OUT as it\n"
    "      was.\n";

int runResave(const std::vector<std::string>& args, std::ostream& /*out*/, std::ostream& err) {
    const std::optional<Arguments> parsed =
        parseCommandLine({"resave",
                          kResaveUsage,
                          2,
                          "give the project file to read and the one to write",
                          {},
                          {"--legacy"}},
                         args, err);
    if (!parsed)
        return kExitUsage;

    ConsoleUserInterface ui(err);
    ProjectModel model;
    const std::string& in = parsed->positional[0];
    if (!showLoadResult(parsed->has("--legacy") ? LoadProject_OLD(model, in, &ui)
                                                : LoadProject(model, in, &ui),
                        ui))
        return kExitFailed;
    return SaveProject(model, parsed->positional[1], ui) ? kExitOk : kExitFailed;
}

} // namespace orvelin::cli
