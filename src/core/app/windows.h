#pragma once

#include <string_view>

namespace qor {

// The editor's windows that the shell loads, shows, arranges and unloads.
enum class WindowId {
    Toolbox,          // "Objets"
    Main,             // the main window with the menus
    Worksheet,        // the menu window at its real size
    PropertiesPanel,  // "Paramètres"
    ScriptEditor,     // "Code VBS"
    MousePosition,    // "Position de la souris"
    Splash,
    FileInfo,         // "Propriétés"
};

// What the window's close box does.
enum class CloseRule {
    Refuse,   // tool windows: closing is refused silently, they close with the editor
    Quit,     // the main window: exactly the "&Quitter" command
    Hide,     // the script editor: hidden, stays loaded
    Close,    // closed and unloaded
};

struct WindowInfo {
    WindowId id;
    std::string_view internalName;  // the name its translation script is named after
    std::string_view title;         // the caption it loads with
    CloseRule closeRule;
};

const WindowInfo& windowInfo(WindowId id);

// The windows that start-up loads, in loading order.
inline constexpr WindowId kStartupLoadOrder[] = {
    WindowId::Toolbox, WindowId::Main, WindowId::Worksheet,
    WindowId::PropertiesPanel, WindowId::ScriptEditor, WindowId::MousePosition,
};

// The windows that start-up shows at its end, in showing order.
inline constexpr WindowId kStartupShowOrder[] = {
    WindowId::Main, WindowId::Toolbox, WindowId::Worksheet,
    WindowId::PropertiesPanel, WindowId::MousePosition,
};

}  // namespace qor
