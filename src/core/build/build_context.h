#pragma once

#include <string>

#include "core/build/build_view.h"
#include "core/build/compiler.h"
#include "core/ports/button_baker.h"
#include "core/ports/dialogs.h"
#include "core/ports/file_system.h"
#include "core/ui/phrases.h"
#include "model/menu_project.h"

namespace qor {

// The ports the build's commands reach the outside through.
struct BuildPorts {
    Dialogs& dialogs;
    FileSystem& files;
    ButtonBaker& baker;
    BuildView& view;
};

// The shared state the commands read when they run (start-up fills it in
// later than the commands are built, hence references).
struct BuildSettings {
    const std::string& programFolder;   // ends with "/"
    const Phrases& phrases;
    const bool& requireMediaFile;
    std::string untitled;               // the title of boxes that name none
};

// Everything one build command works with.
struct BuildContext {
    const MenuProject& project;
    BuildPorts ports;
    BuildSettings settings;
    BuildState& state;
    Compiler& compiler;

    CompileEnvironment environment() const { return {settings.programFolder, settings.requireMediaFile}; }
    // A hidden main-menu compilation into target.
    CompileOutcome compileHidden(const CompileRequest& request)
    {
        HiddenCompileView hidden;
        return compiler.compile(project, request, environment(), hidden);
    }
};

}  // namespace qor
