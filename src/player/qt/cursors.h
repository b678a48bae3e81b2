#pragma once

#include <QCursor>
#include <QWidget>

#include "player/core/player.h"

namespace qor::player {

// Gives a widget the pointer the core chose; Default leaves the widget's own.
void applyPointer(QWidget& widget, const PointerShape& shape);

}  // namespace qor::player
