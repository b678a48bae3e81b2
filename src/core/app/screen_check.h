#pragma once

#include <optional>

#include "core/app/app_state.h"
#include "core/ports/dialogs.h"
#include "core/ports/screen.h"

namespace qor {

// The screen check of start-up: a screen 640 pixels wide is refused; one
// exactly 800 wide gets a 640 x 480 menu; any other width 800 x 600.
// Returns the default menu size in twips, or nothing when the screen is refused.
std::optional<TwipsSize> defaultMenuSizeFor(const ScreenMetrics& screen);

// The message that refuses a 640-pixel screen.
Message screenTooSmallMessage();

}  // namespace qor
