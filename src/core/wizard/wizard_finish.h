#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/ports/screen.h"
#include "core/wizard/button_pictures.h"
#include "core/wizard/wizard_form.h"
#include "core/wizard/wizard_project_file.h"
#include "text/error.h"

namespace qor {

// Where "&Terminer" writes the menu.
struct MenuTarget {
    std::string menuFolder;    // chosen folder & name & separator
    std::string projectPath;   // menu folder & name & ".qor"

    friend bool operator==(const MenuTarget&, const MenuTarget&) = default;
};

// The four checks of "&Terminer", in order: a folder chosen, the folder
// exists, a menu name given, no menu of that name there yet. The first
// refusal, or where the menu goes.
std::variant<MenuTarget, Message> checkMenuTarget(std::string_view folder, std::string_view menuName,
                                                  std::string_view caption);

// What writing the menu needs besides the form.
struct MenuWriting {
    ButtonPictures& pictures;
    ScreenMetrics screen;
};

// The menu as the project file describes it: every picture and sound in
// the menu folder by its name, the buttons not deleted in list order, a
// text button's pictures named by its place k in the list.
WizardProject describeMenu(const WizardForm& form, const std::vector<WizardButton>& buttons);

// Creates the menu folder, copies the background picture, the music and
// the graphic buttons' pictures into it, draws the text buttons' pictures
// there, and writes the project file. Stops at the first failure and
// leaves what it wrote; nothing is written outside the menu folder.
Status writeMenu(const MenuTarget& target, const WizardForm& form, const std::vector<WizardButton>& buttons,
                 MenuWriting writing);

}  // namespace qor
