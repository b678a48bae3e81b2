#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qor {

// The automatic formatter that runs after Enter in the script editor.
//
// Positions (the caret) count characters of the script as the editor holds
// it: one per code point, two for each CR LF line break.

// Longer scripts are never formatted, so typing in them stays quick.
inline constexpr std::size_t kMaxFormattedLength = 50000;

struct FormattedScript {
    std::string text;
    std::size_t caret = 0;

    friend bool operator==(const FormattedScript&, const FormattedScript&) = default;
};

// The script rewritten line by line: the nine operators + - * / = & \ > <
// padded with spaces outside strings and comments, the character after a
// "." in upper case, each line trimmed, then the fixed letter-case
// corrections ("MsgBox", "Dim", "[LECT]"...) applied everywhere.
std::string formattedScript(std::string_view text);

// What the editor shows after formatting: the rewritten text and the caret,
// moved by the change of length plus two (past the line break the user just
// typed), kept inside the text. Nothing when the text is too long or
// formatting changes nothing.
std::optional<FormattedScript> formatScript(std::string_view text, std::size_t caret);

}  // namespace qor
