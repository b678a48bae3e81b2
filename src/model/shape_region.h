#pragma once

#include <span>
#include <vector>

namespace qor {

// A point in window pixels, from the window's top-left corner.
struct PixelPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

// One horizontal run of kept pixels: row y, columns x to x + width - 1.
struct PixelRun {
    int x = 0;
    int y = 0;
    int width = 0;
    friend bool operator==(const PixelRun&, const PixelRun&) = default;
};

// The pixels of a width x height window that lie inside a polygon, filled
// by the winding rule (overlaps of a self-crossing outline stay filled), as
// runs sorted by row then column, never touching one another on a row. A
// pixel is inside when its centre is; the polygon closes itself from its
// last point back to its first. The editor's shape preview and the menu
// player both cut their windows from this, so the two always agree. An
// outline without area (fewer than three distinct points, all on one line)
// gives no run.
std::vector<PixelRun> polygonRuns(std::span<const PixelPoint> outline, int width, int height);

}  // namespace qor
