// Feeds arbitrary bytes to the shape-file reader as a ".ffl" file. Whatever
// it takes must hold together: a refused file gives no point, a read that
// stopped says why, and the points read survive a save and a second read
// unchanged. The points then go through the preview's pixel round trip and
// the window cut, which must stay inside the window.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/shape/shape_file.h"
#include "core/shape/shape_pixels.h"
#include "model/shape_region.h"

namespace {

using namespace qor;

void check(bool ok)
{
    if (!ok)
        std::abort();
}

void checkCut(const ShapePoints& points)
{
    const auto pixels = shapeInPixels(points, 15, 15);
    check(shapeInTwips(pixels, 15, 15).size() == points.size());
    constexpr int kWidth = 64, kHeight = 48;
    int lastRow = -1, lastEnd = -1;
    for (const PixelRun& r : polygonRuns(pixels, kWidth, kHeight)) {
        check(r.y >= 0 && r.y < kHeight && r.x >= 0 && r.width > 0 && r.x + r.width <= kWidth);
        check(r.y > lastRow || r.x > lastEnd);
        lastEnd = r.x + r.width;
        lastRow = r.y;
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const ShapeFileRead read = readShapeFile(bytes);
    if (!read.started) {
        check(read.error.has_value() && read.points.empty());
        return 0;
    }
    const std::string saved = shapeFileBytes(read.points, {});
    const ShapeFileRead again = readShapeFile(saved.empty() ? "[FormeMenu]\r\n[/FormeMenu]\r\n" : saved);
    check(again.started && !again.error && again.points == read.points);
    checkCut(read.points);
    return 0;
}
