#include "core/app/recent_files.h"

#include <algorithm>

#include "core/app/menu_tree.h"
#include "core/text/text_helpers.h"
#include "core/text/utf8.h"

namespace qor {

std::string RecentFiles::caption(const std::string& path)
{
    if (utf8Length(path) < 11)
        return path;
    return leftChars(path, 10) + ".../" + fileNameOf(path);
}

void RecentFiles::rebuild()
{
    paths_.clear();
    std::vector<RecentFileEntry> entries;
    if (!settings_.get(settings::RecentFiles, key(1)).empty()) {
        for (int n = 1; n <= kMaxRecentFiles; ++n) {
            std::string p = settings_.get(settings::RecentFiles, key(n));
            if (p.empty())
                continue;
            entries.push_back({caption(p), p, true});
            paths_.push_back(std::move(p));
        }
    }
    if (entries.empty())
        entries.push_back({kNoRecentFileCaption, "", false});
    view_.showRecentFiles(entries);
}

void RecentFiles::add(const std::string& path)
{
    if (std::find(paths_.begin(), paths_.end(), path) != paths_.end())
        return;
    const int n = int(paths_.size());
    if (n < kMaxRecentFiles) {
        settings_.save(settings::RecentFiles, key(n + 1), path);
    } else {
        for (int k = 1; k < kMaxRecentFiles; ++k)
            settings_.save(settings::RecentFiles, key(k), paths_[std::size_t(k)]);
        settings_.save(settings::RecentFiles, key(kMaxRecentFiles), path);
    }
    rebuild();
}

std::optional<std::string> RecentFiles::pathAt(int position) const
{
    if (position < 1 || position > int(paths_.size()))
        return std::nullopt;
    return paths_[std::size_t(position - 1)];
}

std::vector<std::string> RecentFiles::paths() const
{
    return paths_;
}

}  // namespace qor
