#pragma once

#include <string>

#include "core/project/menu_project.h"
#include "core/project/project_file.h"
#include "core/ui/phrases.h"
#include "fake_dialogs.h"
#include "fake_project_hooks.h"

namespace qor::test {

// A project with fakes for everything loading and saving reach.
struct ProjectEnv {
    MenuProject project;
    FakeDialogs dialogs;
    Phrases phrases;
    FakeProjectHooks hooks;
    ProjectServices services{dialogs, phrases, hooks};

    void load(const std::string& path) { loadProject(project, path, true, services); }
    void save(const std::string& path) { saveProject(project, path, services); }
};

// A file of tests/data/projects.
inline std::string projectData(const std::string& name)
{
    return std::string(QOR_TEST_DATA_DIR) + "/projects/" + name;
}

}  // namespace qor::test
