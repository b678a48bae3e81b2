#pragma once

#include <string>
#include <vector>

#include "core/ports/file_system.h"
#include "model/menu_project.h"

namespace qor {

// The page that opens the menu's web page "qor_menu2.htm" in a pop-up
// centred on the screen, sized like the menu window.
inline constexpr const char* kHtmlLauncherName = "index.htm";

// H and W of the page: pixels from the size in twips (15 per pixel), up to
// 15 significant digits, or the screen's size for a full-screen menu.
std::string launcherHeight(const MenuProject& project);
std::string launcherWidth(const MenuProject& project);

// The page's thirteen lines.
std::vector<std::string> htmlLauncherLines(const MenuProject& project);

// The answer to "rep ?" used as typed: "d:/web" names "d:/webindex.htm".
std::string htmlLauncherPath(const std::string& answer);

// Writes the page (Windows-1252, CR LF) to path.
Status writeHtmlLauncher(FileSystem& files, const MenuProject& project, const std::string& path);

}  // namespace qor
