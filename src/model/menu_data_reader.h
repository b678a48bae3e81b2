#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "model/menu_data_layout.h"
#include "model/menu_project.h"

namespace qor {

// A menu as a player reads it from its compiled data: the project (buttons
// and text boxes numbered 1, 2, 3 ... in data order, paths as the bare names
// of the files beside the player) and the compile dialog's two texts.
struct MenuData {
    MenuProject project;
    MenuDataInfo info;
};

// Why no menu could be read.
struct MenuDataError {
    enum class Kind {
        NoData,    // nothing is appended: the file does not end with the data
        Damaged,   // data is there but does not read whole and valid
    };
    Kind kind = Kind::NoData;
    int logicalLine = 0;    // Damaged: the logical line (1-based) that failed, 0 when none
    std::string reason;     // Damaged: what was wrong with it

    // The French text a player shows.
    std::string message() const;
};

using MenuDataResult = std::variant<MenuData, MenuDataError>;

// The compiled data line inside a file's bytes (a compiled player, or any
// file), without its final CR LF: the last line of the file, from the first
// "(debut)¬" of that line at which a whole valid menu reads up to the end
// marker. The marker texts also stand inside a player's own code, so neither
// the first nor the last occurrence in the file can be trusted by itself.
// Nothing when the file does not end with the end marker line.
std::optional<std::size_t> findMenuData(std::string_view fileBytes);

// Reads the menu of a compiled file (bytes in Windows-1252).
MenuDataResult readMenuData(std::string_view fileBytes);

// Reads one data line (UTF-8, from "(debut)¬" to the end marker, no CR LF).
MenuDataResult parseMenuDataLine(std::string_view line);

}  // namespace qor
