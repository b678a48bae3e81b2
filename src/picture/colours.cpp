#include "picture/colours.h"

namespace qor {

QPalette::ColorRole systemColourRole(int n)
{
    switch (n) {
    case 0: return QPalette::Button;            // scroll bar
    case 1: return QPalette::Dark;              // desktop
    case 2: return QPalette::Highlight;         // active caption
    case 3: return QPalette::Mid;               // inactive caption
    case 4: return QPalette::Window;            // menu
    case 5: return QPalette::Base;              // window (the background of entry fields)
    case 6: return QPalette::Shadow;            // window frame
    case 7: return QPalette::WindowText;        // menu text
    case 8: return QPalette::Text;              // window text
    case 9: return QPalette::HighlightedText;   // caption text
    case 10: return QPalette::Button;           // active border
    case 11: return QPalette::Button;           // inactive border
    case 12: return QPalette::Dark;             // application workspace
    case 13: return QPalette::Highlight;
    case 14: return QPalette::HighlightedText;
    case 15: return QPalette::Button;           // button face
    case 16: return QPalette::Mid;              // button shadow
    case 17: return QPalette::PlaceholderText;  // grey text
    case 18: return QPalette::ButtonText;
    case 19: return QPalette::WindowText;       // inactive caption text
    case 20: return QPalette::Light;            // button highlight
    case 21: return QPalette::Shadow;           // 3D dark shadow
    case 22: return QPalette::Midlight;         // 3D light
    case 23: return QPalette::ToolTipText;
    case 24: return QPalette::ToolTipBase;
    default: return QPalette::Window;
    }
}

QColor toQColor(Colour colour, const QPalette& palette)
{
    const auto bits = std::uint32_t(colour);
    if (isSystemColour(colour))
        return palette.color(QPalette::Active, systemColourRole(int(bits & 0x7FFFFFFFu)));
    return QColor(int(bits & 0xFF), int((bits >> 8) & 0xFF), int((bits >> 16) & 0xFF));
}

Colour fromQColor(const QColor& colour)
{
    const QColor rgb = colour.toRgb();
    return Colour(std::uint32_t(rgb.red()) | (std::uint32_t(rgb.green()) << 8) |
                  (std::uint32_t(rgb.blue()) << 16));
}

}  // namespace qor
