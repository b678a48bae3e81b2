#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/ports/screen.h"
#include "core/ui/phrases.h"

namespace qor {

// The worksheet's rules, in twips with the worksheet's inner top-left
// corner as origin.

// An element's place and size.
struct ElementBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    friend bool operator==(const ElementBox&, const ElementBox&) = default;
};

// "Feuille de travail - 9000x7200 - 600x480px" for a window of that outer
// size, or "Feuille de travail - (sera affiché en plein écran)" (phrases 39
// and 40). The pixel sizes are not rounded.
std::string worksheetCaption(bool fullScreen, TwipsSize outer, const ScreenMetrics& screen, const Phrases& phrases);

// The four selection handles' top-left corners around an element: above
// left, above right, below left, below right, each just outside the box.
std::array<TwipsPoint, 4> handlePositions(const ElementBox& element, TwipsSize handle);

// The handles are 7 by 7 pixels.
inline constexpr int kHandlePixels = 7;

// Where a dropped element goes: the pointer in the target, moved into
// worksheet coordinates by the target's own place (zero for the
// background), less the grab offset. Nothing snaps, nothing is bounded.
TwipsPoint dropPosition(TwipsPoint pointerInTarget, TwipsPoint targetOrigin, TwipsPoint grab);

// The pointer's worksheet position: over an element its place plus the
// offset, rounded; over the background the offset itself, unrounded.
TwipsPoint pointerOverElement(TwipsPoint elementOrigin, TwipsPoint offset);

// The size a resized text box takes with the pointer at pointer: from its
// top-left corner to the pointer. Nothing when that is not a positive size
// the platform can show.
std::optional<TwipsSize> resizedTextSize(TwipsPoint textOrigin, TwipsPoint pointer, const ScreenMetrics& screen);

}  // namespace qor
