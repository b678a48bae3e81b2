#pragma once

#include <string>
#include <string_view>

namespace qor {

// The entries of the properties panel's element selector. The panel reads
// the number and the kind of an element back out of its entry, so every
// place that adds entries builds them here.

// Entry 0: the menu window itself.
inline constexpr std::string_view kWorksheetEntry = "Feuille de travail";

// "Bouton " & number & " (" & kind & ")", for example "Bouton 3 (code)".
std::string buttonEntry(int number, std::string_view kind);

// "Texte " & number, for example "Texte 2".
std::string textEntry(int number);

}  // namespace qor
