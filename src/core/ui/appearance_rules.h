#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "core/ui/appearances_file.h"
#include "core/ui/control_tree.h"

namespace qor {

// Controls with this tag keep their design colours under every appearance.
inline constexpr const char* kKeepDesignTag = "N_DESIGN";

// Colours a window and its controls: the window and every control that is
// not an entry field take windowBack, fields (names beginning "Text") take
// fieldBack, every control the text colour and the font; every control
// leaves the tab order. A property a control lacks is skipped.
void applyAppearance(ControlNode& window, const Appearance& appearance);

// The same rules for controls a window builds after it took its appearance:
// the window and its other controls are left as they are.
void applyAppearanceToControls(const std::vector<std::unique_ptr<ControlNode>>& controls,
                               const Appearance& appearance);

// The appearance a window takes as it loads, or nothing for the windows that
// keep their design colours or are coloured with the four main windows.
std::optional<Appearance> windowAppearance(std::string_view windowName, const Appearance& current);

}  // namespace qor
