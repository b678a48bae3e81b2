#pragma once

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <system_error>

namespace qor {

// std::from_chars / std::to_chars for double where the standard library has
// them, the C library's conversions where it does not (the WebAssembly
// build's library has only the integer ones). Both are locale-free there.
#if defined(__cpp_lib_to_chars) && __cpp_lib_to_chars >= 201611L
inline std::from_chars_result doubleFromChars(const char* first, const char* last, double& value)
{
    return std::from_chars(first, last, value);
}
inline char* doubleToChars(char* first, char* last, double value, int digits)
{
    return std::to_chars(first, last, value, std::chars_format::general, digits).ptr;
}
#else
inline std::from_chars_result doubleFromChars(const char* first, const char* last, double& value)
{
    // strtod also reads "0x", "inf" and leading blanks, which from_chars does not.
    if (first == last || *first == ' ' || *first == '+' ||
        (last - first > 1 && (first[1] == 'x' || first[1] == 'X')) || ((*first | 0x20) == 'i') ||
        ((*first | 0x20) == 'n'))
        return {first, std::errc::invalid_argument};
    const std::string copy(first, last);
    char* end = nullptr;
    errno = 0;
    const double v = std::strtod(copy.c_str(), &end);
    if (end == copy.c_str())
        return {first, std::errc::invalid_argument};
    const char* ptr = first + (end - copy.c_str());
    if (errno == ERANGE)
        return {ptr, std::errc::result_out_of_range};
    value = v;
    return {ptr, std::errc()};
}
inline char* doubleToChars(char* first, char* last, double value, int digits)
{
    const int n = std::snprintf(first, std::size_t(last - first), "%.*g", digits, value);
    return n < 0 ? first : first + std::min<int>(n, int(last - first) - 1);
}
#endif

}  // namespace qor
