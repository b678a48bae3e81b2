#pragma once

#include <string>
#include <vector>

#include "core/ports/file_system.h"
#include "model/menu_data_layout.h"
#include "model/menu_project.h"

namespace qor {

// The web menu the launcher opens: the page and, beside it, one folder with
// the browser player, the menu's data and its pictures and sounds.
inline constexpr const char* kWebPageName = "qor_menu2.htm";
inline constexpr const char* kWebFolderName = "qor_menu2";
// The browser player's files in the program folder, under web/.
inline constexpr const char* kWebPlayerFiles[] = {"qor_player.js", "front.js"};
inline constexpr const char* kWebPageTemplate = "page.htm";

// menu.js: the data file's name and the bytes of every file the player
// reads, base64-coded, so the page needs no fetch of a local file.
std::string webMenuScript(const std::string& dataName,
                          const std::vector<std::pair<std::string, std::string>>& files);

// Whether the browser player reads a file's bytes (the data, pictures) or
// only points the browser at it (sounds, videos, documents).
bool embeddedInWebMenu(const std::string& name);

// Writes the page and its folder into pageFolder (ending with a separator),
// the page holding the window as the player first shows it (size,
// background, buttons) so it paints before any script is read,
// from the project's files (transparent buttons already baked) and the
// player staged under programFolder + "web/".
Status writeWebMenu(FileSystem& files, const MenuProject& project, const MenuDataInfo& info,
                    const std::string& pageFolder, const std::string& programFolder);

}  // namespace qor
