#pragma once

#include <optional>
#include <string>

#include "core/designer/designer_view.h"
#include "core/designer/selection.h"
#include "core/ports/button_baker.h"
#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "core/project/project_hooks.h"
#include "core/scripting/script_editor_flow.h"
#include "core/ui/phrases.h"
#include "model/menu_project.h"
#include "core/ui/file_filters.h"

namespace qor {

// What the designer's flows reach: the project and the selection, the
// ports, the views that show pictures (the project hooks) and the rest of
// the worksheet and panel (the designer view), the script editor, and the
// option that shows the selection handles.
struct DesignerPorts {
    Dialogs& dialogs;
    Screen& screen;
    const Phrases& phrases;
    ProjectHooks& pictures;
    ScriptEditorFlow& scriptEditor;
    // "Afficher les points délimitant les objets", as the options menu has it.
    const bool& showHandles;
};

struct DesignerContext {
    MenuProject& project;
    Selection& selection;
    DesignerPorts ports;
    DesignerView* view;
    // The button panel's fields, which outlive the button they showed.
    ButtonFields buttonFields;
    // Set while a project is read: the startup list does not react then.
    bool loading = false;
    // Bakes transparent buttons ("Aperçu rapide"); none until the worksheet can.
    ButtonBaker* baker = nullptr;

    DesignerView& v() { return *view; }
    ScreenMetrics screen() { return ports.screen.metrics(); }
};

// The image dialog of the panels: the image filter, the current folder.
// Cancelled: nothing. A chosen file that does not exist gives "".
std::optional<std::string> askImage(Dialogs& dialogs, const std::string& title);

// A file dialog that stores whatever path it returns.
std::optional<std::string> askFile(Dialogs& dialogs, const std::string& title, const std::string& filter);


// True when path names an existing file.
bool fileExists(const std::string& path);

}  // namespace qor
