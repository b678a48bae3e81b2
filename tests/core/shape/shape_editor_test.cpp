#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/shape/shape_editor.h"
#include "core/shape/shape_pixels.h"

namespace qor {
namespace {

// One step of the pointer: "L x y" left press, "R" right press,
// "M x y" move, "D x y" move with the left button held, "O 3" other button.
struct Step {
    char what;
    double x = 0, y = 0;
};

void run(ShapeEditor& e, const std::vector<Step>& steps)
{
    for (const Step& s : steps) {
        switch (s.what) {
        case 'L': e.press(kLeftButton, {s.x, s.y}); break;
        case 'R': e.press(kRightButton, {s.x, s.y}); break;
        case 'O': e.press(3, {s.x, s.y}); break;
        case 'M': e.move({s.x, s.y}, false); break;
        case 'D': e.move({s.x, s.y}, true); break;
        }
    }
}

struct StateCase {
    const char* name;
    std::vector<Step> steps;
    ShapeState state;
    ShapePoints points;
    std::size_t newEdges;
    bool rubberVisible;
    bool preview;
};

TEST(ShapeEditorStates, EmptyDrawingClosed)
{
    const StateCase cases[] = {
        {"opening", {}, ShapeState::Empty, {}, 0, false, false},
        {"right press on nothing", {{'R'}}, ShapeState::Empty, {}, 0, false, false},
        {"other button on nothing", {{'O', 5, 5}}, ShapeState::Empty, {}, 0, false, false},
        {"first point", {{'L', 300, 300}}, ShapeState::Drawing, {{300, 300}}, 0, true, false},
        {"halves to even", {{'L', 12.5, 13.5}, {'L', -2.5, 7.49}}, ShapeState::Drawing, {{12, 14}, {-2, 7}}, 1,
         true, false},
        {"other button while drawing", {{'L', 1, 1}, {'O', 9, 9}}, ShapeState::Drawing, {{1, 1}}, 0, true, false},
        {"triangle",
         {{'L', 300, 300}, {'M', 3000, 450}, {'L', 3000, 450}, {'M', 1200, 2400}, {'L', 1200, 2400}, {'R'}},
         ShapeState::Closed, {{300, 300}, {3000, 450}, {1200, 2400}, {300, 300}}, 3, false, true},
        {"one point closed: degenerate", {{'L', 40, 50}, {'R'}}, ShapeState::Closed, {{40, 50}, {40, 50}}, 1,
         false, true},
        {"nothing once closed", {{'L', 1, 1}, {'L', 2, 2}, {'R'}, {'L', 9, 9}, {'R'}, {'O', 3, 3}},
         ShapeState::Closed, {{1, 1}, {2, 2}, {1, 1}}, 2, false, true},
    };
    for (const auto& c : cases) {
        ShapeEditor e;
        e.open({});
        run(e, c.steps);
        EXPECT_EQ(e.state(), c.state) << c.name;
        EXPECT_EQ(e.points(), c.points) << c.name;
        EXPECT_EQ(e.newEdges().size(), c.newEdges) << c.name;
        EXPECT_EQ(e.rubberBandVisible(), c.rubberVisible) << c.name;
        EXPECT_EQ(e.drawing(), c.rubberVisible) << c.name;
        EXPECT_EQ(e.previewEnabled(), c.preview) << c.name;
    }
}

TEST(ShapeEditorStates, EdgesFollowTheRubberBandAndTheClosingEdgeRunsFromPointOne)
{
    ShapeEditor e;
    e.open({});
    run(e, {{'M', 7, 7}, {'L', 100, 100}, {'M', 150.5, 120}, {'M', 200.25, 210}, {'L', 200, 210}, {'R'}});
    const std::vector<ShapeEdge> edges{{{100, 100}, {200.25, 210}}, {{100, 100}, {200, 210}}};
    EXPECT_EQ(e.newEdges(), edges);
}

TEST(ShapeEditorStates, TheRubberBandFollowsOnlyWhileOpenAndUnheld)
{
    ShapeEditor e;
    e.open({});
    EXPECT_FALSE(e.move({5, 6}, false));
    EXPECT_EQ(e.rubberBand().to, (TwipsPoint{5, 6}));   // hidden, yet it follows
    e.press(kLeftButton, {10, 10});
    EXPECT_FALSE(e.move({30, 40}, true));
    EXPECT_EQ(e.rubberBand().to, (TwipsPoint{10, 10}));
    e.press(kRightButton, {});
    EXPECT_FALSE(e.move({50, 50}, false));
    EXPECT_TRUE(e.move({60, 60}, true));   // a closed surface is dragged
    EXPECT_EQ(e.rubberBand().to, (TwipsPoint{10, 10}));
}

TEST(ShapeEditorStates, OldEdgesJoinTheProjectsConsecutivePoints)
{
    struct Case {
        ShapePoints shape;
        std::size_t edges;
    };
    const Case cases[] = {{{}, 0}, {{{1, 1}}, 0}, {{{1, 1}, {2, 2}}, 1}, {{{1, 1}, {2, 2}, {3, 1}, {1, 1}}, 3}};
    for (const auto& c : cases) {
        ShapeEditor e;
        e.open(c.shape);
        EXPECT_EQ(e.oldEdges().size(), c.edges);
        EXPECT_TRUE(e.newEdges().empty());
    }
    ShapeEditor e;
    e.open({{10, 20}, {30, 40}});
    EXPECT_EQ(e.oldEdges().front(), (ShapeEdge{{10, 20}, {30, 40}}));
}

TEST(ShapePixels, ToPixelsAndBackRoundsHalfToEven)
{
    struct Case {
        ShapePoint twips;
        double tppX, tppY;
        PixelPoint pixels;
        ShapePoint back;
    };
    const Case cases[] = {
        {{100, 100}, 15, 15, {7, 7}, {105, 105}},
        {{22, 37}, 15, 15, {1, 2}, {15, 30}},     // 1.47 -> 1, 2.47 -> 2
        {{-100, 7}, 15, 15, {-7, 0}, {-105, 0}},  // 7 / 15 < one half
        {{30, 45}, 15, 15, {2, 3}, {30, 45}},     // already on the grid
        {{25, 36}, 10, 12, {2, 3}, {20, 36}},     // 2.5 -> 2; other ratios per axis
        {{35, 0}, 10, 0, {4, 0}, {40, 0}},        // 3.5 -> 4; a missing ratio counts as 15
        {{2147483647, -2147483647 - 1}, 1, 1, {2147483647, -2147483647 - 1}, {2147483647, -2147483647 - 1}},
    };
    for (const auto& c : cases) {
        const auto px = shapeInPixels({c.twips}, c.tppX, c.tppY);
        ASSERT_EQ(px.size(), 1u);
        EXPECT_EQ(px.front(), c.pixels) << c.twips.x << "," << c.twips.y;
        EXPECT_EQ(shapeInTwips(px, c.tppX, c.tppY).front(), c.back) << c.twips.x << "," << c.twips.y;
    }
}

}  // namespace
}  // namespace qor
