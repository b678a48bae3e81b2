#pragma once

#include <string>
#include <string_view>

#include "core/ports/dialogs.h"
#include "core/project/project_hooks.h"
#include "model/menu_project.h"
#include "text/error.h"

namespace qor {

class Phrases;

// Where loading and saving send what is not the views' business.
class ProjectRoutes {
public:
    virtual ~ProjectRoutes() = default;
    // Puts path at the top of the recent files list.
    virtual void addRecentFile(const std::string& path) = 0;
    // Hands a QMB file to the QMB import, which converts and loads it.
    virtual void importQmb(const std::string& path) = 0;
};

// What loading and saving reach outside the model: the user (read and save
// errors), the interface language (the save error and the reset's icon
// marker), the views and the routes.
struct ProjectServices {
    Dialogs& dialogs;
    const Phrases& phrases;
    ProjectHooks& hooks;
    ProjectRoutes& routes;
};

// The marker a reset gives the icon: "(" + phrase 24 + ")".
std::string defaultIconMarker(const Phrases& phrases);

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
// Failures ask the read-error question (readErrorMessage). No clears the
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

// The read-error question, always in French: "Erreur d'ouverture !", Yes/No,
// error icon, six lines: the error's text and number, the last line read by
// the main loop ("Paragraphe"), the last value line read ("Ligne suivante"),
// an empty line, "Continuer le chargement ?".
Message readErrorMessage(const Error& error, std::string_view paragraph, std::string_view valueLine);

// "Erreur pendant l'enregistrement ! (" + error text + ")", title "Erreur !"
// (phrases 19 and 7), error icon.
Message saveErrorMessage(const Error& error, const Phrases& phrases);

}  // namespace qor
