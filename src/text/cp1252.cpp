#include "text/cp1252.h"

#include <array>

#include "text/utf8.h"

namespace qor {
namespace {

// Code points of bytes 0x80..0x9F; the undefined five keep their own value.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

struct DecodeTable {
    // UTF-8 form of each byte: length then up to three bytes.
    std::array<std::array<char, 4>, 256> utf8{};

    constexpr DecodeTable()
    {
        for (int b = 0; b < 256; ++b) {
            char32_t cp = (b >= 0x80 && b < 0xA0) ? kHighControls[b - 0x80] : char32_t(b);
            auto& out = utf8[b];
            if (cp < 0x80) {
                out[0] = 1;
                out[1] = char(cp);
            } else if (cp < 0x800) {
                out[0] = 2;
                out[1] = char(0xC0 | (cp >> 6));
                out[2] = char(0x80 | (cp & 0x3F));
            } else {
                out[0] = 3;
                out[1] = char(0xE0 | (cp >> 12));
                out[2] = char(0x80 | ((cp >> 6) & 0x3F));
                out[3] = char(0x80 | (cp & 0x3F));
            }
        }
    }
};

constexpr DecodeTable kDecode;

}  // namespace

char32_t cp1252CodePoint(unsigned char byte)
{
    return (byte >= 0x80 && byte < 0xA0) ? kHighControls[byte - 0x80] : char32_t(byte);
}

int cp1252ByteOf(char32_t cp)
{
    if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF))
        return int(cp);
    for (int i = 0; i < 32; ++i)
        if (kHighControls[i] == cp)
            return 0x80 + i;
    return -1;
}

std::string decodeCp1252(std::string_view bytes)
{
    std::string out;
    out.reserve(bytes.size() + bytes.size() / 8);
    const char* p = bytes.data();
    const char* end = p + bytes.size();
    while (p < end) {
        // Copy runs of ASCII in one go: project files are mostly ASCII.
        const char* run = p;
        while (p < end && static_cast<unsigned char>(*p) < 0x80)
            ++p;
        out.append(run, p);
        if (p == end)
            break;
        const auto& u = kDecode.utf8[static_cast<unsigned char>(*p)];
        out.append(&u[1], std::size_t(u[0]));
        ++p;
    }
    return out;
}

std::string encodeCp1252(std::string_view utf8)
{
    std::string out;
    out.reserve(utf8.size());
    std::size_t i = 0;
    const std::size_t n = utf8.size();
    while (i < n) {
        std::size_t run = i;
        while (i < n && static_cast<unsigned char>(utf8[i]) < 0x80)
            ++i;
        out.append(utf8.data() + run, i - run);
        if (i == n)
            break;
        char32_t cp = 0;
        std::size_t len = decodeUtf8(utf8, i, cp);
        int b = len ? cp1252ByteOf(cp) : -1;
        out.push_back(b < 0 ? '?' : char(b));
        i += len ? len : 1;
    }
    return out;
}

}  // namespace qor
