#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ports/dialogs.h"

namespace qor {

// A typed text or script never keeps "¤" or "¬", the separators of the file
// formats. One kind is taken out per change: every "¤" when there is one,
// else every "¬"; putting the cleaned text back raises the next change,
// which takes out the other kind. Nothing when the text is clean.
std::optional<std::string> withoutForbiddenChars(std::string_view text);

// "Caratère interdit !", titled "Erreur !", with the error icon.
Message forbiddenCharMessage();

}  // namespace qor
