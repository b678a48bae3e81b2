#include "text/utf8.h"

namespace qor {

std::size_t decodeUtf8(std::string_view s, std::size_t pos, char32_t& cp)
{
    const std::size_t n = s.size();
    if (pos >= n)
        return 0;
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(s[i]); };
    unsigned char b0 = byte(pos);
    if (b0 < 0x80) {
        cp = b0;
        return 1;
    }
    std::size_t len;
    char32_t min;
    if ((b0 & 0xE0) == 0xC0) {
        len = 2; cp = b0 & 0x1F; min = 0x80;
    } else if ((b0 & 0xF0) == 0xE0) {
        len = 3; cp = b0 & 0x0F; min = 0x800;
    } else if ((b0 & 0xF8) == 0xF0) {
        len = 4; cp = b0 & 0x07; min = 0x10000;
    } else {
        return 0;
    }
    if (pos + len > n)
        return 0;
    for (std::size_t i = 1; i < len; ++i) {
        unsigned char b = byte(pos + i);
        if ((b & 0xC0) != 0x80)
            return 0;
        cp = (cp << 6) | (b & 0x3F);
    }
    if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF))
        return 0;
    return len;
}

char32_t nextCodePoint(std::string_view text, std::size_t& pos)
{
    char32_t cp = 0;
    const std::size_t len = decodeUtf8(text, pos, cp);
    if (len == 0) {
        cp = static_cast<unsigned char>(text[pos]);
        ++pos;
        return cp;
    }
    pos += len;
    return cp;
}

std::size_t byteOffsetOfChar(std::string_view text, std::size_t index)
{
    std::size_t pos = 0;
    for (; index > 0 && pos < text.size(); --index)
        nextCodePoint(text, pos);
    return pos;
}

void appendUtf8(std::string& out, char32_t cp)
{
    if (cp < 0x80) {
        out.push_back(char(cp));
    } else if (cp < 0x800) {
        out.push_back(char(0xC0 | (cp >> 6)));
        out.push_back(char(0x80 | (cp & 0x3F)));
    } else if (cp < 0x10000) {
        out.push_back(char(0xE0 | (cp >> 12)));
        out.push_back(char(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(char(0x80 | (cp & 0x3F)));
    } else {
        out.push_back(char(0xF0 | (cp >> 18)));
        out.push_back(char(0x80 | ((cp >> 12) & 0x3F)));
        out.push_back(char(0x80 | ((cp >> 6) & 0x3F)));
        out.push_back(char(0x80 | (cp & 0x3F)));
    }
}

bool isValidUtf8(std::string_view text)
{
    char32_t cp;
    for (std::size_t pos = 0; pos < text.size();) {
        const std::size_t len = decodeUtf8(text, pos, cp);
        if (len == 0)
            return false;
        pos += len;
    }
    return true;
}

std::size_t utf8Length(std::string_view s)
{
    std::size_t count = 0;
    for (std::size_t pos = 0; pos < s.size(); ++count)
        nextCodePoint(s, pos);
    return count;
}

}  // namespace qor
