#include "core/build/headless_project.h"

#include "core/project/no_project_hooks.h"
#include "core/project/project_file.h"
#include "core/ui/phrases.h"

namespace qor {

bool loadProjectWithoutViews(MenuProject& project, const std::string& path, Dialogs& dialogs)
{
    NoProjectHooks hooks;
    NoProjectRoutes routes;
    Phrases french;
    ProjectServices services{dialogs, french, hooks, routes};
    loadProject(project, path, true, services);
    // A project that could not be read keeps no file path.
    return !project.filePath.empty();
}

}  // namespace qor
