#pragma once

#include <cstdint>
#include <vector>

#include "model/shape_block.h"
#include "model/shape_region.h"

namespace qor {

// A coordinate rounded to a whole number, halves to even, kept within 32
// bits so that no point of a hostile file turns into a wild value.
std::int32_t wholeCoordinate(double value);

// The working list in window pixels: each coordinate divided by the
// screen's twips per pixel of its axis, rounded half to even.
std::vector<PixelPoint> shapeInPixels(const ShapePoints& points, double twipsPerPixelX, double twipsPerPixelY);

// Pixels back to twips, rounded the same way: after a preview every
// coordinate is a whole number of pixels (100 twips -> 7 px -> 105 twips).
ShapePoints shapeInTwips(const std::vector<PixelPoint>& pixels, double twipsPerPixelX, double twipsPerPixelY);

}  // namespace qor
