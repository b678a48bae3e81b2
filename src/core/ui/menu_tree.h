#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/ui/commands.h"

namespace qor {

// One entry of the main window's menus.
struct MenuEntry {
    enum class Kind {
        Command,     // a command with an id
        Submenu,     // a caption opening children
        Separator,   // "-"
        RecentFiles, // where the recent files list goes (between its separators)
        Plugins,     // where the plug-in commands go ("Aucun plugin installé" first)
        Languages,   // where one command per installed language goes, after "Français"
    };

    Kind kind = Kind::Command;
    CommandId id{};           // Kind::Command only
    std::string caption;      // "&" marks the access key
    std::string name;         // the control name translation scripts address
    bool checkable = false;   // the option commands carry a check mark
    std::vector<MenuEntry> children;
};

// One of the six menus under the main window's title captions.
struct MainMenu {
    std::string title;        // the title caption: "Fichier" ... "?"
    std::string caption;      // the menu's own caption: "&Fichier" ... "&?"
    std::string name;         // its control name
    std::vector<MenuEntry> entries;
};

// The six menus, in title order 0 to 5.
const std::vector<MainMenu>& mainMenus();

// The caption of a command as its menu shows it, access-key marker included
// ("&Ouvrir"); some dialogs are titled with it.
const std::string& commandCaption(CommandId id);

// The main window tells the captions its menus show once its translation
// script ran ("&Open" in English); commandCaption() gives them from then on.
// An empty map goes back to the built-in French captions.
void showCommandCaptions(std::map<CommandId, std::string> shown);

// The caption of the single entry shown when the recent files list is empty.
inline constexpr const char* kNoRecentFileCaption = "Aucun fichier récent";
// The caption of the "&Divers" menu's placeholder command (position 0).
inline constexpr const char* kNoPluginCaption = "Aucun plugin installé";
// The first entry of the language submenu.
inline constexpr const char* kFrenchCaption = "Français";

}  // namespace qor
