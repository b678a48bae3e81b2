#pragma once

#include <string_view>

namespace qor {

// The editor's windows. Their titles, control names and close rules belong
// to the windows themselves; their internal names, by which translation
// scripts and appearance rules find them, are listed here once.
enum class WindowId {
    Toolbox,          // "Objets"
    Main,             // the main window with the menus
    Worksheet,        // the menu window at its real size
    PropertiesPanel,  // "Paramètres"
    ScriptEditor,     // "Code VBS"
    CompileDialog,    // "Création pour graver"
    About,            // "Crédits"
    MousePosition,    // "Position de la souris"
    Resources,        // "Ressources": the phrase list and the pop-up menus
    Wizard,           // "Assistant création"
    TestRun,          // the test-run watcher
    ShapeSurface,     // the shape editor's drawing surface
    ShapePanel,       // "Forme"
    PrintPreview,     // "Imprimer..."
    FileInfo,         // "Propriétés"
    Splash,
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
    case WindowId::CompileDialog: return "Form6";
    case WindowId::About: return "Form7";
    case WindowId::MousePosition: return "Form10";
    case WindowId::Resources: return "Form13";
    case WindowId::Wizard: return "Form14";
    case WindowId::TestRun: return "Form15";
    case WindowId::ShapeSurface: return "Form16";
    case WindowId::ShapePanel: return "Form17";
    case WindowId::PrintPreview: return "Form18";
    case WindowId::FileInfo: return "Form19";
    case WindowId::Splash: return "Splash";
    }
    return "";
}

}  // namespace qor
