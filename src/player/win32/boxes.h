#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "player/core/player_view.h"

namespace qor::player {

// MsgBox: the script's buttons number is the system's own message box
// style (buttons, icon, default button, system-modal), and the answer
// numbers are the same too.
int showMessageBox(HWND owner, const MessageRequest& request);

// InputBox: prompt, text field, "OK" and "Annuler"; nothing when cancelled.
// The box, its controls and its font at the density factor of the menu's
// screen (1 at 96 dpi).
std::optional<std::string> showInputBox(HWND owner, const script::InputBoxRequest& request, double density = 1);

}  // namespace qor::player
