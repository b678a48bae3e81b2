#pragma once

#include <string>
#include <string_view>

namespace qor {

// The fixed texts of the project file. The file is positional: a fixed
// number of lines follows each section header, in a fixed order.
namespace project_format {

// The section headers and the lines of each section are the field tables
// of model/project_layout.h.

// The line before the shape block.
inline constexpr std::string_view shapeComment =
    "Gestion de la forme du menu, les formes peuvent être importées/exportées";

// The prefix that marks the startup script in startupAction.
inline constexpr std::string_view scriptPrefix = "VBS:";

// This editor writes file version 1.1; a file without one is 1.0.
inline constexpr std::string_view fileVersion = "1.1";
// From this version on, a button block has its hover script, transparency
// and a reserved line.
inline constexpr double firstVersionWithButtonExtras = 1.1;

// The three comment lines at the top of the file.
std::string preambleLine1();   // "FICHIER .QOR - COMPATIBLE QOR V2.0 ET +"
std::string preambleLine2();   // "Pour télécharger QOR allez sur " + web address
std::string preambleLine3();   // "Envoyez-nous vos critiques à " + e-mail + " Merci."

// "[Format]" lines 2 to 4.
inline constexpr std::string_view editorLine = "Editeur=QOR";
std::string versionLine();     // "Version=2.0.<revision>"
inline constexpr std::string_view fileVersionKey = "Fichier=";

// The two closing comment lines, which say which editor wrote the file.
inline constexpr std::string_view trailerLine1 = "Fichier de projet écrit par QOR, éditeur de menus autorun";
inline constexpr std::string_view trailerLine2 = "Fin du fichier";

// A reserved line that holds no value: it begins with "'para" (any case)
// and is longer than that. Readers of a placeholder-aware line keep the
// field as it was.
bool isPlaceholderLine(std::string_view line);

}  // namespace project_format
}  // namespace qor
