#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/wizard/wizard_button.h"
#include "core/wizard/wizard_scripts.h"

namespace qor {

// True for a text of blanks only: the wizard takes it for an empty field.
inline bool isBlankText(std::string_view text)
{
    return text.find_first_not_of(" \t") == std::string_view::npos;
}

// The kind of button being made in "Etape 3": none chosen yet, or the
// sub-panel shown.
enum class ButtonType { None, Text, Graphic };

// The three image rows of a graphic button.
enum class GraphicImage { Normal = 0, Hover = 1, Pressed = 2 };

// The preview frame of "Etape 3" and what it shows.
struct WizardPreview {
    enum class Kind { None, Text, Graphic };
    Kind kind = Kind::None;
    // A listed button's preview shows that entry; otherwise the text
    // preview follows the button being made (`current`).
    bool ofCurrent = true;
    WizardButton entry;
    // The picture drawn last: the preview's tag.
    ButtonState state = ButtonState::Normal;
};

// Everything the wizard window shows, as the flows leave it. The window
// shows it again after every operation and decides nothing itself.
struct WizardForm {
    int step = 0;

    // "Etape 1"
    std::string menuName = "Sans Titre";
    bool backgroundIsImage = false;          // "Image :" rather than "Couleur :"
    Colour backgroundColor = 0x00FFFFFF;
    std::string backgroundImage;
    bool border = true;
    bool music = false;
    std::string musicFile;

    // "Etape 2"
    StartupSettings startup;

    // "Etape 3": "Les boutons présents" and the frame "Ajouter... "
    std::vector<std::string> buttonLines;
    int selectedButtonLine = -1;
    bool addFrameVisible = false;
    ButtonType addType = ButtonType::None;
    std::string captionField;                 // "Texte :"
    WizardButton current;                     // the text button being made
    std::array<std::string, 3> graphicImages; // normal, hover, pressed
    WizardPreview preview;

    // "Etape 4": "Les boutons :"
    std::vector<std::string> functionLines;
    int selectedFunctionLine = -1;
    std::string functionMediaField;

    // "Etape 5"
    std::string folder;
};

}  // namespace qor
