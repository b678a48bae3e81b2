#include "player/qt/window_mask.h"

#include <QVector>
#include <QPolygon>

namespace qor::player {
namespace {

QRegion outlineRegion(const std::vector<PixelPoint>& outline)
{
    QPolygon polygon;
    polygon.reserve(int(outline.size()));
    for (const PixelPoint& p : outline)
        polygon.append(QPoint(p.x, p.y));
    return QRegion(polygon, Qt::WindingFill);
}

bool isCut(QRgb c)
{
    return qAlpha(c) < 128 || (qRed(c) == 255 && qGreen(c) == 255 && qBlue(c) == 255);
}

// White pixels and transparent ones (a GIF's) are cut out. The region is
// built from the runs of kept pixels of each row, in the order QRegion keeps
// its rectangles, so even a large window takes one pass.
QRegion imageRegion(QSize size, const QImage& image)
{
    const QImage scaled =
        image.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation).convertToFormat(QImage::Format_ARGB32);
    QVector<QRect> runs;
    for (int y = 0; y < scaled.height(); ++y) {
        const QRgb* line = reinterpret_cast<const QRgb*>(scaled.constScanLine(y));
        for (int x = 0; x < scaled.width();) {
            if (isCut(line[x])) {
                ++x;
                continue;
            }
            const int from = x;
            while (x < scaled.width() && !isCut(line[x]))
                ++x;
            runs.append(QRect(from, y, x - from, 1));
        }
    }
    QRegion region;
    region.setRects(runs.constData(), int(runs.size()));
    return region;
}

}  // namespace

QRegion windowMask(QSize size, const std::vector<PixelPoint>& outline, const QImage& transparency)
{
    QRegion region;
    bool cut = false;
    if (!outline.empty()) {
        // Only what lies on the window matters to the window system.
        region = outlineRegion(outline).intersected(QRect(QPoint(0, 0), size));
        cut = true;
    }
    if (!transparency.isNull() && !size.isEmpty()) {
        const QRegion kept = imageRegion(size, transparency);
        region = cut ? region.intersected(kept) : kept;
        cut = true;
    }
    if (cut && region.isEmpty())
        // Nothing left to see or to click: a window cut away entirely
        // could never be closed, so it keeps its rectangle.
        return QRegion();
    return region;
}

}  // namespace qor::player
