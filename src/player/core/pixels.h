#pragma once

#include <vector>

#include "model/shape_block.h"
#include "player/core/scene.h"

namespace qor::player {

// Twips to whole pixels, halves to even. Values beyond what a window can
// hold (a width of 1E+308, a NaN) are brought back to +-kMaxPixels, so
// hostile data never reaches the window system as a wild number.
inline constexpr int kMaxPixels = 32767;
int twipsToPixels(double twips, double twipsPerPixel);

// The shape block as a window outline in pixels. An outline of fewer than
// three distinct points has no area: it is dropped and the window stays
// rectangular, so the menu can still be seen and closed.
std::vector<PixelPoint> outlineInPixels(const ShapePoints& points, double twipsPerPixelX, double twipsPerPixelY);

// How much a window laid out at width x height pixels (15 twips each) is
// scaled on a screen: by the screen's density factor (1 at 96 dpi), but
// never beyond the area it may fill (the work area), where it is reduced as
// a whole so every button stays inside it. Never 0 or less.
double windowScale(double densityFactor, double width, double height, int areaWidth, int areaHeight);

// The pointer shape for a MousePointer number; unknown numbers give Default.
Cursor cursorFor(int mousePointer);

}  // namespace qor::player
