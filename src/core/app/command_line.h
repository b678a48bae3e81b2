#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace qor {

// The word that starts the hidden maintenance mode instead of the editor.
inline constexpr std::string_view kMaintenanceWord = "maintien";

// What the command line asks for.
struct CommandLineRequest {
    bool maintenance = false;       // the text was exactly "maintien"
    std::string startupProject;     // an existing project to open, or empty

    friend bool operator==(const CommandLineRequest&, const CommandLineRequest&) = default;
};

// The whole argument text is one value once every double quote is removed.
// It is the maintenance word, or the path of an existing file ending in
// ".qor" (that very case), or anything else, which is ignored. A project
// path comes back whole, completed from the working folder.
CommandLineRequest readCommandLine(std::string_view rawArguments,
                                   const std::function<bool(const std::string&)>& fileExists);

// The argument text as one value: the program's arguments joined by blanks.
std::string joinArguments(int argc, const char* const* argv);

}  // namespace qor
