#include "core/app/windows.h"

namespace qor {

const WindowInfo& windowInfo(WindowId id)
{
    static const WindowInfo infos[] = {
        {WindowId::Toolbox, "Form1", "Objets", CloseRule::Refuse},
        {WindowId::Main, "Form2", "", CloseRule::Quit},  // captioned by its load step,
        {WindowId::Worksheet, "Form3", "Feuille de travail", CloseRule::Refuse},
        {WindowId::PropertiesPanel, "Form4", "Paramètres", CloseRule::Refuse},
        {WindowId::ScriptEditor, "Form5", "Code VBS", CloseRule::Hide},
        {WindowId::MousePosition, "Form10", "Position de la souris", CloseRule::Refuse},
        {WindowId::Splash, "frmSplash", "", CloseRule::Close},
        {WindowId::FileInfo, "Form19", "Propriétés", CloseRule::Close},
    };
    return infos[static_cast<int>(id)];
}

}  // namespace qor
