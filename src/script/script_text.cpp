#include "script/script_text.h"

namespace qor::script {

namespace {
// Characters 0x80-0x9F of Windows-1252; 0 marks the five unused bytes,
// which map to the same C1 code point.
constexpr char16_t kHigh[32] = {
    0x20AC, 0, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
    0, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178,
};
}  // namespace

char32_t nextCodePoint(std::string_view text, std::size_t& pos)
{
    auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    unsigned char b0 = byte(pos);
    if (b0 < 0x80) {
        ++pos;
        return b0;
    }
    int len = 0;
    char32_t c = 0;
    if ((b0 & 0xE0) == 0xC0) {
        len = 2;
        c = b0 & 0x1F;
    } else if ((b0 & 0xF0) == 0xE0) {
        len = 3;
        c = b0 & 0x0F;
    } else if ((b0 & 0xF8) == 0xF0) {
        len = 4;
        c = b0 & 0x07;
    }
    if (len == 0 || pos + len > text.size()) {
        ++pos;
        return b0;
    }
    for (int k = 1; k < len; ++k) {
        unsigned char b = byte(pos + k);
        if ((b & 0xC0) != 0x80) {
            ++pos;
            return b0;
        }
        c = (c << 6) | (b & 0x3F);
    }
    pos += len;
    return c;
}

void appendCodePoint(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += char(c);
    } else if (c < 0x800) {
        out += char(0xC0 | (c >> 6));
        out += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += char(0xE0 | (c >> 12));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    } else {
        out += char(0xF0 | (c >> 18));
        out += char(0x80 | ((c >> 12) & 0x3F));
        out += char(0x80 | ((c >> 6) & 0x3F));
        out += char(0x80 | (c & 0x3F));
    }
}

char32_t cp1252ToUnicode(unsigned char byte)
{
    if (byte >= 0x80 && byte < 0xA0 && kHigh[byte - 0x80] != 0)
        return kHigh[byte - 0x80];
    return byte;
}

int unicodeToCp1252(char32_t c)
{
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
        return int(c);
    for (int i = 0; i < 32; ++i)
        if (kHigh[i] == c || (kHigh[i] == 0 && c == char32_t(0x80 + i)))
            return 0x80 + i;
    return -1;
}

char32_t lowerCodePoint(char32_t c)
{
    if (c >= 'A' && c <= 'Z')
        return c + 32;
    if ((c >= 0xC0 && c <= 0xDE && c != 0xD7))
        return c + 32;
    switch (c) {
    case 0x152: return 0x153;
    case 0x160: return 0x161;
    case 0x17D: return 0x17E;
    case 0x178: return 0xFF;
    default: return c;
    }
}

char32_t upperCodePoint(char32_t c)
{
    if (c >= 'a' && c <= 'z')
        return c - 32;
    if ((c >= 0xE0 && c <= 0xFE && c != 0xF7))
        return c - 32;
    switch (c) {
    case 0x153: return 0x152;
    case 0x161: return 0x160;
    case 0x17E: return 0x17D;
    case 0xFF: return 0x178;
    default: return c;
    }
}

namespace {
template <class F>
std::string mapText(std::string_view text, F f)
{
    std::string out;
    out.reserve(text.size());
    std::size_t pos = 0;
    while (pos < text.size()) {
        unsigned char b = static_cast<unsigned char>(text[pos]);
        if (b < 0x80) {
            out += char(f(b));
            ++pos;
            continue;
        }
        std::size_t start = pos;
        char32_t c = nextCodePoint(text, pos);
        // A stray byte stays as it is: mapping it would change the byte
        // length, and callers rely on lengths being kept.
        char32_t m = pos - start == 1 ? c : f(c);
        if (m == c)
            out.append(text.substr(start, pos - start));  // keeps malformed bytes as they were
        else
            appendCodePoint(out, m);
    }
    return out;
}
}  // namespace

std::string lowerText(std::string_view text) { return mapText(text, lowerCodePoint); }
std::string upperText(std::string_view text) { return mapText(text, upperCodePoint); }

std::string lowerAscii(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z')
            c = char(c + 32);
    return out;
}

bool equalsNoCaseAscii(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        char x = a[i], y = b[i];
        if (x >= 'A' && x <= 'Z') x = char(x + 32);
        if (y >= 'A' && y <= 'Z') y = char(y + 32);
        if (x != y)
            return false;
    }
    return true;
}

std::size_t byteOffsetOfChar(std::string_view text, std::size_t index)
{
    std::size_t pos = 0;
    while (index > 0 && pos < text.size()) {
        nextCodePoint(text, pos);
        --index;
    }
    return pos;
}

std::size_t charCount(std::string_view text)
{
    std::size_t n = 0, pos = 0;
    while (pos < text.size()) {
        nextCodePoint(text, pos);
        ++n;
    }
    return n;
}

int compareNoCase(std::string_view a, std::string_view b)
{
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        char32_t x = lowerCodePoint(nextCodePoint(a, i));
        char32_t y = lowerCodePoint(nextCodePoint(b, j));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (i < a.size())
        return 1;
    if (j < b.size())
        return -1;
    return 0;
}

}  // namespace qor::script
