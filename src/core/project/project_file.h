#pragma once

#include <string>
#include <string_view>

#include "core/ports/dialogs.h"
#include "core/project/menu_project.h"
#include "core/project/project_hooks.h"

namespace qor {

class Phrases;

// What loading and saving reach outside the model: the user (read and save
// errors), the interface language (the save error and the reset's icon
// marker) and the editor's hooks.
struct ProjectServices {
    Dialogs& dialogs;
    const Phrases& phrases;
    ProjectHooks& hooks;
};

// True when path ends in "qmb", any case: such a file goes to the QMB import.
bool isQmbPath(std::string_view path);

// Resets the model (icon marker in the current language) and the views.
void resetProject(MenuProject& project, ProjectServices& services);

// Loads the project file at path. A QMB path is handed to the QMB import
// instead. With resetFirst the project is reset before reading (every
// caller in the editor asks for it); otherwise the file is read on top.
// The folder of path becomes the current folder first. At the end filePath
// is path and path enters the recent files.
//
// Failures ask the read-error question (ProjectReader). No clears the
// loading flag and resets the project, leaving filePath empty. A file that
// cannot be read at all is not adopted: Yes then leaves the project as it
// is, without filePath and without a recent entry, so that a later save
// cannot overwrite a file the editor could not read.
void loadProject(MenuProject& project, const std::string& path, bool resetFirst,
                 ProjectServices& services);

// The part of loadProject that follows reading the file: the decoded text
// read onto the project, then filePath and the recent files, or the reset
// when the user gives up. For callers that hold the text already.
void loadProjectText(MenuProject& project, std::string_view text, const std::string& path,
                     ProjectServices& services);

// Saves the project to path. The file is built whole in memory and then
// replaces the old one at once: a failed save leaves the previous file as
// it was. A failure shows the save-error message and empties filePath.
// Saving under a path other than filePath makes it filePath and loads the
// project again from it, so that bare file names now refer to its folder.
// The path then enters the recent files.
void saveProject(MenuProject& project, const std::string& path, ProjectServices& services);

// "Erreur pendant l'enregistrement ! (" + error text + ")", title "Erreur !"
// (phrases 19 and 7), error icon.
Message saveErrorMessage(const Error& error, const Phrases& phrases);

}  // namespace qor
