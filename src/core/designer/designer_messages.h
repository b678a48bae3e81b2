#pragma once

#include <string>

#include "core/ports/dialogs.h"
#include "core/ui/phrases.h"

namespace qor {

// Every message the designer shows, each built in one place.

// Creation refused once 100 button elements exist (phrases 0 and 1).
Message tooManyButtonsMessage(const Phrases& phrases);

// "Supprimer le bouton " & n & " ?" (phrases 41 and 42), Yes/No.
Message deleteButtonQuestion(int number, const Phrases& phrases);

// "Supprimer le texte " & n & " ?", always in French, Yes/No.
Message deleteTextQuestion(int number);

// What a new text box says (phrase 2 followed by "Texte " & n).
std::string newTextContent(int number, const Phrases& phrases);

// A window or text size that is not a pair of usable numbers.
Message invalidNumbersMessage();

// A timer interval outside 1 to 60000, or not a number.
Message invalidIntervalMessage();

// A position answer that is not a number.
Message invalidPositionMessage();

// The help texts of the properties panel.
Message globalScriptHelpMessage();
Message mediaFileHelpMessage();
Message transparencyInfoMessage();

}  // namespace qor
