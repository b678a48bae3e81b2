#include "core/ui/languages.h"

#include <algorithm>

#include "core/ui/menu_tree.h"

namespace qor {

std::vector<std::string> installedLanguages(const std::filesystem::path& programFolder)
{
    std::vector<std::string> names;
    std::error_code ec;
    for (std::filesystem::directory_iterator it(programFolder / kLanguagesFolderName, ec), end;
         !ec && it != end; it.increment(ec)) {
        std::error_code typeError;
        if (it->is_directory(typeError))
            names.push_back(it->path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

LanguageMenu languageMenu(const std::vector<std::string>& languages, const std::string& current)
{
    LanguageMenu menu;
    menu.captions.push_back(kFrenchCaption);
    for (const auto& l : languages) {
        if (!current.empty() && l == current && menu.checked == 0)
            menu.checked = int(menu.captions.size());
        menu.captions.push_back(l);
    }
    return menu;
}

std::optional<std::string> languageOfItem(const LanguageMenu& menu, int item)
{
    if (item < 0 || item >= int(menu.captions.size()))
        return std::nullopt;
    return item == 0 ? std::string() : menu.captions[std::size_t(item)];
}

Message languageChangedMessage(const Phrases& phrases)
{
    return Message{phrases.text(43, "Langue modifiée, veuillez redémarrer QOR."),
                   commandCaption(CommandId::ChooseLanguage), MessageIcon::Information};
}

}  // namespace qor
