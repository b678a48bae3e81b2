#pragma once

#include <string>
#include <string_view>

#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

// The engine's text vocabulary is the shared text library's: strings are
// UTF-8, the character functions (Chr, Asc) speak Windows-1252, letter case
// folds the Latin letters menus and translations use. nextCodePoint,
// byteOffsetOfChar, lowerCodePoint, upperCodePoint, compareNoCase,
// lowerAscii and equalsNoCaseAscii are found in qor as they are; the names
// below are the engine's spellings of the others.

inline void appendCodePoint(std::string& out, char32_t c) { appendUtf8(out, c); }
inline char32_t cp1252ToUnicode(unsigned char byte) { return cp1252CodePoint(byte); }
inline int unicodeToCp1252(char32_t c) { return cp1252ByteOf(c); }
inline std::string lowerText(std::string_view text) { return toLowerText(text); }
inline std::string upperText(std::string_view text) { return toUpperText(text); }
inline std::size_t charCount(std::string_view text) { return utf8Length(text); }

}  // namespace qor::script
