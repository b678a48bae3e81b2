#pragma once

#include <string>
#include <string_view>

#include "core/wizard/wizard_button.h"

namespace qor {

// What the menu does when it starts ("Etape 2").
enum class WizardStartup {
    Nothing,    // "Rien"
    MediaFile,  // "Démarrer un fichier multimédia :"
    Open,       // "Ouvrir un document, un programme, une page internet ..."
    Message,    // "Afficher un message"
};

// The answer of the open dialogue: what to open and where it lies.
struct OpenTarget {
    std::string kind;     // "SITE", "CD" or "DISQUE"
    std::string target;   // the address or path as typed

    friend bool operator==(const OpenTarget&, const OpenTarget&) = default;
};

// A message for the running menu to show; the text's line breaks are CR LF.
struct MenuMessage {
    std::string title;
    std::string text;

    friend bool operator==(const MenuMessage&, const MenuMessage&) = default;
};

// The menu's script that opens a target: a comment naming its kind, then
// the shell object running it, lines joined by the project file's "¤".
// Double quotes of the target become apostrophes, so the string stays whole.
std::string openScript(const OpenTarget& open);

// MsgBox "text", vbInformation, "title", each line break of the text
// written as "+chr(10)+chr(13)+" between quotes.
std::string messageScript(const MenuMessage& message);

// The startup action line of the project file for the choice of "Etape 2".
struct StartupSettings {
    WizardStartup choice = WizardStartup::Nothing;
    std::string mediaFile;
    OpenTarget open;
    MenuMessage message;
};
std::string startupActionText(const StartupSettings& startup);

// A button's kind and action in the project file, from its function read
// as a number: 0 (or none) plays param1, 1 quits, 2 shows a message, 3 opens
// something.
struct ButtonBehaviour {
    std::string kind;
    std::string action;

    friend bool operator==(const ButtonBehaviour&, const ButtonBehaviour&) = default;
};
ButtonBehaviour buttonBehaviour(const WizardButton& entry);

}  // namespace qor
