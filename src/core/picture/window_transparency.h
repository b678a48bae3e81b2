#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/ports/dialogs.h"
#include "model/menu_project.h"

namespace qor {

// The entries of the toolbox's "Transparence" pop-up, which choose the
// image that gives the menu window its outline.
enum class OutlineCommand { ChooseImage, ShowImage, DontUse, Information, Cancel };

struct OutlineEntry {
    std::string_view caption;
    OutlineCommand command;
    bool separatorBefore;
};

inline constexpr std::array<OutlineEntry, 5> kOutlineEntries{{
    {"Choisir une image...", OutlineCommand::ChooseImage, false},
    {"Voir l'image actuelle", OutlineCommand::ShowImage, false},
    {"Ne pas utiliser la transparence", OutlineCommand::DontUse, false},
    {"Informations", OutlineCommand::Information, false},
    {"Annuler", OutlineCommand::Cancel, true},
}};

// What the toolbox does for the pop-up.
class OutlineView {
public:
    virtual ~OutlineView() = default;
    // Pops the menu up under the command; none when it was dismissed.
    virtual std::optional<OutlineCommand> popUpOutlineMenu() = 0;
    // Turns the toolbox into the picture of that file until it is clicked;
    // false (and the toolbox unchanged) when the file cannot be read.
    virtual bool showOutlineImage(const std::string& path) = 0;
};

// The pop-up's entries acting on the project's transparencyImage.
class WindowTransparencyFlows {
public:
    WindowTransparencyFlows(MenuProject& project, Dialogs& dialogs) : project_(project), dialogs_(dialogs) {}

    void setView(OutlineView* view) { view_ = view; }
    // The toolbox command: the pop-up, then its entry.
    void popUp();
    void run(OutlineCommand command);

private:
    void chooseImage();
    void showImage();

    MenuProject& project_;
    Dialogs& dialogs_;
    OutlineView* view_ = nullptr;
};

// The messages of window transparency.
Message outlineInformationMessage();
Message noOutlineImageMessage();
Message outlineClickBackMessage();
Message outlineUnreadableMessage(const std::string& path);

}  // namespace qor
