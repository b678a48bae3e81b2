#pragma once

#include <QImage>
#include <QPalette>
#include <QRect>

#include <optional>
#include <string>
#include <vector>

#include "core/ports/screen.h"
#include "model/menu_project.h"

namespace qor {

// The worksheet as baking sees it: what lies under a button, and the
// button that shows each baked picture.
class BakeSurface {
public:
    virtual ~BakeSurface() = default;
    // What the worksheet shows in that rectangle (pixels) with button n
    // left out: background colour and picture, and the other elements.
    virtual QImage under(int number, const QRect& rect) = 0;
    // Button n shows that picture, at its size.
    virtual void showOnButton(int number, const QImage& picture) = 0;
};

// How a bake ended: the files written and, when one could not be, its path.
struct BakeOutcome {
    std::vector<std::string> written;
    std::optional<std::string> unwritable;
};

// Bakes button n's pictures (pressed, hover, normal): each is laid over what
// lies under the button, its key colour left out, shown on the button and
// written beside its source. A picture that cannot be read ends the bake of
// that button quietly; one that cannot be written ends it with its path.
BakeOutcome bakeButton(const MenuProject& project, int number, const ScreenMetrics& screen, const QPalette& palette,
                       BakeSurface& surface);

// Every button bake all buttons renders; the first unwritable file stops
// nothing but its own button's bake, and is the one reported.
BakeOutcome bakeButtons(const MenuProject& project, const ScreenMetrics& screen, const QPalette& palette,
                        BakeSurface& surface);

}  // namespace qor
