#include "programfolder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace fs = std::filesystem;

namespace orvelin {

namespace {

bool isSeparator(char c) {
    return c == '/' || c == '\\';
}

std::string environmentText(const char* name) {
    const char* value = std::getenv(name);
    return value ? std::string(value) : std::string();
}

fs::path executableFolder() {
    std::error_code ec;
    const fs::path exe = fs::read_symlink("/proc/self/exe", ec);
    if (ec)
        return {};
    return exe.parent_path();
}

/// A stored path with "\" read as "/".
fs::path withSlashes(std::string_view path) {
    std::string out(path);
    std::replace(out.begin(), out.end(), '\\', '/');
    return out;
}

bool isWritableFolder(const std::string& folder) {
    std::error_code ec;
    return !folder.empty() && fs::is_directory(folder, ec) &&
           ::access(folder.c_str(), W_OK | X_OK) == 0;
}

} // namespace

std::string findProgramFolder(std::string_view chosen) {
    if (!chosen.empty())
        return std::string(chosen);
    if (std::string fromEnvironment = environmentText("ORVELIN_PROGRAM_DIR");
        !fromEnvironment.empty())
        return fromEnvironment;

    const fs::path exeFolder = executableFolder();
    if (exeFolder.empty())
        return {};
    std::error_code ec;
    // The build tree copies data/ next to the executables, so a folder that holds
    // Orvel.ini is a complete program folder; an installed program keeps its data
    // under share/.
    if (fs::is_regular_file(exeFolder / "Orvel.ini", ec))
        return exeFolder.string();
    return (exeFolder.parent_path() / "share" / "orvelin").string();
}

std::string executablePath() {
    std::error_code ec;
    return fs::read_symlink("/proc/self/exe", ec).string();
}

bool runFromBuildFolder() {
    std::error_code ec;
    const fs::path exeFolder = executableFolder();
    return !exeFolder.empty() && fs::is_regular_file(exeFolder / "Orvel.ini", ec);
}

std::string joinPath(std::string_view folder, std::string_view name) {
    // Names written for Windows ("\AppletTemp", "help\help.htm") name the same
    // places here, so a leading separator is dropped and "\" inside counts as "/".
    while (!name.empty() && isSeparator(name.front()))
        name.remove_prefix(1);
    std::string joined(folder);
    if (!joined.empty() && !isSeparator(joined.back()) && !name.empty())
        joined += '/';
    for (char c : name)
        joined += c == '\\' ? '/' : c;
    return joined;
}

std::string folderOf(std::string_view path) {
    const std::size_t last = path.find_last_of("/\\");
    if (last == std::string_view::npos)
        return {};
    return std::string(path.substr(0, last + 1));
}

std::string projectFolderOf(std::string_view projectFileName) {
    if (projectFileName.empty())
        return {};
    std::error_code ec;
    const fs::path file = fs::absolute(withSlashes(projectFileName), ec);
    return ec ? std::string() : file.parent_path().lexically_normal().string();
}

std::string resolveStoredPath(std::string_view stored, std::string_view projectFolder) {
    if (stored.empty())
        return {};
    const fs::path path = withSlashes(stored);
    std::error_code ec;
    if (path.is_absolute())
        return fs::is_regular_file(path, ec) ? path.string() : std::string();
    if (!projectFolder.empty()) {
        const fs::path beside = fs::path(projectFolder) / path;
        if (fs::is_regular_file(beside, ec))
            return beside.string();
    }
    const fs::path here = fs::absolute(path, ec);
    return !ec && fs::is_regular_file(here, ec) ? here.string() : std::string();
}

std::string writableProgramFolder(const std::string& programFolder) {
    if (isWritableFolder(programFolder))
        return programFolder;

    std::string base = environmentText("XDG_DATA_HOME");
    if (base.empty()) {
        const std::string home = environmentText("HOME");
        base = joinPath(home.empty() ? std::string(".") : home, ".local/share");
    }
    const std::string folder = joinPath(base, "Orvelin");
    // Callers write into it next, so make sure it exists; a failure shows up as the
    // caller's own write error with its message.
    std::error_code ec;
    fs::create_directories(folder, ec);
    return folder;
}

} // namespace orvelin
