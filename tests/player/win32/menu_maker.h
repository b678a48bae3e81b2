#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "model/menu_project.h"

namespace qor::test {

// A 24-bit Windows bitmap of one colour (0xRRGGBB).
std::string solidBitmap(int width, int height, std::uint32_t rgb);

// An uncompressed AVI video of one colour: frames of width x height at 10 a second.
std::string solidVideo(int width, int height, int frames, std::uint32_t rgb);

// A menu as compilation leaves it: the Windows player with the project's
// data appended (caption as its project name), as folder/qor/<name>, and the files beside it. Returns the
// player's path. The player is the one the test run names in QOR_COMPIL_EXE.
std::string makeMenu(const std::string& folder, const MenuProject& project, const std::string& caption,
                     const std::map<std::string, std::string>& files, const std::string& name = "autorun.exe");

// The player with nothing appended, copied as folder/qor/<name>.
std::string copyBarePlayer(const std::string& folder, const std::string& name);

}  // namespace qor::test
