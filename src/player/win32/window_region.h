#pragma once

#include <windows.h>

#include <cstdint>
#include <vector>

#include "player/core/scene.h"

namespace qor::player {

// The window's visible region, in window pixels: the outline polygon
// (winding fill) and the kept pixels of the transparency image (scaled to
// the window, 0xAARRGGBB rows; white and transparent pixels are cut). Null
// when nothing is cut, or when the cuts leave nothing: a window cut away
// entirely could never be closed, so it keeps its rectangle.
HRGN windowRegion(int width, int height, const std::vector<PixelPoint>& outline,
                  const std::vector<std::uint32_t>& transparency);

}  // namespace qor::player
