#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/project_layout.h"

namespace qor {

// What the compiled menu data carries besides the project: the two texts
// typed in the compile dialog.
struct MenuDataInfo {
    std::string projectName;
    std::string author;

    friend bool operator==(const MenuDataInfo&, const MenuDataInfo&) = default;
};

namespace menu_data_layout {

using project_layout::Field;

// The data is one line appended to a copy of the menu player: "(debut)¬",
// the logical lines joined by "¬", then CR LF. The player finds it by the
// last logical line, a marker that both the editor and the players know.
inline constexpr std::string_view kStart = "(debut)\u00AC";
inline constexpr std::string_view kSeparator = "\u00AC";
inline constexpr std::string_view kEndMarker = "(fin des données QOR)";
inline constexpr std::string_view kHeaderPrefix = "FICHIER DAT COMPATIBLE QOR V";

// A transparent button's images are the baked copies beside the originals.
inline constexpr std::string_view kTransparentSuffix = "_transp.bmp";

// The row of a project table that stores a given field.
constexpr const Field<MenuProject>& row(std::span<const Field<MenuProject>> fields, std::string_view name)
{
    for (const auto& f : fields)
        if (f.name == name)
            return f;
    throw "no such row";  // a compile-time error in a constant expression
}

inline constexpr Field<MenuDataInfo> kInfoFields[] = {
    {.name = "projectName", .member = &MenuDataInfo::projectName},
    {.name = "author", .member = &MenuDataInfo::author},
};

// A line of the data's "[Général]" block: a row of the project file's own
// block, or one of the compile dialog's texts where the project file keeps
// the icon and a reserved line.
struct GeneralRow {
    const Field<MenuProject>* project = nullptr;
    const Field<MenuDataInfo>* info = nullptr;
};

inline constexpr GeneralRow kGeneralRows[] = {
    {&row(project_layout::kGeneralFields, "backgroundImage")},
    {&row(project_layout::kGeneralFields, "width")},
    {&row(project_layout::kGeneralFields, "height")},
    {&row(project_layout::kGeneralFields, "border")},
    {nullptr, &kInfoFields[0]},
    {nullptr, &kInfoFields[1]},
    {&row(project_layout::kGeneralFields, "backgroundMusic")},
};

// The other blocks are the project file's, with every path as its bare file
// name: "[ParamsPlus]", "[Autre]", then "[Bouton]" (always with the lines
// of file version 1.1) and "[Texte]" records, then the shape block without
// its comment line.

}  // namespace menu_data_layout
}  // namespace qor
