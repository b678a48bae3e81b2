#pragma once

#include <cstdint>
#include <climits>
#include <optional>
#include <string>
#include <string_view>

#include "script/value.h"

namespace qor::script {

// The language's conversions and operators over values. Each raises the
// language's error (13 type mismatch, 6 overflow, 11 division by zero...)
// by throwing a ScriptError.

// Reads a number the way the language reads one in text: blanks around,
// sign, digits, "." fraction, exponent, or &H / &O. None when not numeric.
std::optional<double> parseNumeric(std::string_view text);
// The value of a digit up to base 16 (either letter case); 99 for any
// other character, so that "digit >= base" ends a number in any base.
int digitValue(char c);

// The text of a number as CStr gives it: up to 15 significant digits,
// "." as decimal point, exponent form beyond 1E+15 and below 1E-04 ("1E-05").
std::string formatDouble(double d);
// "23/11/2026 14:05:09"; the date or the time alone when the other is zero.
std::string formatDate(double date);

// Days since 30/12/1899 (the language's date serial) from a calendar date,
// and back. fromDateSerial gives year, month, day, hour, minute, second.
double toDateSerial(int year, int month, int day, int hour, int minute, int second);
void fromDateSerial(double serial, int parts[6]);

// The plain value of an object (its default property), other values as they are.
Value primitive(const Value& v);

std::string toText(const Value& v);             // CStr; Null raises 94
Value toTextValue(const Value& v);              // same, as a string value (no copy for strings)
double toDouble(const Value& v);                // CDbl
std::int32_t toLong(const Value& v);            // CLng, half to even
std::int16_t toInteger(const Value& v);         // CInt, half to even
bool toBoolean(const Value& v);                 // CBool
bool isTrue(const Value& v);                    // an If or While condition; Null is false
// A numeric value (Integer, Long, Double or Date) or Null, for arithmetic.
Value toNumeric(const Value& v);
bool isNumericValue(const Value& v);            // IsNumeric

double roundHalfEven(double d);

// The type of a whole-number result: Integer while both operands are
// Integer and it fits 16 bits, else Long while it fits 32 bits, else Double.
enum class WholeType : std::uint8_t { Integer, Long, Double };
inline WholeType wholeType(std::int64_t n, bool integerOperands)
{
    if (integerOperands && n >= -32768 && n <= 32767)
        return WholeType::Integer;
    if (n >= INT32_MIN && n <= INT32_MAX)
        return WholeType::Long;
    return WholeType::Double;
}

// The result as a value of that type.
inline Value wholeResult(std::int64_t n, bool integerOperands)
{
    switch (wholeType(n, integerOperands)) {
    case WholeType::Integer: return Value::integer(std::int32_t(n));
    case WholeType::Long: return Value::longValue(std::int32_t(n));
    case WholeType::Double: break;
    }
    return Value::dbl(double(n));
}

// The same into out, for the fast paths that store a whole number in
// place; false, with out untouched, when only a Double holds it. Inlined
// into each of them (compilers that do not know the hint ignore it).
[[gnu::always_inline]] inline bool storeWhole(Value& out, std::int64_t n, bool integerOperands)
{
    switch (wholeType(n, integerOperands)) {
    case WholeType::Integer: out.setInteger(std::int16_t(n)); return true;
    case WholeType::Long: out.setLong(std::int32_t(n)); return true;
    case WholeType::Double: break;
    }
    return false;
}

Value add(const Value& a, const Value& b);
Value subtract(const Value& a, const Value& b);
Value multiply(const Value& a, const Value& b);
Value divide(const Value& a, const Value& b);
Value intDivide(const Value& a, const Value& b);
Value modulo(const Value& a, const Value& b);
Value power(const Value& a, const Value& b);
Value concat(const Value& a, const Value& b);
Value negate(const Value& a);
Value logicalNot(const Value& a);
Value logicalAnd(const Value& a, const Value& b);
Value logicalOr(const Value& a, const Value& b);
Value logicalXor(const Value& a, const Value& b);
Value logicalEqv(const Value& a, const Value& b);
Value logicalImp(const Value& a, const Value& b);

enum class Compare : std::uint8_t { Eq, Ne, Lt, Le, Gt, Ge };
// Which operand was written as a literal: a variable compared with a
// literal is converted to the literal's type, as the language does.
enum LiteralSide : std::uint8_t { NoLiteral = 0, LeftLiteral = 1, RightLiteral = 2 };
Value compare(Compare op, const Value& a, const Value& b, std::uint8_t literals = NoLiteral);
// -1, 0, 1, or 2 when either side is Null.
int compareValues(const Value& a, const Value& b, std::uint8_t literals, bool ignoreCase);
Value identical(const Value& a, const Value& b);  // Is

// Concatenates two texts into a new string value, keeping the cached
// character count.
Value joinStrings(const Value& a, const Value& b);

}  // namespace qor::script
