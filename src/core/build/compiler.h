#pragma once

#include <string>

#include "core/build/compile_plan.h"
#include "core/build/compile_request.h"
#include "core/build/compile_view.h"
#include "core/ports/dialogs.h"
#include "core/ports/file_system.h"
#include "model/menu_project.h"

namespace qor {

// What a compilation reads besides the dialog's fields.
struct CompileEnvironment {
    std::string programFolder;      // compil.exe, autorun.ico, install.bat; ends with "/"
    bool requireMediaFile = true;   // "Obliger à configurer un fichier pour chaque bouton multimédia"
};

// The state the build's commands share for the whole run.
struct BuildState {
    // Set false by every compilation at its start, true when a check refuses
    // it or an error ends it. The test run and the export read it afterwards.
    bool compileFailed = false;
};

enum class CompileOutcome {
    Done,
    Refused,    // a check said no (the flag tells which kind)
    Declined,   // the user kept the earlier compilation
    Failed,     // an error once copying had begun
};

// The compilation of the compile dialog: its checks, then the plan's steps,
// shown on the dialog as they go.
class Compiler {
public:
    Compiler(FileSystem& files, Dialogs& dialogs, BuildState& state);

    CompileOutcome compile(const MenuProject& project, CompileRequest request, const CompileEnvironment& env,
                           CompileView& view);

    // The check of every value the compiled data carries, by itself: the
    // commands run it before they bake, so a refused project writes nothing.
    // Refuses (message, flag) or says Done.
    CompileOutcome checkValues(const MenuProject& project, const CompileRequest& request);

private:
    CompileOutcome check(const MenuProject& project, const CompileRequest& request, const CompilePlan& plan,
                         const CompileEnvironment& env);
    CompileOutcome checkMainMenu(const std::string& target);
    CompileOutcome checkSubMenu(const CompileRequest& request, const CompilePlan& plan);
    CompileOutcome refuse(const Message& message, bool setsFlag);
    Status run(const MenuProject& project, const CompileRequest& request, const CompilePlan& plan, CompileView& view);
    Status perform(const CompileAction& action, const MenuProject& project, const CompileRequest& request,
                   CompileView& view);

    FileSystem& files_;
    Dialogs& dialogs_;
    BuildState& state_;
    std::uint64_t done_ = 0;
    std::uint64_t total_ = 0;
};

// Blue, as 0x00BBGGRR: the colour of "Dossier OK. Copie des fichiers :".
inline constexpr Colour kFolderOkColour = 0xFF0000;

}  // namespace qor
