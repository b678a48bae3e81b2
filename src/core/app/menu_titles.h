#pragma once

#include <cstddef>
#include <vector>

#include "core/ports/dialogs.h"
#include "core/ui/appearances_file.h"

namespace qor {

// Where one of the main window's title captions stands, in twips from the
// window's inner top-left corner.
struct TitleBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    double right() const { return left + width; }
    double bottom() const { return top + height; }

    friend bool operator==(const TitleBox&, const TitleBox&) = default;
};

// The fixed measures of the title row.
inline constexpr double kMenuTitleTop = 15;
inline constexpr double kMenuTitleHeight = 225;
inline constexpr double kMenuTitleFirstLeft = 120;
inline constexpr double kMenuTitlePadding = 240;   // added to each caption's own width

// The boxes of the titles whose captions are textWidths twips wide, in
// title order: the first stays 120 twips from the left, each one is its
// caption plus 240 twips wide and starts where the previous one ends.
std::vector<TitleBox> layOutMenuTitles(const std::vector<double>& textWidths);

// The title under the point (x, y), or -1 when the point is on no title.
// A title's right edge belongs to the next one.
int menuTitleAt(const std::vector<TitleBox>& boxes, double x, double y);

// Where the menu of a title pops up: the title's bottom-left corner.
struct MenuPopupPoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const MenuPopupPoint&, const MenuPopupPoint&) = default;
};
MenuPopupPoint menuPopupPoint(const TitleBox& box);

// The colours of a highlighted title: the appearance's colours swapped, its
// background the text colour and its text the window background.
struct TitleColours {
    Colour background = 0;
    Colour text = 0;

    friend bool operator==(const TitleColours&, const TitleColours&) = default;
};
TitleColours highlightedTitleColours(const Appearance& appearance);

}  // namespace qor
