#include "core/app/window_arrangement.h"

namespace qor {

namespace {
constexpr double kGap = 200;
constexpr double kBottomMargin = 500;
constexpr double kMousePositionGap = 500;
}  // namespace

WindowArrangement arrangeWindows(const WindowSizes& sizes, const ScreenMetrics& screen,
                                 TwipsSize menuSize)
{
    WindowArrangement a;
    a.worksheetSize = menuSize;
    a.worksheet.top = (screen.heightTwips - menuSize.height) / 2;
    a.toolbox.top = a.worksheet.top;
    a.worksheet.left = (screen.widthTwips - (menuSize.width + kGap + sizes.toolbox.width)) / 2;
    a.toolbox.left = a.worksheet.left + menuSize.width + kGap;
    a.main.left = (screen.widthTwips - sizes.main.width) / 2;
    a.main.top = a.worksheet.top - sizes.main.height - kGap;
    a.properties.left = a.toolbox.left;
    a.properties.top = a.toolbox.top + sizes.toolbox.height + kGap;
    a.propertiesHeight = screen.heightTwips - a.properties.top - kBottomMargin;
    a.mousePosition.top = a.main.top;
    a.mousePosition.left = a.main.left + sizes.main.width + kMousePositionGap;
    return a;
}

}  // namespace qor
