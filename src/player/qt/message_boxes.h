#pragma once

#include <QWidget>

#include <optional>
#include <string>

#include "player/core/player_view.h"

namespace qor::player {

// MsgBox's buttons number as a message box: the button set (0 OK ... 5
// Retry/Cancel), the icon (16 critical, 32 question, 48 exclamation, 64
// information) and the default button (256, 512); the answer is the number
// of the button chosen (vbOK = 1 ... vbNo = 7).
int showMessageBox(QWidget* parent, const MessageRequest& request);

std::optional<std::string> showInputBox(QWidget* parent, const script::InputBoxRequest& request);

}  // namespace qor::player
