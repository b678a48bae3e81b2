#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ports/dialogs.h"

namespace qor {

// How the assistant's generators ask for what they need. Every question
// gives nothing when the user cancels or answers nothing, and the generator
// then ends without writing anything.

enum class ElementKind { TextBox, Button };

// What a typed number is checked for, beyond being given at all.
enum class NumberCheck {
    None,      // any text
    AskAgain,  // not a number: "Nombre incorrect !", then the same question again
    Refuse,    // not a number: "Valeur incorrect !", and the generator ends
};

struct Question {
    std::string_view prompt;
    std::string title{};
    std::string_view defaultText{};
    NumberCheck check = NumberCheck::None;
    std::string_view refusalTitle{};
};

// The answer typed, checked as the question says.
std::optional<std::string> ask(Dialogs& dialogs, const Question& question);

// The number of the text box or button concerned, as typed: it is checked
// neither against the project nor as a number.
std::optional<std::string> askElement(Dialogs& dialogs, ElementKind kind);

// A colour from the colour dialog, written as the decimal 0x00BBGGRR number.
std::optional<std::string> askColour(Dialogs& dialogs);

}  // namespace qor
