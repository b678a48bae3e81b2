#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/menu_button.h"
#include "model/menu_text.h"
#include "model/shape_block.h"
#include "text/error.h"

namespace qor {

// The icon value that means "no icon file chosen" in French.
inline constexpr std::string_view kDefaultIconMarker = "(Icône par défaut)";

// Any value in parentheses stands for the default icon, whatever the
// language that wrote it: "(Icône par défaut)", "(Icone par défaut)", "(Default icon)".
bool isDefaultIconMarker(std::string_view icon);

// A stored path made usable: a bare file name lies in the folder of the
// project file; any other path (and "") is returned unchanged.
std::string resolvePath(std::string_view storedPath, std::string_view projectFilePath);

// The one project the editor works on: the menu window, its scripts, its
// author, its shape, a table of 101 button slots (slot 0 is never a real
// button; slot n holds button n) and the list of text boxes (text n at
// position n - 1). Fields carry the names of the project model; positions
// are twips, colours 0x00BBGGRR.
class MenuProject {
public:
    static constexpr int kButtonSlots = 101;
    static constexpr int kLastButtonSlot = kButtonSlots - 1;

    std::string filePath;            // "" for a project never saved
    std::string authorName;
    std::string authorEmail;
    std::string authorWebSite;
    std::string notes;               // multi-line
    std::string backgroundImage;
    bool fullScreen = false;         // width and height then neither saved nor used
    float width = 9600;              // kept by a reset
    float height = 7200;
    bool border = true;
    std::int32_t backgroundColor = 0x00FFFFFF;
    std::string icon{kDefaultIconMarker};
    std::string backgroundMusic;
    std::string clickSound;
    std::string hoverSound;
    bool contextMenu = true;
    bool handCursor = true;
    std::string transparencyImage;
    ShapePoints shapePoints;         // empty: rectangular window
    // "" = nothing, "VBS:" + script = run the startup script, anything else =
    // the media name on the CD to play.
    std::string startupAction;
    bool timerEnabled = false;
    std::string timerInterval = "1000";   // as typed; valid: 1 to 60000
    std::string timerScript;
    std::string globalScript;
    std::string windowHoverScript;

    MenuProject();

    // Back to a new project: every field to its new value, all 101 slots
    // emptied, no text box, no shape point, no file; width and height stay.
    // Element numbering starts again at 1.
    void reset(std::string_view iconMarker = kDefaultIconMarker);

    // Slot n, 0 to 100.
    MenuButton& button(int n);
    const MenuButton& button(int n) const;

    // Text box n, 1 to textCount().
    MenuText& text(int n);
    const MenuText& text(int n) const;
    // The highest text number given out (deleted boxes included).
    int textCount() const { return int(texts_.size()); }

    // In number order.
    std::vector<const MenuButton*> liveButtons() const;
    std::vector<const MenuButton*> savableButtons() const;
    std::vector<const MenuText*> liveTexts() const;

    // resolvePath against filePath.
    std::string resolve(std::string_view storedPath) const;

    // Element numbering. The count of elements of a kind includes the hidden
    // template (number 0) and the deleted elements, and the next element
    // gets that count as its number: 1, 2, 3 ... after a reset or load,
    // never reusing the number of a deleted one.
    int buttonElementCount() const { return buttonElements_; }
    int textElementCount() const { return int(texts_.size()) + 1; }

    // A button with the next number, in an empty slot: its number or
    // SubscriptOutOfRange once the table is full (the 101st button). The
    // limit of 99 buttons created by hand is the designer's rule.
    Result<std::int16_t> addButton();
    // A text box with the next number and the template's values: its number,
    // or Overflow past the 16-bit range.
    Result<std::int16_t> addText();
    // The slot becomes "suppr"; the text box is hidden and its content
    // "SUPPR". Both keep their number until the next load.
    void deleteButton(int n);
    void deleteText(int n);

private:
    std::array<MenuButton, kButtonSlots> buttons_;
    std::vector<MenuText> texts_;
    int buttonElements_ = 1;
};

}  // namespace qor
