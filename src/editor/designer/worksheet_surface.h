#pragma once

#include "picture/button_bake.h"

namespace qor {

class WorksheetWindow;

// The worksheet as baking sees it: what it shows under a button is drawn
// off screen from its own widgets, with that button, the selection handles
// and the waiting overlay left out, so that no other window covering it
// and no display at all changes the result.
class WorksheetSurface final : public BakeSurface {
public:
    explicit WorksheetSurface(WorksheetWindow& sheet) : sheet_(sheet) {}

    QImage under(int number, const QRect& rect) override;
    void showOnButton(int number, const QImage& picture) override;

private:
    WorksheetWindow& sheet_;
};

}  // namespace qor
