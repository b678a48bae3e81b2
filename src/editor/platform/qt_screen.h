#pragma once

#include "core/ports/screen.h"

namespace qor {

// The Screen port: the primary screen's size in twips, at 1440 / logical DPI
// twips per pixel on each axis.
class QtScreen : public Screen {
public:
    ScreenMetrics metrics() override;
};

}  // namespace qor
