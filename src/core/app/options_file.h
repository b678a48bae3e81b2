#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/app/app_state.h"

namespace qor {

inline constexpr const char* kOptionsFileName = "qor_options.ini";

// The nine lines of "qor_options.ini", no keys: the pointer, mouse-position
// and handles options, the appearance's three colours and font, the wizard
// and multimedia-file options. Options are "oui" or "non".
std::vector<std::string> optionsFileLines(const OptionMarks& marks, const Appearance& appearance);

// What an options file asks for. A missing line reads as empty.
struct OptionsFileContent {
    bool precisePointer = false;     // line 1 is "oui"
    bool mousePosition = false;      // line 2
    bool showHandles = false;        // line 3
    // Lines 4 to 7, when the file goes on after line 3. A colour line that is
    // missing or beyond 32 bits keeps the current colour; a missing font line
    // is the empty (default) font.
    std::optional<Appearance> appearance;
    bool wizardAtStart = false;      // line 8 is "oui"
    bool requireMediaFile = true;    // line 9 is "oui", empty or missing

    friend bool operator==(const OptionsFileContent&, const OptionsFileContent&) = default;
};

OptionsFileContent readOptionsLines(const std::vector<std::string>& lines, const Appearance& current);

}  // namespace qor
