#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/ports/dialogs.h"

namespace qor {

// The mark a deleted entry carries; it keeps its place in the list.
inline constexpr std::string_view kDeletedMark = "SUPPR";

// One button made in the wizard's third step: a text button, whose three
// pictures are drawn from its text, or a graphic one made of three files.
struct WizardButton {
    bool bold = false;
    bool italic = false;
    std::string fontName = "MS Sans Serif";
    std::int16_t fontSize = 8;                 // points
    bool strikethrough = false;
    bool underline = false;
    bool isText = true;
    std::string caption;
    Colour backColor = 0x00FFFFFF;
    Colour textColor = 0;
    std::string deletedMark;                   // "SUPPR" once deleted
    // Graphic button: the chosen files; after "&Terminer" the file names
    // inside the menu folder (for both kinds).
    std::string normalImage;
    std::string hoverImage;
    std::string pressedImage;
    // "0" play a media file, "1" quit, "2" show a message, "3" open
    // something; "" until chosen (read as "0").
    std::string function;
    std::string param1;   // "0": media file; "2": message title; "3": address or path
    std::string param2;   // "2": message text; "3": "SITE", "CD" or "DISQUE"
    bool transparentBackground = false;

    bool deleted() const { return deletedMark == kDeletedMark; }

    friend bool operator==(const WizardButton&, const WizardButton&) = default;
};

// The three pictures of a button.
enum class ButtonState : char { Normal = 'n', Hover = 's', Pressed = 'c' };

inline constexpr ButtonState kButtonStates[] = {ButtonState::Normal, ButtonState::Hover, ButtonState::Pressed};

// "bouton" & k & "_normal.bmp" / "_survol.bmp" / "_clique.bmp".
std::string buttonImageFileName(int k, ButtonState state);

// A text button's font in one state: the entry's, with the underline
// inverted on hover and press.
FontChoice buttonFont(const WizardButton& entry, ButtonState state);

// Where a text button's picture puts things, in pixels, from the caption's
// size laid out on one line in its font.
struct TextButtonLayout {
    double width = 0;      // text width + 0.12 text height
    double height = 0;     // 1.12 text height
    double textLeft = 0;   // 0.06 text height when pressed, else 0
    double textTop = 0;

    friend bool operator==(const TextButtonLayout&, const TextButtonLayout&) = default;
};

TextButtonLayout textButtonLayout(double textWidth, double textHeight, ButtonState state);

}  // namespace qor
