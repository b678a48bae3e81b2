#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

// The script editor's procedure list: one entry per line that declares a
// Sub or a Function at its very start.

// What the list shows before its entries, and what its hidden twin, the
// list of declaration lines, holds in the same place.
inline constexpr std::string_view kProcedureListTitle = "Procédures";
inline constexpr std::string_view kProcedureListNothing = "RIEN";

struct ProcedureEntry {
    std::string name;         // the line after its prefix and one more character
    std::string declaration;  // the whole line

    friend bool operator==(const ProcedureEntry&, const ProcedureEntry&) = default;
};

// The procedures of a script (lines broken by CR LF), in text order. A line
// counts when it begins with "public sub", "private sub", "public function",
// "private function", "function" or "sub" (tested in that order, letter
// case ignored) and is longer than that prefix.
std::vector<ProcedureEntry> listProcedures(std::string_view text);

// Where the caret goes when the user picks a name from the list: the start
// of the first place the text holds the declaration of the first entry of
// that name, counted in characters with CR LF as two. Nothing when no entry
// has the name, the text is shorter than three characters or no longer
// holds the declaration.
std::optional<std::size_t> procedureCaret(std::string_view text, const std::vector<ProcedureEntry>& entries,
                                          std::string_view chosen);

}  // namespace qor
