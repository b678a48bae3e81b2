#include "text/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>

#include "text/float_chars.h"

namespace qor {
namespace {

bool isBlank(char c) { return c == ' ' || c == '\t'; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

int hexValue(char c)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

struct Scan {
    double value = 0;
    std::size_t end = 0;     // index after the last character taken
    bool hasDigits = false;
    bool overflow = false;
};

// "&H" and "&O" numbers: up to 16 bits they read as a signed 16-bit value,
// up to 32 bits as a signed 32-bit value, as the language does.
Scan scanRadix(std::string_view s, std::size_t i, int base)
{
    Scan r;
    std::uint64_t v = 0;
    std::size_t digits = 0;
    while (i < s.size()) {
        int d = hexValue(s[i]);
        if (d < 0 || d >= base)
            break;
        v = v * std::uint64_t(base) + std::uint64_t(d);
        if (v > 0xFFFFFFFFull)
            r.overflow = true;
        ++digits;
        ++i;
    }
    r.end = i;
    r.hasDigits = digits > 0;
    if (r.overflow)
        return r;
    if (v <= 0xFFFF)
        r.value = double(std::int16_t(std::uint16_t(v)));
    else
        r.value = double(std::int32_t(std::uint32_t(v)));
    return r;
}

Scan scan(std::string_view s)
{
    std::size_t i = 0;
    while (i < s.size() && isBlank(s[i]))
        ++i;
    if (i + 1 < s.size() && s[i] == '&') {
        char p = s[i + 1];
        if (p == 'h' || p == 'H')
            return scanRadix(s, i + 2, 16);
        if (p == 'o' || p == 'O')
            return scanRadix(s, i + 2, 8);
    }
    Scan r;
    const std::size_t start = i;
    if (i < s.size() && (s[i] == '+' || s[i] == '-'))
        ++i;
    std::size_t mantissaDigits = 0;
    while (i < s.size() && isDigit(s[i])) { ++i; ++mantissaDigits; }
    if (i < s.size() && s[i] == '.') {
        ++i;
        while (i < s.size() && isDigit(s[i])) { ++i; ++mantissaDigits; }
    }
    if (mantissaDigits == 0) {
        r.end = start;
        return r;
    }
    std::size_t numberEnd = i;
    // An exponent counts only when digits follow it ("1e" reads 1).
    if (i < s.size() && (s[i] == 'e' || s[i] == 'E' || s[i] == 'd' || s[i] == 'D')) {
        std::size_t j = i + 1;
        if (j < s.size() && (s[j] == '+' || s[j] == '-'))
            ++j;
        if (j < s.size() && isDigit(s[j])) {
            while (j < s.size() && isDigit(s[j]))
                ++j;
            numberEnd = j;
        }
    }
    r.hasDigits = true;
    r.end = numberEnd;

    // from_chars wants no "+", "." without digits before is fine, "d" exponents not.
    std::string buf;
    buf.reserve(numberEnd - start);
    for (std::size_t k = start; k < numberEnd; ++k) {
        char c = s[k];
        if (c == '+' && k == start)
            continue;
        if (c == 'd' || c == 'D')
            c = 'e';
        buf.push_back(c);
    }
    double v = 0;
    auto res = doubleFromChars(buf.data(), buf.data() + buf.size(), v);
    if (res.ec == std::errc::result_out_of_range) {
        // Tiny values underflow to zero; huge ones overflow.
        bool huge = false;
        auto e = buf.find('e');
        if (e != std::string::npos) {
            int exponent = 0;
            std::from_chars(buf.data() + e + 1 + (buf[e + 1] == '+' ? 1 : 0), buf.data() + buf.size(), exponent);
            huge = exponent > 0;
        } else {
            huge = true;
        }
        if (huge)
            r.overflow = true;
        v = 0;
    }
    r.value = v;
    return r;
}

}  // namespace

std::string numberText(double value, int digits)
{
    if (value == 0 || !std::isfinite(value))
        return "0";
    char buf[64];
    std::string out(buf, doubleToChars(buf, buf + sizeof buf, value, digits));
    auto e = out.find('e');
    if (e != std::string::npos)
        out[e] = 'E';
    return out;
}

std::string formatNumber(double value, int digits)
{
    std::string text = numberText(value, digits);
    if (text[0] == '-')
        return text + " ";
    return " " + text + " ";
}

Result<double> parseNumber(std::string_view text)
{
    Scan r = scan(text);
    if (r.overflow)
        return makeError(err::Overflow);
    return r.value;
}

double readNumber(std::string_view text)
{
    Scan r = scan(text);
    return r.overflow ? 0.0 : r.value;
}

bool isNumeric(std::string_view text)
{
    Scan r = scan(text);
    if (!r.hasDigits || r.overflow)
        return false;
    for (std::size_t i = r.end; i < text.size(); ++i)
        if (!isBlank(text[i]))
            return false;
    return true;
}

double roundHalfEven(double value)
{
    return std::nearbyint(value);  // the default rounding mode is to nearest, ties to even
}

Result<std::int32_t> toInt32(double value)
{
    double r = roundHalfEven(value);
    if (!(r >= double(std::numeric_limits<std::int32_t>::min()) &&
          r <= double(std::numeric_limits<std::int32_t>::max())))
        return makeError(err::Overflow);
    return std::int32_t(r);
}

Result<std::int16_t> toInt16(double value)
{
    double r = roundHalfEven(value);
    if (!(r >= -32768.0 && r <= 32767.0))
        return makeError(err::Overflow);
    return std::int16_t(r);
}

Result<float> toSingle(double value)
{
    if (!(std::fabs(value) <= double(std::numeric_limits<float>::max())))
        return makeError(err::Overflow);
    return float(value);
}

Result<std::int32_t> readInt32(std::string_view text)
{
    auto v = parseNumber(text);
    if (!v)
        return v.error();
    return toInt32(*v);
}

}  // namespace qor
