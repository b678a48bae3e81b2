#pragma once

#include <string>
#include <string_view>

#include "player/core/menu_place.h"
#include "player/core/system_port.h"
#include "script/host.h"

namespace qor::player {

// How a WScript.Shell Run command is carried out.
struct ShellTarget {
    enum class Kind {
        Address,    // web or mail address: the desktop opens it
        Explore,    // "explorer X": the folder or document X with the desktop
        SubMenu,    // a compiled menu (.exe with menu data): a new player
        Program,    // any other .exe or a program name: started
        Document,   // an existing file: its program opens it
    };
    Kind kind = Kind::Program;
    std::string target;       // resolved path or address
    std::string arguments;    // Program only
    friend bool operator==(const ShellTarget&, const ShellTarget&) = default;
};

// Reads a command as scripts write it: quotes around the whole, around the
// program or around explorer's argument; placeholders; Windows paths on the
// menu's drive.
ShellTarget classifyCommand(std::string_view command, const MenuPlace& place, const SystemPort& system);

// Run: starts what the command names. A file that is not there raises
// "Fichier introuvable" (53); an address nothing opens is left silent.
script::HostResult runCommand(std::string_view command, const MenuPlace& place, SystemPort& system);

}  // namespace qor::player
