#include "player/core/menu_place.h"

#include <cctype>

#include "text/text_helpers.h"

namespace qor::player {
namespace {

bool isSeparator(char c) { return c == '/' || c == '\\'; }

std::string withSeparators(std::string_view path, char separator)
{
    std::string out(path);
    for (char& c : out)
        if (isSeparator(c))
            c = separator;
    return out;
}

// "X:\..." or "X:/...", and "X:" alone.
bool hasDriveLetter(std::string_view path)
{
    return path.size() >= 2 && std::isalpha(static_cast<unsigned char>(path[0])) && path[1] == ':' &&
           (path.size() == 2 || isSeparator(path[2]));
}

bool isAbsolute(std::string_view path)
{
    return (!path.empty() && isSeparator(path[0])) || hasDriveLetter(path);
}

// The folder part of a path, separator included; "" when it has none.
std::string_view folderPart(std::string_view path)
{
    const std::size_t cut = path.find_last_of("/\\");
    return cut == std::string_view::npos ? std::string_view() : path.substr(0, cut + 1);
}

}  // namespace

MenuPlace MenuPlace::of(std::string_view menuFile, char separator, std::string driveLetter)
{
    MenuPlace place;
    place.separator = separator;
    place.menuFile = withSeparators(menuFile, separator);
    place.playerFolder = std::string(folderPart(place.menuFile));
    std::string_view folder = place.playerFolder;
    if (folder.size() > 1)
        folder.remove_suffix(1);
    place.cdRoot = std::string(folderPart(folder));
    if (place.cdRoot.empty())
        place.cdRoot = place.playerFolder;
    place.driveLetter = std::move(driveLetter);
    return place;
}

std::string expandPlaceholders(std::string_view text, const MenuPlace& place)
{
    if (text.find('[') == std::string_view::npos)
        return std::string(text);
    std::string out = replaceNoCase(text, "[LECT]", place.driveLetter);
    out = replaceNoCase(out, "[CHEMIN]", place.playerFolder);
    return replaceNoCase(out, "[JOINDRE]", place.cdRoot);
}

std::string resolveMenuPath(std::string_view path, const MenuPlace& place, std::string_view base)
{
    const std::string expanded = expandPlaceholders(path, place);
    std::string_view p = expanded;
    if (p.empty())
        return {};
    if (hasDriveLetter(p) && !place.driveLetter.empty() && equalsNoCaseAscii(p.substr(0, 1), place.driveLetter)) {
        p.remove_prefix(std::min<std::size_t>(3, p.size()));
        return place.cdRoot + withSeparators(p, place.separator);
    }
    if (isAbsolute(p))
        return withSeparators(p, place.separator);
    return std::string(base) + withSeparators(p, place.separator);
}

}  // namespace qor::player
