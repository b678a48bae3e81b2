#include "core/scripting/procedure_list.h"

#include <algorithm>
#include <array>

#include "core/scripting/script_lines.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor {
namespace {

// Longer prefixes first, so that "public sub" is not read as "sub".
constexpr std::array<std::string_view, 6> kPrefixes{
    "public sub", "private sub", "public function", "private function", "function", "sub",
};

void addIfDeclaration(std::string_view line, std::vector<ProcedureEntry>& entries)
{
    for (std::string_view prefix : kPrefixes) {
        if (beginsWithAndLonger(line, prefix)) {
            entries.push_back({std::string(dropChars(line, prefix.size() + 1)), std::string(line)});
            return;
        }
    }
}

}  // namespace

std::vector<ProcedureEntry> listProcedures(std::string_view text)
{
    std::vector<ProcedureEntry> entries;
    for (std::string_view line : scriptLines(text))
        addIfDeclaration(line, entries);
    return entries;
}

std::optional<std::size_t> procedureCaret(std::string_view text, const std::vector<ProcedureEntry>& entries,
                                          std::string_view chosen)
{
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [chosen](const ProcedureEntry& e) { return e.name == chosen; });
    if (entry == entries.end() || utf8Length(text) < 3)
        return std::nullopt;
    const std::size_t at = text.find(entry->declaration);
    if (at == std::string_view::npos)
        return std::nullopt;
    return utf8Length(text.substr(0, at));
}

}  // namespace qor
