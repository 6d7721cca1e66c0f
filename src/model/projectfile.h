#pragma once

#include "projectmodel.h"
#include "userinterface.h"

#include <optional>
#include <string>
#include <vector>

namespace orvelin {

/// The current project file header, "Orvelin Project 1.0  Beta 6".
std::string projectHeader();

/// The whole text of a project file for `model` (CR LF line ends).
std::string projectText(const ProjectModel& model, ProgressView* progress = nullptr);

/**
 * Writes the model to `path`, replacing the file safely, with progress per button.
 * On success `Saved` is set. On failure the error message is shown, `Saved` stays as
 * it was and the previous file is untouched. The caller keeps the file name and the
 * recent-files list.
 */
bool SaveProject(ProjectModel& model, const std::string& path, UserInterface& ui);

/// Where a read stopped: the button being read (0 before the first) and why.
struct LoadError {
    int button = 0;
    std::string cause; ///< as the designer names it: "Input past end of file", "Overflow"...
};

/// What a reader found besides the project itself; the caller decides what to show
/// (see ShowLoadResult).
struct LoadResult {
    std::optional<LoadError> error; ///< none when the file was read to its end
    bool earlierVersion = false;    ///< the header names an earlier version of the format
    /// One line per place where characters a field cannot hold were removed, such as
    /// "Button 3: FontUP, URL".
    std::vector<std::string> cleaned;
    bool loaded() const { return !error; }
};

/**
 * Reads a project file into the model. When the file was read to its end, `Saved` is
 * true and `ProjectFileName` is `path`. On an error the buttons read completely so far
 * are kept; a button count below 0 or beyond the table (102) keeps none. `AppletName`
 * keeps its value: the reader takes it from field 15 of the applet line, which the
 * writer never produces. `CurrentButton` is left at 0; showing the loaded project
 * (messages, controls, design surface, caption, recent files) is the caller's part.
 */
LoadResult LoadProject(ProjectModel& model, const std::string& path,
                       ProgressView* progress = nullptr);

/**
 * Reads the legacy INI-style project format (section "Buttons"). Fields that format
 * lacks keep their values; labels are taken as stored. Errors as for LoadProject.
 */
LoadResult LoadProject_OLD(ProjectModel& model, const std::string& path,
                           ProgressView* progress = nullptr);

} // namespace orvelin
