#include "core/designer/mouse_position.h"

#include "text/numbers.h"

namespace qor {

MousePositionTexts restingMousePositionTexts()
{
    return {"X=0000", "Y=0000", "X=0000", "Y=0000"};
}

MousePositionTexts mousePositionTexts(float x, float y, double twipsPerPixelX, double twipsPerPixelY)
{
    return {"X=" + numberText(x), "Y=" + numberText(y),
            "X=" + numberText(float(x / twipsPerPixelX)) + "px",
            "Y=" + numberText(float(y / twipsPerPixelY)) + "px"};
}

}  // namespace qor
