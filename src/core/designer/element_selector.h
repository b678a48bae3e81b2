#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The entries of the properties panel's element selector. The panel reads
// the number and the kind of an element back out of its entry, so every
// place that adds entries builds them here and every place that reads them
// parses them here.

// Entry 0: the menu window itself.
inline constexpr std::string_view kWorksheetEntry = "Feuille de travail";

// "Bouton " & number & " (" & kind & ")", for example "Bouton 3 (code)".
std::string buttonEntry(int number, std::string_view kind);

// "Texte " & number, for example "Texte 2".
std::string textEntry(int number);

// What an entry stands for, read back from its text alone.
enum class EntryKind { Worksheet, Button, Text, Other };

// Which sub-panel a button entry asks for, told by its last two characters.
enum class ButtonPanelKind { None, Media, Code };

struct ParsedEntry {
    EntryKind kind = EntryKind::Other;
    int number = -1;
    ButtonPanelKind subPanel = ButtonPanelKind::None;

    friend bool operator==(const ParsedEntry&, const ParsedEntry&) = default;
};

// Reads an entry back. A button's number is the whole-number value of the
// three characters from the 8th on, read as far as they form a number
// ("7 (" gives 7, "42 " gives 42); its sub-panel comes from "o)" (vidéo),
// "e)" (code), anything else none. A text's number is what follows "Texte ".
// The words are compared without regard to case.
ParsedEntry parseEntry(std::string_view entry);

// The entry a deletion removes: the first one that begins with prefix
// ("Bouton " or "Texte ") and whose first prefix + digits characters equal
// prefix & number. The walk stops at the first match, so "Bouton 1" finds
// button 1 before button 12 (entries stand in creation order). -1 when none.
int entryToRemove(const std::vector<std::string>& entries, std::string_view prefix, int number);

}  // namespace qor
