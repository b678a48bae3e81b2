#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qor {

// The lines of the wizard's button lists: "Bouton " & k & " (Texte)" or
// " (Graphique)", k counting from 1 over every button made, deleted ones
// included. Every place that needs the button of a line reads k back with
// buttonNumberOfLine and addresses entry k - 1.
std::string buttonListLine(int k, bool isText);

// The number after "Bouton ": all its digits up to the blank that follows
// them. Nothing for a line that does not begin so or has no digit there.
std::optional<int> buttonNumberOfLine(std::string_view line);

}  // namespace qor
