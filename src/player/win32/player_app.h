#pragma once

#include <string>
#include <vector>

namespace qor::player {

// The player program: compil.exe [FILE] [infos|auteur]. Reads the menu
// (from FILE, or from the data appended to the program itself), shows it
// and returns the exit status when it ends: 0, or 1 after a message box
// when no menu could be read. Arguments are UTF-8, without the program.
int runPlayer(const std::vector<std::string>& arguments);

}  // namespace qor::player
