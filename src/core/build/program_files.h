#pragma once

#include <span>
#include <string_view>

namespace qor {

// The files of the program folder that a build copies or starts.
namespace program_files {
inline constexpr std::string_view player = "compil.exe";        // the Windows menu player copied to the CD
inline constexpr std::string_view linuxPlayer = "qorplayer";    // the menu player a test run starts here
inline constexpr std::string_view icon = "autorun.ico";         // the default CD icon
inline constexpr std::string_view installer = "install.bat";    // tells the user nothing needs installing

// The runtime files a player needs beside it. Our players need none, so on
// this platform the list is empty and "Ne pas copier les fichiers
// 'RUNTIME'" changes nothing.
inline constexpr std::span<const std::string_view> runtime{};

// A runtime file that stays when a copy exists already: it may be locked by
// an earlier menu that still runs.
inline constexpr std::string_view keptIfPresent = "Msscript.ocx";
}  // namespace program_files

// The folders a build writes.
inline constexpr std::string_view kQorFolder = "qor";
inline constexpr std::string_view kTestFolder = "tmp";

}  // namespace qor
