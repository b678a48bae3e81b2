#pragma once

#include "core/project/project_file.h"
#include "core/project/project_hooks.h"

namespace qor {

// Hooks that do nothing and never fail: for reading and writing projects
// without an editor around (benchmarks, fuzzing, command-line tools).
class NoProjectHooks : public ProjectHooks {
public:
    void resetViews() override {}
    void setCurrentFolder(const std::string&) override {}
    Status loadBackgroundImage(const std::string&) override { return {}; }
    Status loadButtonImage(int, const std::string&) override { return {}; }
    void buttonCreated(int, const std::string&) override {}
    void textCreated(int) override {}
    void setLoading(bool) override {}
    void showStartupChoice(StartupChoice) override {}
};

// No recent files list and no QMB import.
class NoProjectRoutes : public ProjectRoutes {
public:
    void addRecentFile(const std::string&) override {}
    void importQmb(const std::string&) override {}
};

}  // namespace qor
