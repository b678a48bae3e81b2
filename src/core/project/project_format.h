#pragma once

#include <string>
#include <string_view>

namespace qor {

// The fixed texts of the project file. The file is positional: a fixed
// number of lines follows each section header, in a fixed order.
namespace project_format {

inline constexpr std::string_view format = "[Format]";
inline constexpr std::string_view author = "[Auteur]";
inline constexpr std::string_view general = "[Général]";
inline constexpr std::string_view paramsPlus = "[ParamsPlus]";
inline constexpr std::string_view other = "[Autre]";
inline constexpr std::string_view button = "[Bouton]";
inline constexpr std::string_view text = "[Texte]";

// "[Général]" lines 3 and 4 of a full-screen menu.
inline constexpr std::string_view fullScreenWidth = "plein";
inline constexpr std::string_view fullScreenHeight = "ecran";

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

// "'para" + n, as the writer fills reserved lines.
std::string placeholderLine(int n);

}  // namespace project_format
}  // namespace qor
