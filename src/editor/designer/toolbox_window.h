#pragma once

#include "core/ports/screen.h"
#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QPushButton;

namespace qor {

// The toolbox "Objets" ("Form1"): three framed groups of commands that
// create buttons and text boxes and open the shape tools; each command is
// handed to the designer's one dispatch point.
class ToolboxWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit ToolboxWindow(const ScreenMetrics& screen, WindowHooks& hooks = WindowHooks::none());

    // The commands in the order "Multimédia", "Quitter", "Code VBS", "Créer",
    // "Editeur", "Transparence".
    QPushButton* command(int i) const { return commands_[i]; }
    static constexpr int kCommandCount = 6;

private:
    QPushButton* commands_[kCommandCount] = {};
};

}  // namespace qor
