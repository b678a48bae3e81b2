#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The script assistant's pop-up menus as data: the window builds them from
// these tables and hands back the name (and index) of the entry chosen.

struct AssistantEntry {
    std::string caption;
    // The control name: for an entry that writes a statement, the name of
    // its generator. Members of an indexed family share one name and carry
    // their value in index (-1 for an entry alone with its name).
    std::string name;
    int index = -1;
    std::vector<AssistantEntry> children;
};

inline constexpr std::string_view kAssistantMenuCaption = "Assistant VBS";
inline constexpr std::string_view kCursorMenuCaption = "#Curseur#";
// The entry that closes the menu and does nothing else.
inline constexpr std::string_view kAssistantCancelName = "annuler";
// The cursor entry whose pointer is a picture file the user names.
inline constexpr int kCustomCursor = 99;

// "Assistant VBS": messages, sub-menus, the internet, files, the CD drive,
// sounds and videos, then the window, the screen, the timer, text boxes and
// buttons, and "Annuler" last.
const std::vector<AssistantEntry>& assistantMenu();

// "#Curseur#": the cursors the menu player knows, each carrying its number.
const std::vector<AssistantEntry>& cursorMenu();

}  // namespace qor
