#pragma once

#include <string>

#include "model/menu_project.h"
#include "model/relative_path_rule.h"

namespace qor {

// The whole project file as text (UTF-8, every line ended by CR LF), laid
// out line for line as the reader expects it. File paths go through paths.
std::string projectFileText(const MenuProject& project, const RelativePathRule& paths);

// The same, as the bytes of the file (Windows-1252).
std::string projectFileBytes(const MenuProject& project, const RelativePathRule& paths);

}  // namespace qor
