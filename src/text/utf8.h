#pragma once

#include <string>
#include <string_view>

namespace qor {

// Decodes the UTF-8 sequence that starts at text[pos] into cp and returns its
// length in bytes, or 0 when the bytes there are not a well-formed sequence.
std::size_t decodeUtf8(std::string_view text, std::size_t pos, char32_t& cp);

// The code point at text[pos], moving pos past it. A byte that does not
// start a well-formed sequence reads as itself (its Windows-1252 value in
// Latin-1 terms), one byte long, so arbitrary bytes never stop a caller.
char32_t nextCodePoint(std::string_view text, std::size_t& pos);

// Byte offset of character number index (0-based) of text, or text.size()
// when text has fewer characters.
std::size_t byteOffsetOfChar(std::string_view text, std::size_t index);

// Appends the UTF-8 form of cp to out.
void appendUtf8(std::string& out, char32_t cp);

// True when the whole of text is well-formed UTF-8.
bool isValidUtf8(std::string_view text);

// Number of characters (code points) of a UTF-8 text; a malformed byte counts as one.
std::size_t utf8Length(std::string_view text);

}  // namespace qor
