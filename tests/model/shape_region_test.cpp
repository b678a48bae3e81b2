#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "model/shape_region.h"

namespace qor {
namespace {

using Pixels = std::set<std::pair<int, int>>;

Pixels pixelsOf(const std::vector<PixelRun>& runs)
{
    Pixels out;
    for (const PixelRun& r : runs)
        for (int x = r.x; x < r.x + r.width; ++x)
            out.insert({x, r.y});
    return out;
}

Pixels rect(int x0, int y0, int x1, int y1)
{
    Pixels out;
    for (int y = y0; y < y1; ++y)
        for (int x = x0; x < x1; ++x)
            out.insert({x, y});
    return out;
}

struct RegionCase {
    const char* name;
    std::vector<PixelPoint> outline;
    int width, height;
    Pixels expected;
};

TEST(ShapeRegion, PixelsWhoseCentresLieInsideTheOutline)
{
    const RegionCase cases[] = {
        {"square, closed by a repeat", {{2, 1}, {6, 1}, {6, 4}, {2, 4}, {2, 1}}, 10, 10, rect(2, 1, 6, 4)},
        {"square, left open", {{2, 1}, {6, 1}, {6, 4}, {2, 4}}, 10, 10, rect(2, 1, 6, 4)},
        {"same square anticlockwise", {{2, 1}, {2, 4}, {6, 4}, {6, 1}}, 10, 10, rect(2, 1, 6, 4)},
        {"cut at the window's edges", {{-5, -5}, {4, -5}, {4, 3}, {-5, 3}}, 3, 2, rect(0, 0, 3, 2)},
        {"wholly outside", {{20, 20}, {30, 20}, {30, 30}}, 10, 10, {}},
        {"one point", {{3, 3}}, 10, 10, {}},
        {"two distinct points, closed", {{1, 1}, {8, 8}, {1, 1}}, 10, 10, {}},
        {"three points on a line", {{1, 1}, {4, 4}, {8, 8}}, 10, 10, {}},
        {"triangle", {{0, 0}, {4, 0}, {0, 4}}, 10, 10,
         Pixels{{0, 0}, {1, 0}, {2, 0}, {0, 1}, {1, 1}, {0, 2}}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(pixelsOf(polygonRuns(c.outline, c.width, c.height)), c.expected) << c.name;
}

TEST(ShapeRegion, SelfCrossingOverlapsStayFilled)
{
    // Two squares drawn in one outline, both clockwise, overlapping on
    // 3..5 x 3..5: the winding rule keeps the overlap (an even-odd fill
    // would leave it hollow).
    const std::vector<PixelPoint> outline{{0, 0}, {5, 0}, {5, 5}, {3, 5}, {3, 3}, {8, 3}, {8, 8}, {3, 8}, {3, 5},
                                          {0, 5}};
    const Pixels kept = pixelsOf(polygonRuns(outline, 10, 10));
    Pixels expected = rect(0, 0, 5, 5);
    expected.merge(rect(3, 3, 8, 8));
    EXPECT_EQ(kept, expected);
}

TEST(ShapeRegion, APentagramKeepsItsCentreWhicheverWayItIsDrawn)
{
    // Each edge crosses two others: the centre is wound twice.
    std::vector<PixelPoint> star{{50, 0}, {79, 90}, {2, 35}, {98, 35}, {21, 90}};
    const Pixels clockwise = pixelsOf(polygonRuns(star, 100, 100));
    EXPECT_TRUE(clockwise.contains({50, 50}));
    EXPECT_TRUE(clockwise.contains({50, 5}));
    EXPECT_FALSE(clockwise.contains({50, 95}));
    std::reverse(star.begin(), star.end());
    EXPECT_EQ(pixelsOf(polygonRuns(star, 100, 100)), clockwise);
}

TEST(ShapeRegion, RunsAreOrderedAndNeverTouchOnARow)
{
    // A comb: several teeth crossing the same rows.
    std::vector<PixelPoint> outline{{0, 9}};
    for (int t = 0; t < 5; ++t) {
        outline.push_back({t * 4, 0});
        outline.push_back({t * 4 + 2, 0});
        outline.push_back({t * 4 + 2, 5});
        outline.push_back({t * 4 + 4, 5});
    }
    outline.push_back({20, 9});
    const auto runs = polygonRuns(outline, 30, 10);
    ASSERT_FALSE(runs.empty());
    for (std::size_t i = 1; i < runs.size(); ++i) {
        const PixelRun& a = runs[i - 1];
        const PixelRun& b = runs[i];
        EXPECT_TRUE(a.y < b.y || (a.y == b.y && a.x + a.width < b.x)) << "run " << i;
    }
    EXPECT_EQ(runs.front(), (PixelRun{0, 0, 2}));
}

}  // namespace
}  // namespace qor
