#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/ports/dialogs.h"
#include "core/wizard/wizard_scripts.h"

namespace qor {

// The two small dialogues of the wizard, used for the startup action and
// for a button's function alike. Both are titled with the wizard's caption;
// nothing comes back when the user cancels or leaves an answer empty.

// Web page, file on the CD or file on the disk, then its address or path.
std::optional<OpenTarget> askOpenTarget(Dialogs& dialogs, std::string_view caption);

// A title, then a text in which "[R]" (any case) breaks the line. The
// previous message is offered as the defaults.
std::optional<MenuMessage> askMenuMessage(Dialogs& dialogs, std::string_view caption, const MenuMessage& previous);

// A message as typed made ready for a script string: "[R]" in any letter
// case becomes a line break, and a double quote an apostrophe.
std::string typedMessageText(std::string_view typed);
// And back, to offer it as a default: line breaks shown as "[R]".
std::string messageTextAsTyped(std::string_view text);

// The example offered for a web page.
inline constexpr std::string_view kExampleAddresses = "http://www.exemple.com ou www.exemple.fr";

}  // namespace qor
