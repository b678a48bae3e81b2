#pragma once

#include <string>
#include <string_view>

namespace qor {

// Windows-1252, the character set of every text file the editor writes.
// All 256 bytes decode: the five bytes the code page leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the control characters of the same
// number, so any byte string survives a decode/encode round trip.

// Bytes in Windows-1252 -> UTF-8.
std::string decodeCp1252(std::string_view bytes);

// UTF-8 -> bytes in Windows-1252. A character the code page cannot hold,
// and any malformed UTF-8 sequence, becomes "?".
std::string encodeCp1252(std::string_view utf8);

// The Windows-1252 byte of a Unicode code point, or -1 when there is none.
int cp1252ByteOf(char32_t codePoint);

// The Unicode code point of a Windows-1252 byte.
char32_t cp1252CodePoint(unsigned char byte);

}  // namespace qor
