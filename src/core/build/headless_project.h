#pragma once

#include <string>

#include "core/ports/dialogs.h"
#include "model/menu_project.h"

namespace qor {

// Loads a project file with no editor around: read errors go to dialogs
// like the editor's read-error question. False when the project could not
// be read (or its reading was given up).
bool loadProjectWithoutViews(MenuProject& project, const std::string& path, Dialogs& dialogs);

}  // namespace qor
