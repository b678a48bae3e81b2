#pragma once

#include <QStringList>

#include <functional>

namespace qor::player {

class MenuWindow;

// The player program: qorplayer [FILE] [infos|auteur]. Reads the menu
// (from FILE, or from the program's own file), shows it and returns the
// exit status when it ends: 0, or 1 with a message box when no menu could
// be read. shown, when given, is called once the window is on screen.
int runPlayer(const QStringList& arguments, const std::function<void(MenuWindow&)>& shown = {});

}  // namespace qor::player
