#include "desktopintegration.h"

#include "programfolder.h"
#include "settings.h"
#include "textfile.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace fs = std::filesystem;

namespace orvelin {

namespace {

struct Tool {
    const char* program;
    const char* package;
};
constexpr Tool kXdgMime{"xdg-mime", "xdg-utils"};
constexpr Tool kUpdateMime{"update-mime-database", "shared-mime-info"};
constexpr Tool kUpdateDesktop{"update-desktop-database", "desktop-file-utils"};

// Empty when the tool did its job, else a sentence that says what to install or why
// it failed.
std::string run(DesktopTools& tools, const Tool& tool, const std::vector<std::string>& args) {
    const DesktopTools::Result result = tools.run(tool.program, args);
    if (!result.started)
        return std::string(tool.program) + " is not installed (install the package " +
               tool.package + ")";
    if (result.status == 0)
        return {};
    std::string reason =
        std::string(tool.program) + " failed (exit status " + std::to_string(result.status) + ")";
    const std::string firstLine = result.errors.substr(0, result.errors.find('\n'));
    if (!firstLine.empty())
        reason += ": " + firstLine;
    return reason;
}

std::string readWhole(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return in ? text.str() : std::string();
}

// Desktop entries quote arguments with blanks or reserved characters, and inside the
// quotes escape ", `, $ and \.
std::string quoteExec(const std::string& path) {
    if (path.find_first_of(" \t\"'\\><~|&;$*?#()`") == std::string::npos)
        return path;
    std::string quoted = "\"";
    for (char c : path) {
        if (c == '"' || c == '`' || c == '$' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

std::string writeFile(const fs::path& path, const std::string& content) {
    std::error_code ec;
    fs::create_directories(path.parent_path(), ec);
    if (!writeFileAtomically(path.string(), content))
        return path.string() + " cannot be written";
    return {};
}

std::string copyFile(const fs::path& from, const fs::path& to) {
    std::error_code ec;
    if (!fs::is_regular_file(from, ec))
        return from.string() + " is missing from the program folder";
    return writeFile(to, readWhole(from));
}

fs::path desktopFolder(const DesktopPlaces& places) {
    return fs::path(places.programFolder) / "desktop";
}

} // namespace

DesktopPlaces currentDesktopPlaces(const std::string& programFolder) {
    DesktopPlaces places;
    const char* dataHome = std::getenv("XDG_DATA_HOME");
    const char* home = std::getenv("HOME");
    places.dataHome =
        dataHome && *dataHome ? std::string(dataHome) : joinPath(home ? home : ".", ".local/share");
    places.executable = executablePath();
    places.programFolder = programFolder;
    return places;
}

StartupOffers decideStartupOffers(const Settings& settings, bool runFromBuildFolder,
                                  std::optional<bool> associated) {
    StartupOffers offers;
    offers.shortCut = runFromBuildFolder && settings.value(SettingKey::ShortCut) == "none";
    offers.associate = associated.has_value() && !*associated &&
                       settings.value(SettingKey::DontAskToAssociate) != "1";
    return offers;
}

std::optional<bool> isAssociated(DesktopTools& tools) {
    const DesktopTools::Result result =
        tools.run(kXdgMime.program, {"query", "default", kProjectMimeType});
    if (!result.started || result.status != 0)
        return std::nullopt;
    return result.output.substr(0, result.output.find_last_not_of(" \r\n") + 1) == kDesktopId;
}

std::string userDesktopEntry(std::string_view installedEntry, const std::string& executable,
                             const std::string& icon) {
    std::string entry;
    std::size_t start = 0;
    while (start < installedEntry.size()) {
        std::size_t end = installedEntry.find('\n', start);
        if (end == std::string_view::npos)
            end = installedEntry.size();
        const std::string_view line = installedEntry.substr(start, end - start);
        if (line.starts_with("Exec="))
            entry += "Exec=" + quoteExec(executable) + " %f";
        else if (line.starts_with("TryExec="))
            entry += "TryExec=" + executable;
        else if (line.starts_with("Icon="))
            entry += "Icon=" + icon;
        else
            entry += line;
        entry += '\n';
        start = end + 1;
    }
    return entry;
}

std::string addToApplicationsMenu(DesktopTools& tools, const DesktopPlaces& places) {
    const fs::path installed = desktopFolder(places) / kDesktopId;
    const std::string template_ = readWhole(installed);
    if (template_.empty())
        return installed.string() + " is missing from the program folder";
    const fs::path applications = fs::path(places.dataHome) / "applications";
    const std::string icon = (desktopFolder(places) / "orvelin.svg").string();
    if (std::string error = writeFile(applications / kDesktopId,
                                      userDesktopEntry(template_, places.executable, icon));
        !error.empty())
        return error;
    return run(tools, kUpdateDesktop, {applications.string()});
}

std::string registerFileType(DesktopTools& tools, const DesktopPlaces& places) {
    const fs::path data(places.dataHome);
    std::string error = addToApplicationsMenu(tools, places);
    if (error.empty())
        error = copyFile(desktopFolder(places) / "orvelin.xml", data / "mime/packages/orvelin.xml");
    if (error.empty())
        error =
            copyFile(desktopFolder(places) / "application-x-orvelin-project.svg",
                     data / "icons/hicolor/scalable/mimetypes/application-x-orvelin-project.svg");
    if (error.empty())
        error = run(tools, kUpdateMime, {(data / "mime").string()});
    if (error.empty())
        error = run(tools, kXdgMime, {"default", kDesktopId, kProjectMimeType});
    return error;
}

} // namespace orvelin
