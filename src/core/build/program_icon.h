#pragma once

#include <string>
#include <string_view>

namespace qor {

// The copied player given the CD's icon, so Explorer and the taskbar show the
// menu's own: the .ico file's images go into a section added at the end of
// the program, and the program's icon resources are pointed at them (as many
// images as the player's own icon has, the first ones of the file). The
// program must carry nothing past its sections yet: the menu data is
// appended afterwards.
struct ProgramIcon {
    std::string program;   // the new bytes, when problem is empty
    std::string problem;   // why the icon cannot be set, in French
};
ProgramIcon withProgramIcon(std::string_view program, std::string_view icon);

}  // namespace qor
