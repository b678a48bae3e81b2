#include "core/designer/worksheet_rules.h"

#include "core/designer/property_checks.h"
#include "text/numbers.h"

namespace qor {

std::string worksheetCaption(bool fullScreen, TwipsSize outer, const ScreenMetrics& screen, const Phrases& phrases)
{
    const std::string title = phrases.text(39, "Feuille de travail") + " - ";
    if (fullScreen)
        return title + phrases.text(40, "(sera affiché en plein écran)");
    return title + numberText(float(outer.width)) + "x" + numberText(float(outer.height)) + " - " +
           numberText(float(outer.width / screen.twipsPerPixelX)) + "x" +
           numberText(float(outer.height / screen.twipsPerPixelY)) + "px";
}

std::array<TwipsPoint, 4> handlePositions(const ElementBox& e, TwipsSize h)
{
    const double leftOut = e.left - h.width;
    const double rightOut = e.left + e.width;
    const double above = e.top - h.height;
    const double below = e.top + e.height;
    return {{{leftOut, above}, {rightOut, above}, {leftOut, below}, {rightOut, below}}};
}

TwipsPoint dropPosition(TwipsPoint pointerInTarget, TwipsPoint targetOrigin, TwipsPoint grab)
{
    return {pointerInTarget.x + targetOrigin.x - grab.x, pointerInTarget.y + targetOrigin.y - grab.y};
}

TwipsPoint pointerOverElement(TwipsPoint elementOrigin, TwipsPoint offset)
{
    return {roundHalfEven(elementOrigin.x + offset.x), roundHalfEven(elementOrigin.y + offset.y)};
}

std::optional<TwipsSize> resizedTextSize(TwipsPoint textOrigin, TwipsPoint pointer, const ScreenMetrics& screen)
{
    const TwipsSize size{pointer.x - textOrigin.x, pointer.y - textOrigin.y};
    if (size.width <= 0 || size.height <= 0 || size.width / screen.twipsPerPixelX > kMaxPixels ||
        size.height / screen.twipsPerPixelY > kMaxPixels)
        return std::nullopt;
    return size;
}

}  // namespace qor
