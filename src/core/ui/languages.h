#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/ui/appearances_file.h"
#include "core/ui/phrases.h"

namespace qor {

inline constexpr const char* kLanguagesFolderName = "langues";

// The installed interface languages: the names of the folders under
// "langues/" in the program folder, in name order. None when it is missing.
std::vector<std::string> installedLanguages(const std::filesystem::path& programFolder);

// The "Langue/Language" submenu: "Français" then one item per language; the
// item named like the current language is checked, "Français" otherwise.
struct LanguageMenu {
    std::vector<std::string> captions;
    int checked = 0;

    friend bool operator==(const LanguageMenu&, const LanguageMenu&) = default;
};
LanguageMenu languageMenu(const std::vector<std::string>& languages, const std::string& current);

// The language setting that choosing item n stores: "" for "Français" (item
// 0), the item's caption otherwise; nothing for an item that does not exist.
std::optional<std::string> languageOfItem(const LanguageMenu& menu, int item);

// Shown after a choice, titled with the submenu's caption; the change takes
// effect at the next start.
Message languageChangedMessage(const Phrases& phrases);

}  // namespace qor
