#pragma once

#include <QColor>

#include <cstdint>

namespace qor::player {

// 0x00BBGGRR as a colour; 0x80000000 + n is the system's colour n, taken
// from the palette of the current style.
QColor toQColor(std::uint32_t colour);

}  // namespace qor::player
