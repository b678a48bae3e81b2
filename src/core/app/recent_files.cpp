#include "core/app/recent_files.h"

#include "core/ui/menu_tree.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {

std::string RecentFiles::caption(const std::string& path)
{
    if (utf8Length(path) < 11)
        return path;
    return leftChars(path, 10) + ".../" + fileNameOf(path);
}

void RecentFiles::rebuild()
{
    shown_.clear();
    std::vector<RecentFileEntry> entries;
    if (!settings_.get(settings::RecentFiles, key(1)).empty()) {
        for (int n = 1; n <= kMaxRecentFiles; ++n) {
            std::string p = settings_.get(settings::RecentFiles, key(n));
            if (p.empty())
                continue;
            entries.push_back({n, caption(p), p, true});
            shown_.emplace_back(n, std::move(p));
        }
    }
    if (entries.empty())
        entries.push_back({0, kNoRecentFileCaption, "", false});
    view_.showRecentFiles(entries);
}

void RecentFiles::add(const std::string& path)
{
    for (const auto& entry : shown_)
        if (entry.second == path)
            return;
    const int n = int(shown_.size());
    if (n < kMaxRecentFiles) {
        settings_.save(settings::RecentFiles, key(n + 1), path);
    } else {
        for (int k = 1; k < kMaxRecentFiles; ++k)
            settings_.save(settings::RecentFiles, key(k), shown_[std::size_t(k)].second);
        settings_.save(settings::RecentFiles, key(kMaxRecentFiles), path);
    }
    rebuild();
}

std::optional<std::string> RecentFiles::pathAt(int position) const
{
    for (const auto& entry : shown_)
        if (entry.first == position)
            return entry.second;
    return std::nullopt;
}

std::vector<std::string> RecentFiles::paths() const
{
    std::vector<std::string> out;
    for (const auto& entry : shown_)
        out.push_back(entry.second);
    return out;
}

}  // namespace qor
