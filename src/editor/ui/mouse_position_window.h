#pragma once

#include <QString>

#include <array>
#include <string>

#include "editor/ui/tool_window.h"
#include "editor/ui/window_hooks.h"

class QLabel;

namespace qor {

// "Position de la souris" ("Form10"): four read-outs in two rows, the
// pointer's position over the worksheet in twips (top) and in pixels
// (bottom). The worksheet writes them; the user cannot close the window.
class MousePositionWindow : public ToolWindow {
    Q_OBJECT
public:
    explicit MousePositionWindow(WindowHooks& hooks = WindowHooks::none());

    // Texts of the read-outs: x and y in twips, then x and y in pixels.
    void setReadouts(const std::array<std::string, 4>& texts);
    QString readout(int i) const;

private:
    std::array<QLabel*, 4> labels_{};
};

}  // namespace qor
