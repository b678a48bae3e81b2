#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "core/ports/dialogs.h"
#include "text/error.h"

namespace qor {

// A colour scheme for the editor's own windows.
struct Appearance {
    Colour windowBack = 0;   // window background, and every control that is not a field
    Colour fieldBack = 0;    // entry fields (controls named "Text...")
    Colour textColor = 0;    // text of every control
    std::string font;        // font name; empty means kDefaultFontName

    friend bool operator==(const Appearance&, const Appearance&) = default;
};

// A named appearance of "apparences.ini".
struct AppearanceRecord {
    std::string name;
    Appearance appearance;

    friend bool operator==(const AppearanceRecord&, const AppearanceRecord&) = default;
};

inline constexpr const char* kAppearancesFileName = "apparences.ini";
inline constexpr const char* kDefaultAppearanceName = "Par défaut";
inline constexpr const char* kDefaultFontName = "MS Sans Serif";

// System colour n stands as 0x80000000 + n.
constexpr Colour systemColour(int n) { return Colour(std::uint32_t(0x80000000u) + std::uint32_t(n)); }
inline constexpr Colour kButtonFaceColour = systemColour(15);
inline constexpr Colour kWindowColour = systemColour(5);
inline constexpr Colour kButtonTextColour = systemColour(18);

// "Par défaut": the system's button face, window and button text colours and
// the empty font. It is never in the file; the list always starts with it.
Appearance defaultAppearance();

// The six appearances written into a new "apparences.ini".
const std::vector<AppearanceRecord>& defaultAppearanceRecords();

// The lines of the default file: seven per record, numbers without blanks,
// "para" for the default font and the reserved last line.
std::vector<std::string> defaultAppearancesFileLines();

// (Re)writes "apparences.ini" in the program folder with the six defaults.
Status writeDefaultAppearancesFile(const std::filesystem::path& programFolder);

// What reading "apparences.ini" gave: the records in file order and, when
// reading stopped early, why. Records read before a failure are kept.
struct AppearanceList {
    std::vector<AppearanceRecord> records;
    std::optional<Error> error;
};

// At most this many record slots; stray lines between records use one each.
inline constexpr int kAppearanceSlots = 101;

// Reads the records of the file's lines. A record is "[App]" followed by the
// name, three colour lines (leading number, rounded), the font ("para" means
// the default font) and a reserved line; other lines between records are
// skipped. A record cut short stops with error 62, more than 101 slots with
// error 9, a colour beyond 32 bits with error 6.
AppearanceList readAppearances(const std::vector<std::string>& lines);

// The same from the file; a missing or unreadable file gives its error.
AppearanceList readAppearancesFile(const std::filesystem::path& path);

// How a failed read is shown: "Erreur :" + description, "Erreur n°" + number.
Message appearanceReadErrorMessage(const Error& error);

}  // namespace qor
