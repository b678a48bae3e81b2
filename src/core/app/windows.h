#pragma once

#include <string_view>

namespace qor {

// The editor's windows that the shell loads, shows, arranges and unloads.
// Their titles, control names and close rules belong to the windows
// themselves; their internal names, by which translation scripts and
// appearance rules find them, are listed here once.
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

// "Form1" ...: the window's internal name.
constexpr std::string_view windowName(WindowId id)
{
    switch (id) {
    case WindowId::Toolbox: return "Form1";
    case WindowId::Main: return "Form2";
    case WindowId::Worksheet: return "Form3";
    case WindowId::PropertiesPanel: return "Form4";
    case WindowId::ScriptEditor: return "Form5";
    case WindowId::MousePosition: return "Form10";
    case WindowId::FileInfo: return "Form19";
    case WindowId::Splash: return "Splash";
    }
    return "";
}

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
