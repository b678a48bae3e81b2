#pragma once

#include <string>
#include <string_view>

#include "model/menu_data_layout.h"
#include "model/menu_project.h"

namespace qor {

// The compiled menu data that a menu player reads, built in two steps as
// the build writes it through an intermediate file.

// Step one: the logical lines in their order (UTF-8), each ended by CR LF.
// Files are named by their bare names (they are copied beside the player);
// a transparent button names the "_transp.bmp" copies of its images.
std::string menuDataLines(const MenuProject& project, const MenuDataInfo& info);

// Step two: the text of step one, read back, made the one line appended to
// the player: "(debut)¬" + the lines joined by "¬" + CR LF.
std::string menuDataLine(std::string_view linesText);

// Both steps, in Windows-1252: the bytes appended to the player.
std::string menuDataBytes(const MenuProject& project, const MenuDataInfo& info);

}  // namespace qor
