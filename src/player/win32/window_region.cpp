#include "player/win32/window_region.h"

#include <cstring>
#include <memory>

namespace qor::player {
namespace {

bool isCut(std::uint32_t argb)
{
    return (argb >> 24) < 128 || (argb & 0xFFFFFFu) == 0xFFFFFFu;
}

HRGN outlineRegion(const std::vector<PixelPoint>& outline)
{
    std::vector<POINT> points;
    points.reserve(outline.size());
    for (const PixelPoint& p : outline)
        points.push_back(POINT{p.x, p.y});
    return CreatePolygonRgn(points.data(), int(points.size()), WINDING);
}

// One rectangle per run of kept pixels in a row, handed to the system in
// one piece: even a large window takes one pass.
HRGN imageRegion(int width, int height, const std::vector<std::uint32_t>& pixels)
{
    std::vector<RECT> runs;
    for (int y = 0; y < height; ++y) {
        const std::uint32_t* line = pixels.data() + std::size_t(y) * std::size_t(width);
        for (int x = 0; x < width;) {
            if (isCut(line[x])) {
                ++x;
                continue;
            }
            const int from = x;
            while (x < width && !isCut(line[x]))
                ++x;
            runs.push_back(RECT{from, y, x, y + 1});
        }
    }
    const std::size_t bytes = sizeof(RGNDATAHEADER) + runs.size() * sizeof(RECT);
    std::unique_ptr<char[]> buffer(new char[bytes]);
    auto* data = reinterpret_cast<RGNDATA*>(buffer.get());
    data->rdh = RGNDATAHEADER{sizeof(RGNDATAHEADER), RDH_RECTANGLES, DWORD(runs.size()), 0, RECT{0, 0, width, height}};
    if (!runs.empty())
        std::memcpy(data->Buffer, runs.data(), runs.size() * sizeof(RECT));
    return ExtCreateRegion(nullptr, DWORD(bytes), data);
}

}  // namespace

HRGN windowRegion(int width, int height, const std::vector<PixelPoint>& outline,
                  const std::vector<std::uint32_t>& transparency)
{
    HRGN region = nullptr;
    if (!outline.empty()) {
        // Only what lies on the window matters to the window system.
        region = outlineRegion(outline);
        HRGN window = CreateRectRgn(0, 0, width, height);
        if (region && window)
            CombineRgn(region, region, window, RGN_AND);
        if (window)
            DeleteObject(window);
    }
    if (!transparency.empty() && transparency.size() == std::size_t(width) * std::size_t(height)) {
        HRGN kept = imageRegion(width, height, transparency);
        if (region && kept) {
            CombineRgn(region, region, kept, RGN_AND);
            DeleteObject(kept);
        } else if (kept) {
            region = kept;
        }
    }
    RECT box{};
    if (region && GetRgnBox(region, &box) == NULLREGION) {
        DeleteObject(region);
        return nullptr;
    }
    return region;
}

}  // namespace qor::player
