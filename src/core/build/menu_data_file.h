#pragma once

#include <string>

#include "core/ports/file_system.h"
#include "model/menu_data_layout.h"
#include "model/menu_project.h"

namespace qor {

// Appends the compiled menu data to the player copy at player. The logical
// lines go through an intermediate file of a unique name in the system's
// temporary folder, read back and joined into the one appended line; that
// file is removed whatever happens. The player's own bytes stay as they are.
Status writeMenuData(FileSystem& files, const MenuProject& project, const MenuDataInfo& info,
                     const std::string& player);

}  // namespace qor
