#pragma once

#include <string>
#include <string_view>

namespace qor::player {

// Where a menu runs from: the compiled file in "qor/" on the CD, and the CD
// root that holds that folder. Folders end with the separator.
struct MenuPlace {
    std::string menuFile;       // the compiled .exe that holds the data
    std::string playerFolder;   // its folder: "[CHEMIN]"; the data's files lie here
    std::string cdRoot;         // the folder that holds qor/: "[JOINDRE]"
    std::string driveLetter;    // "[LECT]", without colon
    char separator = '/';

    // The place of a menu file. The CD root is the parent of the file's
    // folder (the player stands in qor/ on the CD), or that folder itself
    // when it is a root ("X:\", a UNC share "\\server\share\", "/").
    static MenuPlace of(std::string_view menuFile, char separator, std::string driveLetter);
};

// "[LECT]", "[CHEMIN]" and "[JOINDRE]" replaced, in any letter case, by full
// paths of where the menu is: "[LECT]:\" (or "[LECT]:") is the CD's top folder,
// which is a drive's root only when the menu runs from one; "[LECT]" alone is
// the drive letter ("" on a share).
std::string expandPlaceholders(std::string_view text, const MenuPlace& place);

// A path as a script or the data gives it, made a full path of this system:
// placeholders expanded; a path on the menu's own drive ("D:\dir\file") taken
// under the CD root, so scripts written for a Windows CD work anywhere; a
// relative path taken under base (the CD root for scripts and media names,
// the player's folder for the data's pictures and sounds); "\" and "/" both
// separate. "" stays "".
std::string resolveMenuPath(std::string_view path, const MenuPlace& place, std::string_view base);

}  // namespace qor::player
