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

// Where what (ASCII) first occurs in text from from on, letter case ignored.
std::size_t findNoCase(std::string_view text, std::string_view what, std::size_t from)
{
    for (std::size_t i = from; i + what.size() <= text.size(); ++i)
        if (equalsNoCaseAscii(text.substr(i, what.size()), what))
            return i;
    return std::string_view::npos;
}

// A folder nothing can go above: "/", "X:\", "\\server\share\" (a UNC share).
bool isRootFolder(std::string_view folder)
{
    if (folder.size() <= 1 || (folder.size() == 3 && hasDriveLetter(folder)))
        return true;
    if (folder.size() > 2 && isSeparator(folder[0]) && isSeparator(folder[1])) {
        const std::size_t server = folder.find_first_of("/\\", 2);
        if (server == std::string_view::npos)
            return true;
        const std::size_t share = folder.find_first_of("/\\", server + 1);
        return share == std::string_view::npos || share + 1 == folder.size();
    }
    return false;
}

// Whether path lies inside folder (which ends with a separator), either separator, any letter case.
bool liesUnder(std::string_view path, std::string_view folder)
{
    if (folder.empty() || path.size() < folder.size())
        return false;
    for (std::size_t i = 0; i < folder.size(); ++i) {
        const char a = path[i];
        const char b = folder[i];
        if (isSeparator(a) && isSeparator(b))
            continue;
        if (std::tolower(static_cast<unsigned char>(a)) != std::tolower(static_cast<unsigned char>(b)))
            return false;
    }
    return true;
}

}  // namespace

MenuPlace MenuPlace::of(std::string_view menuFile, char separator, std::string driveLetter)
{
    MenuPlace place;
    place.separator = separator;
    place.menuFile = withSeparators(menuFile, separator);
    place.playerFolder = std::string(folderPart(place.menuFile));
    place.cdRoot = place.playerFolder;
    if (!isRootFolder(place.playerFolder)) {
        std::string_view folder = place.playerFolder;
        folder.remove_suffix(1);
        place.cdRoot = std::string(folderPart(folder));
    }
    place.driveLetter = std::move(driveLetter);
    return place;
}

std::string expandPlaceholders(std::string_view text, const MenuPlace& place)
{
    if (text.find('[') == std::string_view::npos)
        return std::string(text);
    // "[LECT]:" names the CD's top folder, which on a copy in a folder or on a
    // share is not a drive's root: it becomes that folder's full path, so the
    // scripts written for a CD in a drive work wherever the menu was copied.
    std::string out;
    const std::string_view root = place.cdRoot;
    std::size_t from = 0;
    for (;;) {
        const std::size_t at = findNoCase(text, "[LECT]:", from);
        if (at == std::string_view::npos)
            break;
        out.append(text.substr(from, at - from));
        std::size_t next = at + 7;
        if (next < text.size() && isSeparator(text[next])) {
            out.append(root);
            ++next;
        } else {
            out.append(root.size() > 1 ? root.substr(0, root.size() - 1) : root);
        }
        from = next;
    }
    out.append(text.substr(from));
    out = replaceNoCase(out, "[LECT]", place.driveLetter);
    out = replaceNoCase(out, "[CHEMIN]", place.playerFolder);
    return replaceNoCase(out, "[JOINDRE]", place.cdRoot);
}

std::string resolveMenuPath(std::string_view path, const MenuPlace& place, std::string_view base)
{
    const std::string expanded = expandPlaceholders(path, place);
    std::string_view p = expanded;
    if (p.empty())
        return {};
    // A path on the menu's own drive is taken under the CD's top folder, unless
    // it already lies there (what a placeholder gave): never rooted twice.
    if (hasDriveLetter(p) && !place.driveLetter.empty() && equalsNoCaseAscii(p.substr(0, 1), place.driveLetter) &&
        !liesUnder(p, place.cdRoot)) {
        p.remove_prefix(std::min<std::size_t>(3, p.size()));
        return place.cdRoot + withSeparators(p, place.separator);
    }
    if (isAbsolute(p))
        return withSeparators(p, place.separator);
    return std::string(base) + withSeparators(p, place.separator);
}

}  // namespace qor::player
