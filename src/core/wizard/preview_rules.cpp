#include "core/wizard/preview_rules.h"

namespace qor {

std::optional<ButtonState> previewStateAfter(ButtonState shown, PreviewEvent event, bool buttonHeld)
{
    switch (event) {
    case PreviewEvent::Moved:
        if (buttonHeld || shown == ButtonState::Hover)
            return std::nullopt;
        return ButtonState::Hover;
    case PreviewEvent::Pressed: return ButtonState::Pressed;
    case PreviewEvent::Released: return ButtonState::Normal;
    case PreviewEvent::Left:
        if (shown == ButtonState::Normal)
            return std::nullopt;
        return ButtonState::Normal;
    }
    return std::nullopt;
}

}  // namespace qor
