#pragma once

#include <QColor>
#include <QPalette>

#include "core/ports/dialogs.h"

namespace qor {

// Colours are kept as 0x00BBGGRR; a value with the high bit set,
// 0x80000000 + n, is the system's standard colour n, which this platform
// takes from the palette of the current style.

// The palette role that stands for system colour n (15 button face, 5 window,
// 18 button text, ...). Unknown numbers fall back to the window colour.
QPalette::ColorRole systemColourRole(int n);

// True when the colour names a system colour.
inline bool isSystemColour(Colour c) { return (std::uint32_t(c) & 0x80000000u) != 0; }

// The colour as Qt draws it; system colours come from palette.
QColor toQColor(Colour colour, const QPalette& palette);

// A Qt colour as 0x00BBGGRR (always a plain colour; alpha is dropped).
Colour fromQColor(const QColor& colour);

}  // namespace qor
