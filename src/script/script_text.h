#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qor::script {

// Text helpers of the engine. Strings are UTF-8; the language's character
// functions (Chr, Asc) speak Windows-1252 like the files menus come from.

// Decodes the code point at text[pos] and advances pos; a malformed byte
// reads as itself (so arbitrary bytes never stop a script).
char32_t nextCodePoint(std::string_view text, std::size_t& pos);
void appendCodePoint(std::string& out, char32_t c);

// The Windows-1252 character of a byte, and the byte of a character
// (-1 when Windows-1252 has none).
char32_t cp1252ToUnicode(unsigned char byte);
int unicodeToCp1252(char32_t c);

// Letter case of the Latin letters (ASCII, Latin-1 and the few Windows-1252
// extras), which is all menus and translations use.
char32_t lowerCodePoint(char32_t c);
char32_t upperCodePoint(char32_t c);
std::string lowerText(std::string_view text);
std::string upperText(std::string_view text);

// Lower-case ASCII, for identifiers (the language ignores their case).
std::string lowerAscii(std::string_view text);
bool equalsNoCaseAscii(std::string_view a, std::string_view b);

// Byte offset of the character number index (0-based) of text, or
// text.size() when text has fewer characters.
std::size_t byteOffsetOfChar(std::string_view text, std::size_t index);
std::size_t charCount(std::string_view text);

// Compares a and b ignoring letter case: <0, 0, >0.
int compareNoCase(std::string_view a, std::string_view b);

}  // namespace qor::script
