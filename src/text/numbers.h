#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "text/error.h"

namespace qor {

// Numbers in the editor's text files.
//
// Written: a blank (or "-"), the digits, a fraction only when there is one,
// then one blank: " 9600 ", "-15 ", " 8.25 ". Single-precision values
// (positions) keep at most 7 significant digits, doubles at most 15.
//
// Read leniently: leading blanks skipped, an optional sign, digits, ".",
// digits, an optional exponent, or an "&H"/"&O" prefix; the first character
// that cannot continue the number ends it ("8,25" reads 8); no digits read 0.

inline constexpr int kSingleDigits = 7;
inline constexpr int kDoubleDigits = 15;

// The digits of a number without the surrounding blanks: "9600", "-15",
// "8.25", "66.66666", "1.234568E+07".
std::string numberText(double value, int significantDigits);
inline std::string numberText(float value) { return numberText(double(value), kSingleDigits); }

// The written form with its blanks: " 9600 ", "-15 ".
std::string formatNumber(double value, int significantDigits);
inline std::string formatSingle(float value) { return formatNumber(double(value), kSingleDigits); }
inline std::string formatDouble(double value) { return formatNumber(value, kDoubleDigits); }
inline std::string formatInteger(long long value) { return formatNumber(double(value), kDoubleDigits + 4); }

// The lenient reading of text. Fails with Overflow when the number is
// beyond what a double holds.
Result<double> parseNumber(std::string_view text);

// The lenient reading; a number beyond a double's range reads 0.
double readNumber(std::string_view text);

// True when text is a number in the reading sense with nothing but blanks
// around it (" 9600 ", "-1.5", "&HFF"; not "", "plein", "8,25", "1e").
bool isNumeric(std::string_view text);

// Rounds half to even: 0.5 -> 0, 1.5 -> 2, 2.5 -> 2, -1.5 -> -2.
double roundHalfEven(double value);

// Half-to-even rounding to a 32-bit integer; Overflow outside its range.
Result<std::int32_t> toInt32(double value);

// Half-to-even rounding to a 16-bit integer; Overflow outside its range.
Result<std::int16_t> toInt16(double value);

// A double as a single-precision value; Overflow beyond a float's range.
Result<float> toSingle(double value);

// Reads text leniently and rounds it half to even into 32 bits.
Result<std::int32_t> readInt32(std::string_view text);

}  // namespace qor
