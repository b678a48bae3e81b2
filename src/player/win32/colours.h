#pragma once

#include <windows.h>

#include <cstdint>

namespace qor::player {

// 0x00BBGGRR is the system's own colour order; 0x80000000 + n is system
// colour n, as the system itself defines it.
inline COLORREF toColorRef(std::uint32_t colour)
{
    if (colour & 0x80000000u)
        return GetSysColor(int(colour & 0xFFu));
    return COLORREF(colour & 0x00FFFFFFu);
}

}  // namespace qor::player
