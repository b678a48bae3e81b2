#include "core/shape/shape_pixels.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "text/numbers.h"

namespace qor {
namespace {

// A screen that reports no ratio is taken as an ordinary one.
double ratio(double twipsPerPixel) { return twipsPerPixel > 0 ? twipsPerPixel : 15; }

}  // namespace

std::int32_t wholeCoordinate(double value)
{
    if (std::isnan(value))
        return 0;
    constexpr double lo = std::numeric_limits<std::int32_t>::min();
    constexpr double hi = std::numeric_limits<std::int32_t>::max();
    return std::int32_t(std::clamp(roundHalfEven(value), lo, hi));
}

std::vector<PixelPoint> shapeInPixels(const ShapePoints& points, double twipsPerPixelX, double twipsPerPixelY)
{
    std::vector<PixelPoint> out;
    out.reserve(points.size());
    for (const ShapePoint& p : points)
        out.push_back({wholeCoordinate(p.x / ratio(twipsPerPixelX)), wholeCoordinate(p.y / ratio(twipsPerPixelY))});
    return out;
}

ShapePoints shapeInTwips(const std::vector<PixelPoint>& pixels, double twipsPerPixelX, double twipsPerPixelY)
{
    ShapePoints out;
    out.reserve(pixels.size());
    for (const PixelPoint& p : pixels)
        out.push_back({wholeCoordinate(p.x * ratio(twipsPerPixelX)), wholeCoordinate(p.y * ratio(twipsPerPixelY))});
    return out;
}

}  // namespace qor
