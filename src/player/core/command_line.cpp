#include "player/core/command_line.h"

#include "model/product.h"
#include "player/core/executable_image.h"
#include "player/core/system_port.h"
#include "text/text_helpers.h"

namespace qor::player {

PlayerCommand parseCommand(const std::vector<std::string>& args)
{
    PlayerCommand command;
    for (const std::string& arg : args) {
        if (equalsNoCaseAscii(arg, "infos"))
            command.mode = PlayerCommand::Mode::Infos;
        else if (equalsNoCaseAscii(arg, "auteur"))
            command.mode = PlayerCommand::Mode::Author;
        else if (command.file.empty())
            command.file = arg;
    }
    return command;
}

LoadResult loadMenu(const SystemPort& system, const std::string& file)
{
    std::optional<std::string> bytes = system.readFile(file);
    if (!bytes)
        return LoadFailure{"Impossible de lire le fichier du menu :\r\n" + file};
    // The menu is appended to a player program, whose own code also holds
    // the data's marker texts: only what lies past the program is looked at.
    const std::string_view appended = std::string_view(*bytes).substr(executableImageEnd(*bytes));
    MenuDataResult read = readMenuData(appended);
    if (auto* error = std::get_if<MenuDataError>(&read))
        return LoadFailure{error->message()};
    return std::get<MenuData>(std::move(read));
}

std::string productText()
{
    return "Ce menu a été créé avec QOR " + product::versionText() +
           ", le créateur de menus pour CD.\r\n" + std::string(product::webSite);
}

std::string authorText(const MenuDataInfo& info)
{
    return "Projet : " + info.projectName + "\r\nAuteur : " + info.author;
}

}  // namespace qor::player
