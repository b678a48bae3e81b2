#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// The script editor's "Nouvelle procédure" panel: a skeleton appended to the
// script.
enum class ProcedureKind { Function, Sub };
enum class ProcedureScope { Private, Public };

struct NewProcedure {
    std::string name;  // the name as written, spaces turned into "_"
    std::string text;  // the script with the skeleton appended
    std::size_t caret = 0;  // the empty line inside it, in characters (CR LF two)

    friend bool operator==(const NewProcedure&, const NewProcedure&) = default;
};

// "Public Sub Ma_proc()", an empty line and "End Sub" after the text, each
// on a line of its own. Nothing for an empty name.
std::optional<NewProcedure> appendProcedure(std::string_view text, std::string_view name, ProcedureKind kind,
                                            ProcedureScope scope);

}  // namespace qor
