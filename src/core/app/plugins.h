#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/app/app_state.h"
#include "core/app/shell_view.h"
#include "core/ports/desktop.h"
#include "core/ports/dialogs.h"
#include "text/error.h"

namespace qor {

inline constexpr const char* kPluginsFileName = "plugins.ini";
inline constexpr const char* kPluginsStartLine = "[DEBUT]";

// What "plugins.ini" lists.
struct PluginList {
    std::vector<PluginCommand> commands;   // in file order
    bool started = false;                  // a line "[DEBUT]" was found
    // Set when a caption line has no command line after it (error 62); the
    // commands before it are kept.
    std::optional<Error> error;
};

// Everything up to the first line that is exactly "[DEBUT]" is free text;
// after it, lines pair up as caption and command text.
PluginList readPluginLines(const std::vector<std::string>& lines);

// The "&Divers" menu's plug-in commands.
class Plugins {
public:
    Plugins(AppState& state, ShellView& view, Dialogs& dialogs, Desktop& desktop)
        : state_(state), view_(view), dialogs_(dialogs), desktop_(desktop) {}

    // Reads "plugins.ini" from the program folder and fills the menu. Without
    // the file the menu keeps only "Aucun plugin installé"; with "[DEBUT]" the
    // placeholder is hidden, even when no pair follows. An unpaired last line
    // (or an unreadable file) is returned for the load step to report.
    Status load();

    // Runs the command at a menu position; 0 is the placeholder. The verb is
    // the first two characters (any case), the argument follows a one-character
    // separator: "s1" starts a program, "mb" shows a message ("¤" breaks
    // lines), "se" opens with the default application, "sh" the same hidden,
    // "cl" opens the appearance panel; another verb does nothing.
    void run(int position);

    const std::vector<PluginCommand>& commands() const { return commands_; }

private:
    void fail();

    AppState& state_;
    ShellView& view_;
    Dialogs& dialogs_;
    Desktop& desktop_;
    std::vector<PluginCommand> commands_;
};

}  // namespace qor
