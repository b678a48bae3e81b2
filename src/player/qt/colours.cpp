#include "player/qt/colours.h"

#include <QApplication>
#include <QPalette>

#include <utility>

namespace qor::player {
namespace {

// The classic system colour numbers and the palette role that plays each part.
constexpr std::pair<int, QPalette::ColorRole> kSystemColours[] = {
    {1, QPalette::Window},     {2, QPalette::Highlight},       {3, QPalette::Mid},
    {4, QPalette::Window},     {5, QPalette::Base},            {6, QPalette::Shadow},
    {7, QPalette::WindowText}, {8, QPalette::Text},            {9, QPalette::HighlightedText},
    {10, QPalette::Mid},       {11, QPalette::Mid},            {12, QPalette::Window},
    {13, QPalette::Highlight}, {14, QPalette::HighlightedText}, {15, QPalette::Button},
    {16, QPalette::Dark},      {17, QPalette::PlaceholderText}, {18, QPalette::ButtonText},
    {19, QPalette::WindowText}, {20, QPalette::Light},         {21, QPalette::Shadow},
    {22, QPalette::Midlight},  {23, QPalette::ToolTipText},    {24, QPalette::ToolTipBase},
};

}  // namespace

QColor toQColor(std::uint32_t colour)
{
    if (colour & 0x80000000u) {
        const int n = int(colour & 0xFFu);
        for (const auto& [number, role] : kSystemColours)
            if (number == n)
                return QApplication::palette().color(role);
        return QApplication::palette().color(QPalette::Window);
    }
    return QColor(int(colour & 0xFF), int((colour >> 8) & 0xFF), int((colour >> 16) & 0xFF));
}

}  // namespace qor::player
