#pragma once

namespace qor {

// The editor's windows that the shell loads, shows, arranges and unloads.
// Their titles, control names and close rules belong to the windows themselves.
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
