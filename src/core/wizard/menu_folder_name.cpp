#include "core/wizard/menu_folder_name.h"

#include <array>

#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

constexpr std::size_t kMaxNameBytes = 255;
constexpr std::string_view kForbidden = "\\/:*?\"<>|";
constexpr std::array<std::string_view, 4> kDevices = {"CON", "PRN", "AUX", "NUL"};

Error refused(std::string_view why)
{
    return makeError(err::PathFileAccess, "Nom de dossier impossible (" + std::string(why) + ")");
}

bool isDeviceName(std::string_view name)
{
    // The part before the first dot counts: "con.txt" is the device too.
    const std::string stem = toUpperText(name.substr(0, name.find('.')));
    for (auto d : kDevices)
        if (stem == d)
            return true;
    return stem.size() == 4 && (stem.starts_with("COM") || stem.starts_with("LPT")) && stem[3] >= '1' &&
           stem[3] <= '9';
}

}  // namespace

Status checkMenuFolderName(std::string_view name)
{
    if (name.empty() || name == "." || name == "..")
        return refused("vide ou réservé");
    if (name.size() > kMaxNameBytes)
        return refused("trop long");
    for (unsigned char c : name)
        if (c < 0x20 || kForbidden.find(char(c)) != std::string_view::npos)
            return refused("caractère interdit");
    if (name.front() == '.' || name.back() == '.' || name.back() == ' ')
        return refused("point ou espace au bord");
    if (isDeviceName(name))
        return refused("nom de périphérique");
    if (!isValidUtf8(name))
        return refused("caractère hors Windows-1252");
    for (std::size_t pos = 0; pos < name.size();)
        if (cp1252ByteOf(nextCodePoint(name, pos)) < 0)
            return refused("caractère hors Windows-1252");
    return {};
}

}  // namespace qor
