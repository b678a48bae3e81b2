#pragma once

#include <string_view>

#include "core/wizard/wizard_scripts.h"

namespace qor {

// The wizard's five steps, numbered 0 to 4 ("Etape 1:" to "Etape 5:").
inline constexpr int kWizardSteps = 5;

// The header line shown above a step's panel.
std::string_view stepHeader(int step);

// Which navigation commands a step allows. Moving checks no field.
struct WizardNavigation {
    bool previous = false;  // "< &Précédent"
    bool next = false;      // "&Suivant >"
    bool finish = false;    // "&Terminer"

    friend bool operator==(const WizardNavigation&, const WizardNavigation&) = default;
};
WizardNavigation navigationOf(int step);

// Which of "Etape 2"'s controls a startup choice enables.
struct StartupControls {
    bool mediaFile = false;   // the file-name field
    bool openTarget = false;  // the text showing what opens
    bool preview = false;     // "Apercu"

    friend bool operator==(const StartupControls&, const StartupControls&) = default;
};
StartupControls startupControlsOf(WizardStartup choice);

// Which of "Etape 4"'s controls the selected button's function enables.
// function is the entry's ("" when none is chosen); lineSelected tells
// whether a line of "Les boutons :" is selected at all.
struct FunctionControls {
    bool choices = false;     // the four functions can be chosen
    int chosen = -1;          // 0 to 3, -1 for none
    bool mediaFile = false;   // the field of "Jouer un fichier multimédia :"
    bool preview = false;     // "Aperçu"

    friend bool operator==(const FunctionControls&, const FunctionControls&) = default;
};
FunctionControls functionControlsOf(bool lineSelected, std::string_view function);

}  // namespace qor
