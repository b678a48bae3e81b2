#pragma once

#include <QImage>
#include <QRegion>
#include <QSize>

#include <vector>

#include "player/core/scene.h"

namespace qor::player {

// The part of a window of the given size that stays on screen: inside the
// outline polygon (winding fill) when there is one, and where the
// transparency image, scaled to the window, is neither white nor
// transparent. An empty region means "the whole window": no cut at all.
QRegion windowMask(QSize size, const std::vector<PixelPoint>& outline, const QImage& transparency);

}  // namespace qor::player
