#include "player/qt/window_mask.h"

#include <QVector>

namespace qor::player {
namespace {

// The outline's pixels as the shape preview of the editor cuts them.
QRegion outlineRegion(QSize size, const std::vector<PixelPoint>& outline)
{
    const std::vector<PixelRun> runs = polygonRuns(outline, size.width(), size.height());
    QVector<QRect> rects;
    rects.reserve(qsizetype(runs.size()));
    for (const PixelRun& r : runs)
        rects.append(QRect(r.x, r.y, r.width, 1));
    QRegion region;
    region.setRects(rects.constData(), int(rects.size()));
    return region;
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
        region = outlineRegion(size, outline);
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
