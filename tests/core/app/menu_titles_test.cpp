#include <gtest/gtest.h>

#include "core/app/menu_titles.h"

namespace qor {
namespace {

TEST(MenuTitles, EachTitleStartsWhereThePreviousEnds)
{
    struct Case {
        const char* name;
        std::vector<double> widths;
        std::vector<TitleBox> expected;
    };
    const Case cases[] = {
        {"none", {}, {}},
        {"one caption", {600}, {{120, 15, 840, 225}}},
        // Caption widths of the six titles at 15 twips per pixel.
        {"six titles",
         {615, 660, 480, 540, 690, 105},
         {{120, 15, 855, 225},
          {975, 15, 900, 225},
          {1875, 15, 720, 225},
          {2595, 15, 780, 225},
          {3375, 15, 930, 225},
          {4305, 15, 345, 225}}},
        // An empty caption still takes the padding, so the next title moves on.
        {"empty caption", {0, 300}, {{120, 15, 240, 225}, {360, 15, 540, 225}}},
        // Fractional widths (a high-DPI screen) are carried, not rounded.
        {"fractions", {100.5, 10.25}, {{120, 15, 340.5, 225}, {460.5, 15, 250.25, 225}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(layOutMenuTitles(c.widths), c.expected);
    }
}

TEST(MenuTitles, PointFindsTheTitleUnderIt)
{
    const auto boxes = layOutMenuTitles({600, 300});   // [120, 960) and [960, 1500)
    struct Case { double x, y; int expected; };
    const Case cases[] = {
        {120, 15, 0},       // top-left corner belongs to the title
        {959.9, 239.9, 0},  // last point inside
        {960, 100, 1},      // the shared edge belongs to the next title
        {1499, 100, 1},
        {1500, 100, -1},    // past the last title
        {119.9, 100, -1},   // left margin
        {500, 14, -1},      // above the row
        {500, 240, -1},     // below the row
    };
    for (const auto& c : cases)
        EXPECT_EQ(menuTitleAt(boxes, c.x, c.y), c.expected) << c.x << "," << c.y;
}

TEST(MenuTitles, MenuPopsAtTheTitlesBottomLeftCorner)
{
    const auto boxes = layOutMenuTitles({600, 300});
    EXPECT_EQ(menuPopupPoint(boxes[0]), (MenuPopupPoint{120, 240}));
    EXPECT_EQ(menuPopupPoint(boxes[1]), (MenuPopupPoint{960, 240}));
}

}  // namespace
}  // namespace qor
