#pragma once

#include <optional>

#include "core/wizard/wizard_button.h"

namespace qor {

// What the pointer does over a button's preview.
enum class PreviewEvent {
    Moved,     // moves over the picture
    Pressed,   // a mouse button goes down on it
    Released,  // the mouse button comes up
    Left,      // the pointer is over the frame around the picture
};

// The picture the preview draws next, from the state it drew last (its
// tag): hover while the pointer moves with no button held, pressed while a
// button is held, normal again on release or when the pointer leaves.
// Nothing when the picture shown stays. Text and graphic previews alike.
std::optional<ButtonState> previewStateAfter(ButtonState shown, PreviewEvent event, bool buttonHeld);

}  // namespace qor
