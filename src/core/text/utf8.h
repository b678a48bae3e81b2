#pragma once

#include <string>
#include <string_view>

namespace qor {

// Decodes the UTF-8 sequence that starts at text[pos] into cp and returns its
// length in bytes, or 0 when the bytes there are not a well-formed sequence.
std::size_t decodeUtf8(std::string_view text, std::size_t pos, char32_t& cp);

// Appends the UTF-8 form of cp to out.
void appendUtf8(std::string& out, char32_t cp);

// Number of characters (code points) of a UTF-8 text; a malformed byte counts as one.
std::size_t utf8Length(std::string_view text);

}  // namespace qor
