#pragma once

#include <optional>

#include "core/app/app_state.h"
#include "core/app/appearance_editor.h"
#include "core/app/recent_files.h"
#include "core/app/shell.h"
#include "core/app/shell_view.h"
#include "core/app/user_settings.h"
#include "core/build/build_flows.h"
#include "core/build/local_file_system.h"
#include "core/designer/designer.h"
#include "core/designer/selection.h"
#include "core/ports/qmb_converter.h"
#include "core/project/document_lifecycle.h"
#include "core/project/project_file.h"
#include "core/project/project_hooks.h"
#include "core/project/qmb_import.h"
#include "core/scripting/script_editor_flow.h"
#include "model/menu_project.h"

namespace qor {

// What the platform layer hands the core: the ports and the views.
struct Platform {
    Dialogs& dialogs;
    SettingsStore& settings;
    Desktop& desktop;
    Screen& screen;
    FileTypeRegistry& fileTypes;
    QmbConverter& qmbConverter;
    ShellView& shellView;
    // What a reset or a load shows: pictures, elements, loading flag,
    // startup choice, current folder.
    ProjectHooks& projectViews;
    DocumentView& documentView;
    // The build's screen; without it the build commands do nothing. Its
    // files default to the machine's disks, its baking to none.
    BuildView* buildView = nullptr;
    FileSystem* files = nullptr;
    ButtonBaker* baker = nullptr;
};

// Everything one run of the editor holds, built in dependency order: the
// shared state, the settings, the recent files, the project and its
// lifecycle, the QMB import and the shell. The editor creates one and
// drives it: shell().start(...), shell().run(command, position) ...
class Application {
public:
    explicit Application(Platform platform);
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    Shell& shell() { return shell_; }
    DocumentLifecycle& document() { return lifecycle_; }
    MenuProject& project() { return project_; }
    AppState& state() { return state_; }
    RecentFiles& recentFiles() { return recentFiles_; }
    QmbImport& qmbImport() { return qmb_; }
    Selection& selection() { return selection_; }
    ScriptEditorFlow& scriptEditor() { return scriptEditor_; }
    // Nothing when the platform gave no build view.
    BuildFlows* build() { return build_ ? &*build_ : nullptr; }
    Designer& designer() { return designer_; }
    ShapeFlows& shapeEditor() { return shape_; }
    AppearanceEditor& appearanceEditor() { return appearanceEditor_; }

private:
    // Sends the recent files and the QMB files where they belong.
    class Routes final : public ProjectRoutes {
    public:
        Routes(RecentFiles& recent, QmbImport& qmb) : recent_(recent), qmb_(qmb) {}
        void addRecentFile(const std::string& path) override { recent_.add(path); }
        void importQmb(const std::string& path) override { qmb_.run(path); }

    private:
        RecentFiles& recent_;
        QmbImport& qmb_;
    };

    AppState state_;
    UserSettings settings_;
    RecentFiles recentFiles_;
    MenuProject project_;
    Selection selection_;
    ScriptEditorFlow scriptEditor_;
    // Stands between the project reader and the platform's views.
    Designer designer_;
    ShapeFlows shape_;
    Routes routes_;
    ProjectServices services_;
    DocumentLifecycle lifecycle_;
    QmbImport qmb_;
    Shell shell_;
    AppearanceEditor appearanceEditor_;
    LocalFileSystem localFiles_;
    NoButtonBaker noBaker_;
    std::optional<BuildFlows> build_;
};

}  // namespace qor
