#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "model/menu_data_reader.h"

namespace qor::player {

class SystemPort;

// qorplayer [FILE] [infos|auteur]
struct PlayerCommand {
    enum class Mode { Show, Infos, Author };
    std::string file;          // "" for the player's own executable
    Mode mode = Mode::Show;
};

// The words after the program's name.
PlayerCommand parseCommand(const std::vector<std::string>& args);

// A menu that reads, or the French text saying why none does.
struct LoadFailure {
    std::string message;
};
using LoadResult = std::variant<MenuData, LoadFailure>;

LoadResult loadMenu(const SystemPort& system, const std::string& file);

// The boxes of "infos" and "auteur" (also the context menu's "A propos...").
inline constexpr std::string_view kAboutTitle = "A propos...";
std::string productText();
std::string authorText(const MenuDataInfo& info);

// Title of the box that says no menu could be shown.
inline constexpr std::string_view kLoadErrorTitle = "Erreur !";

}  // namespace qor::player
