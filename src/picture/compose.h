#pragma once

#include <QColor>
#include <QImage>
#include <QRect>

#include <optional>
#include <vector>

namespace qor {

// One picture laid on a composition: drawn into its place (stretched to
// the place's size when they differ), leaving out every pixel of the key
// colour when there is one.
struct PictureLayer {
    QImage picture;
    QRect place;
    std::optional<QRgb> key;
};

// A picture of that size filled with one colour, then every layer drawn
// over it in order. The result is opaque 32-bit RGB.
QImage compose(QSize size, const QColor& fill, const std::vector<PictureLayer>& layers);

}  // namespace qor
