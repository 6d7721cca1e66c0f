#pragma once

#include "projectmodel.h"
#include "userinterface.h"

#include <string>

namespace orvelin {

/// The current project file header, "Orvelin Project 1.0  Beta 6".
std::string ProjectHeader();

/// The whole text of a project file for `model` (CR LF line ends).
std::string ProjectText(const ProjectModel& model, UserInterface* progress = nullptr);

/**
 * Writes the model to `path`, replacing the file safely, with progress per button.
 * On success `Saved` is set. On failure the error message is shown, `Saved` stays as
 * it was and the previous file is untouched. The caller keeps the file name and the
 * recent-files list.
 */
bool SaveProject(ProjectModel& model, const std::string& path, UserInterface& ui);

/**
 * Reads a project file into the model. Returns true when the file was read to its
 * end (then `Saved` is true and `ProjectFileName` is `path`). On an error the buttons
 * read completely so far are kept and "Error loading project." is shown with the
 * cause; a button count below 0 or beyond the table (102) keeps none. `AppletName`
 * keeps its value: the reader takes it from field 15 of the applet line, which the
 * writer never produces. `CurrentButton` is left at 0; showing the loaded project
 * (controls, design surface, caption, recent files) is the caller's part.
 */
bool LoadProject(ProjectModel& model, const std::string& path, UserInterface& ui);

/**
 * Reads the legacy INI-style project format (section "Buttons"). Fields that format
 * lacks keep their values; labels are taken as stored. Errors as for LoadProject.
 */
bool LoadProject_OLD(ProjectModel& model, const std::string& path, UserInterface& ui);

} // namespace orvelin
