#include "text/text_helpers.h"

#include <algorithm>

#include "text/utf8.h"

namespace qor {
namespace {

bool isSeparator(char c) { return c == '\\' || c == '/'; }

char asciiLower(char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; }

template <class F>
std::string mapCase(std::string_view text, F map)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        unsigned char b = static_cast<unsigned char>(text[i]);
        if (b < 0x80) {
            out.push_back(char(map(b)));
            ++i;
            continue;
        }
        char32_t cp;
        std::size_t len = decodeUtf8(text, i, cp);
        if (len == 0) {
            out.push_back(text[i]);
            ++i;
            continue;
        }
        appendUtf8(out, map(cp));
        i += len;
    }
    return out;
}

// Replaces in text every place where `where` (text itself, or a form of it
// of the same byte length) holds what.
std::string replaceFound(std::string_view text, std::string_view where, std::string_view what,
                         std::string_view with)
{
    std::string out;
    out.reserve(text.size());
    std::size_t pos = 0;
    for (;;) {
        const std::size_t hit = where.find(what, pos);
        if (hit == std::string_view::npos)
            break;
        out.append(text, pos, hit - pos);
        out += with;
        pos = hit + what.size();
    }
    out.append(text, pos);
    return out;
}

}  // namespace

char32_t lowerCodePoint(char32_t c)
{
    if (c >= 'A' && c <= 'Z')
        return c + 32;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7)
        return c + 32;
    switch (c) {
    case 0x0152: return 0x0153;  // Œ
    case 0x0160: return 0x0161;  // Š
    case 0x017D: return 0x017E;  // Ž
    case 0x0178: return 0x00FF;  // Ÿ
    default: return c;
    }
}

char32_t upperCodePoint(char32_t c)
{
    if (c >= 'a' && c <= 'z')
        return c - 32;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7)
        return c - 32;
    switch (c) {
    case 0x0153: return 0x0152;
    case 0x0161: return 0x0160;
    case 0x017E: return 0x017D;
    case 0x00FF: return 0x0178;
    default: return c;
    }
}

bool hasForbiddenChars(std::string_view text)
{
    return text.find(kLineBreakMark) != std::string_view::npos ||
           text.find(kLineSeparatorMark) != std::string_view::npos;
}

std::string removeForbiddenChars(std::string_view text)
{
    return replaceAll(replaceAll(text, kLineBreakMark, ""), kLineSeparatorMark, "");
}

std::string encodeLineBreaks(std::string_view text)
{
    return replaceAll(text, "\r\n", kLineBreakMark);
}

std::string decodeLineBreaks(std::string_view text)
{
    return replaceAll(text, kLineBreakMark, "\r\n");
}

std::string fileNameOf(std::string_view path)
{
    for (std::size_t i = path.size(); i > 0; --i)
        if (isSeparator(path[i - 1]))
            return std::string(path.substr(i));
    return std::string(path);
}

std::string folderOf(std::string_view path)
{
    for (std::size_t i = path.size(); i > 0; --i)
        if (isSeparator(path[i - 1]))
            return std::string(path.substr(0, i));
    return {};
}

std::string withTrailingSeparator(std::string_view folder)
{
    std::string out(folder);
    if (!out.empty() && !isSeparator(out.back()))
        out += '/';
    return out;
}

bool hasSeparator(std::string_view path)
{
    return path.find_first_of("\\/") != std::string_view::npos;
}

std::string toLowerText(std::string_view text) { return mapCase(text, lowerCodePoint); }
std::string toUpperText(std::string_view text) { return mapCase(text, upperCodePoint); }

bool equalsNoCase(std::string_view a, std::string_view b)
{
    // Folding never changes a text's length in bytes, so texts of different
    // lengths cannot be equal.
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        unsigned char x = static_cast<unsigned char>(a[i]);
        unsigned char y = static_cast<unsigned char>(b[i]);
        if (x >= 0x80 || y >= 0x80)
            return toLowerText(a.substr(i)) == toLowerText(b.substr(i));
        if (lowerCodePoint(x) != lowerCodePoint(y))
            return false;
    }
    return true;
}

int compareNoCase(std::string_view a, std::string_view b)
{
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size()) {
        const char32_t x = lowerCodePoint(nextCodePoint(a, i));
        const char32_t y = lowerCodePoint(nextCodePoint(b, j));
        if (x != y)
            return x < y ? -1 : 1;
    }
    if (i < a.size())
        return 1;
    return j < b.size() ? -1 : 0;
}

std::string lowerAscii(std::string_view text)
{
    std::string out(text);
    for (char& c : out)
        c = asciiLower(c);
    return out;
}

bool equalsNoCaseAscii(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return asciiLower(x) == asciiLower(y); });
}

std::string replaceAll(std::string_view text, std::string_view what, std::string_view with)
{
    if (what.empty())
        return std::string(text);
    return replaceFound(text, text, what, with);
}

std::string replaceNoCase(std::string_view text, std::string_view what, std::string_view with)
{
    if (what.empty())
        return std::string(text);
    // Folding keeps byte lengths for every letter we fold except ÿ/Ÿ (2 vs 2
    // bytes: same) and the cp1252 pairs, which are 2 bytes both ways, so
    // positions found in the folded text are positions in the original.
    const std::string foldedText = toLowerText(text);
    const std::string foldedWhat = toLowerText(what);
    if (foldedText.size() != text.size() || foldedWhat.size() != what.size()) {
        // Malformed input changed length; fall back to an exact replace.
        return replaceAll(text, what, with);
    }
    return replaceFound(text, foldedText, foldedWhat, with);
}

bool startsWithNoCase(std::string_view text, std::string_view prefix)
{
    if (text.size() < prefix.size())
        return false;
    return equalsNoCase(text.substr(0, prefix.size()), prefix);
}

bool endsWithNoCase(std::string_view text, std::string_view suffix)
{
    if (text.size() < suffix.size())
        return false;
    return equalsNoCase(text.substr(text.size() - suffix.size()), suffix);
}

bool beginsWithAndLonger(std::string_view text, std::string_view prefix)
{
    return text.size() > prefix.size() && startsWithNoCase(text, prefix);
}

std::string leftChars(std::string_view text, std::size_t n)
{
    return std::string(text.substr(0, byteOffsetOfChar(text, n)));
}

std::string_view dropChars(std::string_view text, std::size_t n)
{
    return text.substr(byteOffsetOfChar(text, n));
}

}  // namespace qor
