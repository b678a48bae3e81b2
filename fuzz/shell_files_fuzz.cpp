// The settings files of the program folder are edited by hand: the options
// file, plugins.ini and apparences.ini must read whatever they hold.
#include <cstdint>
#include <string_view>

#include "core/app/options_file.h"
#include "core/app/plugins.h"
#include "core/ui/appearances_file.h"
#include "text/cp1252.h"
#include "text/line_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace qor;
    const auto lines = splitLines(decodeCp1252(std::string_view(reinterpret_cast<const char*>(data), size)));

    const OptionsFileContent options = readOptionsLines(lines, defaultAppearance());
    if (lines.size() <= 3 && options.appearance)
        __builtin_trap();  // a file that ends after line 3 keeps the appearance

    const PluginList plugins = readPluginLines(lines);
    if (plugins.commands.size() * 2 > lines.size())
        __builtin_trap();

    const AppearanceList appearances = readAppearances(lines);
    if (appearances.records.size() > std::size_t(kAppearanceSlots) || appearances.records.size() * 7 > lines.size())
        __builtin_trap();
    return 0;
}
