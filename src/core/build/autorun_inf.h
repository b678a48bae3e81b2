#pragma once

#include <string>
#include <vector>

namespace qor {

// The file name at the root of the CD that starts the menu when the CD goes in.
inline constexpr const char* kAutorunInfName = "Autorun.inf";

// Its lines: the player and icon in qor/, and the CD's context menu entries
// "&Installer QOR", "&Qu'est-ce que QOR ?" and "&A propos de QOR...".
const std::vector<std::string>& autorunInfLines();

// The same as written: Windows-1252, every line ended by CR LF.
std::string autorunInfBytes();

}  // namespace qor
