#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/wizard/wizard_scripts.h"

namespace qor {

// One button as the wizard writes it: its three pictures by their names in
// the menu folder, the height of its normal picture (which stacks the next
// button below it), its behaviour and its transparency.
struct WizardProjectButton {
    std::string normalImage;
    std::string hoverImage;
    std::string pressedImage;
    double normalHeight = 0;   // twips
    ButtonBehaviour behaviour;
    bool transparent = false;
    Colour transparentColor = 0;
};

// The menu the wizard writes. Its file is a project file of its own making:
// the sections and values a project file reads, no author, no texts, no
// shape, and placeholder lines where the reader keeps its defaults.
struct WizardProject {
    std::string backgroundImage;     // a name in the menu folder; "" with a colour
    // The background picture's size (twips): the menu window takes it.
    // Without a picture the window is 9600 x 7200.
    struct Size { double width = 0; double height = 0; };
    std::optional<Size> imageSize;
    bool border = true;
    std::string backgroundMusic;     // a name in the menu folder, or ""
    std::string startupAction;
    Colour backgroundColor = 0x00FFFFFF;
    std::vector<WizardProjectButton> buttons;
};

// The tops of buttons stacked from the top of the menu, 150 twips apart:
// 150 for the first, then the previous top, the previous height and 150.
std::vector<double> stackedTops(const std::vector<double>& heights);

// The project file's text (UTF-8, every line ended by CR LF).
std::string wizardProjectText(const WizardProject& project);
// And its bytes in Windows-1252.
std::string wizardProjectBytes(const WizardProject& project);

}  // namespace qor
