#pragma once

#include "core/ui/windows.h"

namespace qor {

// The windows that start-up loads, in loading order.
inline constexpr WindowId kStartupLoadOrder[] = {
    WindowId::Toolbox, WindowId::Main, WindowId::Worksheet,
    WindowId::PropertiesPanel, WindowId::ScriptEditor, WindowId::MousePosition,
};

// The windows that take an appearance together, in this order.
inline constexpr WindowId kMainAppearanceOrder[] = {
    WindowId::Toolbox, WindowId::Main, WindowId::PropertiesPanel, WindowId::MousePosition,
};

// The windows that start-up shows at its end, in showing order.
inline constexpr WindowId kStartupShowOrder[] = {
    WindowId::Main, WindowId::Toolbox, WindowId::Worksheet,
    WindowId::PropertiesPanel, WindowId::MousePosition,
};

}  // namespace qor
