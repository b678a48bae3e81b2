#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qor {

// The content that marks a deleted text box, also when the user typed it.
inline constexpr std::string_view kDeletedTextContent = "SUPPR";

// One text box. A new one has the template's values: 2895 x 1455 twips,
// white background, black text, "MS Sans Serif", scroll bar on, not locked.
struct MenuText {
    std::int16_t number = 0;
    std::string content;          // multi-line
    std::int32_t backColor = 0x00FFFFFF;
    std::int32_t foreColor = 0x00000000;
    std::string fontName = "MS Sans Serif";
    float fontSize = 8.25f;       // points
    bool fontBold = false;
    bool fontItalic = false;
    bool fontStrikethru = false;
    bool fontUnderline = false;
    float left = 0;               // twips
    float top = 0;
    float width = 2895;
    float height = 1455;
    // Two characters: vertical scroll bar shown ("1") or not, then editing
    // locked in the running menu ("1") or not.
    std::string settings = "10";
    bool visible = true;          // false once deleted

    // Visible and not "SUPPR": saved and compiled.
    bool isLive() const;
    bool showsScrollBar() const;
    bool isLocked() const;
};

}  // namespace qor
