#include "player/win32/window_region.h"

#include <gtest/gtest.h>

#include <string>

namespace qor::player {
namespace {

struct Probe {
    int x;
    int y;
    bool inside;
};

void expectRegion(HRGN region, std::initializer_list<Probe> probes, const std::string& name)
{
    ASSERT_NE(region, nullptr) << name;
    for (const Probe& p : probes)
        EXPECT_EQ(PtInRegion(region, p.x, p.y) != 0, p.inside) << name << " at " << p.x << "," << p.y;
    DeleteObject(region);
}

TEST(WindowRegion, OutlineFilledByWinding)
{
    const std::vector<PixelPoint> square{{10, 10}, {90, 10}, {90, 90}, {10, 90}};
    const std::vector<PixelPoint> squareBack{{10, 10}, {10, 90}, {90, 90}, {90, 10}};
    // A five-pointed star drawn in one stroke: its centre is crossed twice,
    // and the winding rule keeps it filled.
    const std::vector<PixelPoint> star{{50, 0}, {79, 90}, {2, 35}, {98, 35}, {21, 90}};
    const std::vector<PixelPoint> beyond{{-50, -50}, {150, -50}, {150, 150}, {-50, 150}};
    expectRegion(windowRegion(100, 100, square, {}), {{50, 50, true}, {5, 5, false}, {95, 50, false}}, "square");
    expectRegion(windowRegion(100, 100, squareBack, {}), {{50, 50, true}, {5, 5, false}}, "square the other way");
    expectRegion(windowRegion(100, 100, star, {}), {{50, 50, true}, {50, 5, true}, {5, 80, false}}, "star");
    expectRegion(windowRegion(100, 100, beyond, {}), {{0, 0, true}, {99, 99, true}, {100, 100, false}}, "cut to window");
}

TEST(WindowRegion, WhiteAndClearPixelsCut)
{
    constexpr std::uint32_t kept = 0xFF000000, white = 0xFFFFFFFF, clear = 0x00000000, almostWhite = 0xFFFFFFFE;
    // 4 x 2: a row of white, kept, clear, almost white; a row all kept.
    const std::vector<std::uint32_t> pixels{white, kept, clear, almostWhite, kept, kept, kept, kept};
    expectRegion(windowRegion(4, 2, {}, pixels),
                 {{0, 0, false}, {1, 0, true}, {2, 0, false}, {3, 0, true}, {0, 1, true}, {3, 1, true}}, "image");
    // Both cuts at once: only what both keep stays.
    const std::vector<PixelPoint> left{{0, 0}, {2, 0}, {2, 2}, {0, 2}};
    expectRegion(windowRegion(4, 2, left, pixels), {{1, 0, true}, {0, 1, true}, {3, 0, false}, {3, 1, false}},
                 "outline and image");
}

TEST(WindowRegion, NothingCutKeepsTheRectangle)
{
    const std::vector<std::uint32_t> allWhite(16, 0xFFFFFFFF);
    const std::vector<PixelPoint> outside{{200, 200}, {300, 200}, {300, 300}};
    EXPECT_EQ(windowRegion(4, 4, {}, {}), nullptr);
    EXPECT_EQ(windowRegion(4, 4, {}, allWhite), nullptr);
    EXPECT_EQ(windowRegion(100, 100, outside, {}), nullptr);
}

}  // namespace
}  // namespace qor::player
