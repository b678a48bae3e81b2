#pragma once

#include <array>
#include <string>

namespace qor {

// The four read-outs of the "Position de la souris" window: "X=", "Y=" in
// twips on the top row, in pixels with "px" on the bottom row.
using MousePositionTexts = std::array<std::string, 4>;

// At rest: "X=0000", "Y=0000", "X=0000", "Y=0000".
MousePositionTexts restingMousePositionTexts();

// A pointer at (x, y) twips over the worksheet. Each number is the shortest
// text of a single-precision value: "X=1000", "X=66.66666px".
MousePositionTexts mousePositionTexts(float x, float y, double twipsPerPixelX, double twipsPerPixelY);

}  // namespace qor
