#pragma once

#include <string>
#include <string_view>

namespace orvelin {

/**
 * Finds the folder that holds the program's own data files (Orvel.ini, help, language
 * files, the applet files, the player), in this order: `chosen` (the command line's
 * --program-dir), ORVELIN_PROGRAM_DIR, the executable's folder when it holds
 * Orvel.ini, <executable folder>/../share/orvelin. The program looks once at start
 * and hands the folder to what needs it.
 */
std::string findProgramFolder(std::string_view chosen = {});

/// The running program's own path ("" when it cannot be found).
std::string executablePath();

/// Whether the program runs from its build folder (its own folder holds Orvel.ini)
/// rather than from an installed copy.
bool runFromBuildFolder();

/// `folder` joined with `name`; either may use "/" or "\".
std::string joinPath(std::string_view folder, std::string_view name);

/// Everything up to and including the last "/" or "\" of `path` ("" without one).
std::string folderOf(std::string_view path);

/// The absolute folder of a project file ("" for a project without a file).
std::string projectFolderOf(std::string_view projectFileName);

/**
 * The file that an image or sound path stored in a project names, or "" when there is
 * no such file. "\" counts as "/" (projects made on Windows); an absolute path stands
 * as it is; a relative one is looked for in `projectFolder` first (see ProjectFolderOf),
 * then in the current folder. The design window and publishing both find files here.
 */
std::string resolveStoredPath(std::string_view stored, std::string_view projectFolder);

/**
 * Where the program writes its own files (AppletTemp, the Global section):
 * `programFolder` when it is writable, else the same place under the per-user data
 * folder (~/.local/share/Orvelin, or $XDG_DATA_HOME/Orvelin).
 */
std::string writableProgramFolder(const std::string& programFolder);

} // namespace orvelin
