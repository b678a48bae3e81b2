#pragma once

#include <string>

#include "core/app/app_state.h"
#include "core/app/main_window_flows.h"
#include "core/app/option_commands.h"
#include "core/app/plugins.h"
#include "core/app/recent_files.h"
#include "core/app/shell_view.h"
#include "core/app/user_settings.h"
#include "core/build/build_commands.h"
#include "core/ports/desktop.h"
#include "core/ports/dialogs.h"
#include "core/ports/file_type_registry.h"
#include "core/ports/screen.h"
#include "core/ports/settings_store.h"
#include "core/project/document.h"
#include "core/ui/commands.h"

namespace qor {

// The ports the shell reaches the outside through.
struct AppPorts {
    Dialogs& dialogs;
    SettingsStore& settings;
    Desktop& desktop;
    Screen& screen;
    FileTypeRegistry& fileTypes;
};

// What the platform tells start-up.
struct StartupInputs {
    std::string executablePath;   // the editor's executable, full path
    std::string arguments;        // the command line's argument text (see joinArguments)
    StartFacts facts;             // this start's time and date texts
};

enum class StartOutcome {
    Running,  // the windows are shown: run the event loop
    Quit,     // maintenance mode ran, or the screen was refused: end now
};

// The application shell: start-up, the one dispatch point of the main
// window's commands, and quitting. It owns the main window's flows, the
// options and the plug-ins; the project's commands go to the Document.
class Shell {
public:
    Shell(AppState& state, AppPorts ports, ShellView& view, UserSettings& settings, RecentFiles& recentFiles,
          Document& document);

    // The start-up routine, from the command line to the windows shown.
    StartOutcome start(const StartupInputs& inputs);

    // Where the build commands go; without them they do nothing.
    void setBuild(BuildCommands* build) { build_ = build; }

    // The properties panel became the active window. The first time, the
    // project named on the command line is loaded; later activations do nothing.
    void propertiesPanelActivated();

    // Runs a command of the menus. position is the entry's place in its list
    // for the list commands: recent files 1 to 5, plug-ins (0 = "Aucun plugin
    // installé"), languages (0 = "Français"). Commands of later parts do
    // nothing yet.
    void run(CommandId command, int position = 0);

    // "&Quitter" and the main window's close box. True when the editor ends:
    // every window is then hidden and unloaded.
    bool quit();

    // Colours the toolbox, the main window, the properties panel and the
    // mouse-position window, in this order.
    void applyAppearance(const Appearance& appearance);

    AppState& state() { return state_; }
    MainWindowFlows& mainWindow() { return mainWindow_; }
    OptionCommands& options() { return options_; }
    RecentFiles& recentFiles() { return recentFiles_; }
    Plugins& plugins() { return plugins_; }

private:
    void chooseLanguage(int item);
    void runBuild(CommandId command);
    void writeFirstRunFiles();

    AppState& state_;
    AppPorts ports_;
    ShellView& view_;
    UserSettings& settings_;
    RecentFiles& recentFiles_;
    Document& document_;
    OptionCommands options_;
    Plugins plugins_;
    MainWindowFlows mainWindow_;
    bool startupProjectHandled_ = false;
    BuildCommands* build_ = nullptr;
};

// Shown when start-up cannot write the default "apparences.ini".
Message appearancesNotSavedMessage(const Error& error);

// Shown when quitting while the creation wizard is open.
Message closeWizardFirstMessage(const Phrases& phrases);

}  // namespace qor
