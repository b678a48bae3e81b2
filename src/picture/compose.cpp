#include "picture/compose.h"

#include <QPainter>

namespace qor {
namespace {

// The layer's picture at the size of its place, as opaque RGB.
QImage fitted(const PictureLayer& layer)
{
    QImage picture = layer.picture.convertToFormat(QImage::Format_RGB32);
    if (picture.size() != layer.place.size())
        picture = picture.scaled(layer.place.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
    return picture;
}

// Copies every pixel but those of the key colour; a colour key compares
// the colour alone.
void drawKeyed(QImage& out, const QImage& picture, QPoint at, QRgb key)
{
    const QRect clipped = QRect(at, picture.size()).intersected(out.rect());
    const QRgb keyColour = key & 0x00FFFFFFu;
    for (int y = clipped.top(); y <= clipped.bottom(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y - at.y()));
        auto* to = reinterpret_cast<QRgb*>(out.scanLine(y));
        for (int x = clipped.left(); x <= clipped.right(); ++x) {
            const QRgb p = from[x - at.x()];
            if ((p & 0x00FFFFFFu) != keyColour)
                to[x] = p;
        }
    }
}

}  // namespace

QImage compose(QSize size, const QColor& fill, const std::vector<PictureLayer>& layers)
{
    QImage out(size, QImage::Format_RGB32);
    if (out.isNull())
        return out;
    out.fill(fill.rgb());
    for (const PictureLayer& layer : layers) {
        if (layer.picture.isNull() || layer.place.isEmpty())
            continue;
        const QImage picture = fitted(layer);
        if (layer.key) {
            drawKeyed(out, picture, layer.place.topLeft(), *layer.key);
        } else {
            QPainter painter(&out);
            painter.drawImage(layer.place.topLeft(), picture);
        }
    }
    return out;
}

}  // namespace qor
