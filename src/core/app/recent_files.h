#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/app/shell_view.h"
#include "core/app/user_settings.h"

namespace qor {

inline constexpr int kMaxRecentFiles = 5;

// The recent files list: at most five paths under "FichiersRecents",
// "Fichier1" the oldest. The menu shows them in that order.
class RecentFiles {
public:
    RecentFiles(UserSettings& settings, ShellView& view) : settings_(settings), view_(view) {}

    // The caption of a path: the path itself when shorter than 11 characters,
    // else its first ten characters, ".../" and its file name.
    static std::string caption(const std::string& path);

    // Reads the list from the store and shows it: "Aucun fichier récent",
    // disabled, when "Fichier1" is empty.
    void rebuild();

    // Adds a path (an opened or saved project). A path already listed stays
    // where it is; a sixth path drops the oldest.
    void add(const std::string& path);

    // The path of command n of the list, the one that shows "Fichier" + n.
    std::optional<std::string> pathAt(int position) const;

    // The paths listed, oldest first.
    std::vector<std::string> paths() const;

private:
    std::string key(int n) const { return "Fichier" + std::to_string(n); }

    UserSettings& settings_;
    ShellView& view_;
    // The commands shown: the store's position n (1 to 5) and its path.
    std::vector<std::pair<int, std::string>> shown_;
};

}  // namespace qor
