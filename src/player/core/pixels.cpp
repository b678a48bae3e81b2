#include "player/core/pixels.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <utility>

#include "text/numbers.h"

namespace qor::player {

int twipsToPixels(double twips, double twipsPerPixel)
{
    if (!(twipsPerPixel > 0))
        twipsPerPixel = 15;
    const double pixels = roundHalfEven(twips / twipsPerPixel);
    if (std::isnan(pixels))
        return 0;
    return int(std::clamp(pixels, double(-kMaxPixels), double(kMaxPixels)));
}

double windowScale(double densityFactor, double width, double height, int areaWidth, int areaHeight)
{
    double scale = densityFactor > 0 && std::isfinite(densityFactor) ? densityFactor : 1;
    if (width > 0 && areaWidth > 0 && width * scale > areaWidth)
        scale = areaWidth / width;
    if (height > 0 && areaHeight > 0 && height * scale > areaHeight)
        scale = areaHeight / height;
    // A window of one pixel at the least, however hostile its size.
    const double least = 1 / std::max({1.0, width, height});
    return std::max(scale, least);
}

std::vector<PixelPoint> outlineInPixels(const ShapePoints& points, double twipsPerPixelX, double twipsPerPixelY)
{
    std::vector<PixelPoint> out;
    out.reserve(points.size());
    std::set<std::pair<int, int>> distinct;
    for (const ShapePoint& p : points) {
        out.push_back({twipsToPixels(p.x, twipsPerPixelX), twipsToPixels(p.y, twipsPerPixelY)});
        if (distinct.size() < 3)
            distinct.insert({out.back().x, out.back().y});
    }
    if (distinct.size() < 3)
        out.clear();
    return out;
}

Cursor cursorFor(int mousePointer)
{
    static constexpr std::pair<int, Cursor> kCursors[] = {
        {1, Cursor::Arrow},    {2, Cursor::Cross},     {3, Cursor::IBeam},     {4, Cursor::Arrow},
        {5, Cursor::SizeAll},  {6, Cursor::SizeNeSw},  {7, Cursor::SizeNS},    {8, Cursor::SizeNwSe},
        {9, Cursor::SizeWE},   {10, Cursor::UpArrow},  {11, Cursor::Wait},     {12, Cursor::NoDrop},
        {13, Cursor::ArrowWait}, {14, Cursor::Help},   {15, Cursor::SizeAll},  {99, Cursor::Custom},
    };
    for (const auto& [number, cursor] : kCursors)
        if (number == mousePointer)
            return cursor;
    return Cursor::Default;
}

}  // namespace qor::player
