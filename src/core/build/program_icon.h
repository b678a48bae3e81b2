#pragma once

#include <string>
#include <string_view>

namespace qor {

// A change to the copied player's resources. Each adds a section at the end
// of the program holding the new data, and points the program's resources at
// it. The program must carry nothing past its sections yet: the menu data is
// appended afterwards.
struct ProgramUpdate {
    std::string program;   // the new bytes, when problem is empty
    std::string problem;   // why the change cannot be made, in French
};

// The player given the CD's icon, so Explorer and the taskbar show the menu's
// own: as many images as the player's own icon has, the first ones of the file.
ProgramUpdate withProgramIcon(std::string_view program, std::string_view icon);

// The player's version information naming the compiled menu, which is what
// Explorer shows of the program: FileDescription and ProductName become the
// title, CompanyName the author; an empty one keeps the player's own.
struct ProgramDetails {
    std::string title;
    std::string author;
};
ProgramUpdate withProgramDetails(std::string_view program, const ProgramDetails& details);

}  // namespace qor
