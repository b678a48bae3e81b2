#include "core/wizard/wizard_button.h"

namespace qor {

std::string buttonImageFileName(int k, ButtonState state)
{
    std::string_view suffix = "_normal.bmp";
    if (state == ButtonState::Hover)
        suffix = "_survol.bmp";
    else if (state == ButtonState::Pressed)
        suffix = "_clique.bmp";
    return "bouton" + std::to_string(k) + std::string(suffix);
}

FontChoice buttonFont(const WizardButton& entry, ButtonState state)
{
    FontChoice f;
    f.name = entry.fontName;
    f.size = entry.fontSize;
    f.bold = entry.bold;
    f.italic = entry.italic;
    f.strikethrough = entry.strikethrough;
    // A button loses its underline under the pointer, or gains one.
    f.underline = state == ButtonState::Normal ? entry.underline : !entry.underline;
    return f;
}

TextButtonLayout textButtonLayout(double textWidth, double textHeight, ButtonState state)
{
    // The pressed picture has the normal one's size; only its text moves
    // right and down, into the margin below and beside it.
    const double shift = state == ButtonState::Pressed ? 0.06 * textHeight : 0;
    return {textWidth + 0.12 * textHeight, 1.12 * textHeight, shift, shift};
}

}  // namespace qor
