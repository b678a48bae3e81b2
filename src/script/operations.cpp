#include "script/operations.h"

#include <charconv>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <limits>

#include "script/host.h"
#include "script/script_error.h"
#include "text/cp1252.h"
#include "text/float_chars.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// Rank of a numeric type in arithmetic: the result takes the wider one.
int rank(Type t)
{
    switch (t) {
    case Type::Integer: return 0;
    case Type::Long: return 1;
    case Type::Double: return 2;
    case Type::Date: return 3;
    default: return 0;
    }
}

Value checkedDouble(double d, Type t = Type::Double)
{
    if (!std::isfinite(d))
        raise(errc::Overflow);
    return t == Type::Date ? Value::date(d) : Value::dbl(d);
}

double numberOf(const Value& v)
{
    return v.type() == Type::Double || v.type() == Type::Date ? v.asDouble() : double(v.asInt());
}

std::int64_t roundToLong(const Value& v)
{
    if (v.isInteger())
        return v.asInt();
    double r = roundHalfEven(numberOf(v));
    if (!(r >= double(INT32_MIN) && r <= double(INT32_MAX)))
        raise(errc::Overflow);
    return std::int64_t(r);
}

enum class Arith { Add, Sub, Mul };

Value arithmetic(Arith op, const Value& a0, const Value& b0)
{
    Value a = toNumeric(a0), b = toNumeric(b0);
    if (a.isNull() || b.isNull())
        return Value::null();
    int r = std::max(rank(a.type()), rank(b.type()));
    if (r <= 1) {
        std::int64_t x = a.asInt(), y = b.asInt();
        std::int64_t n = op == Arith::Add ? x + y : op == Arith::Sub ? x - y : x * y;
        return wholeResult(n, r == 0);
    }
    double x = numberOf(a), y = numberOf(b);
    double d = op == Arith::Add ? x + y : op == Arith::Sub ? x - y : x * y;
    // A date minus a date is a number of days, not a date.
    Type t = r == 3 && !(op == Arith::Sub && a.type() == Type::Date && b.type() == Type::Date) && op != Arith::Mul
                 ? Type::Date
                 : Type::Double;
    return checkedDouble(d, t);
}

// Operand of the logical operators: Boolean stays Boolean, the rest goes
// to a whole number.
struct Logical {
    bool isNull = false;
    bool isBool = false;
    bool small = true;  // fits the Integer result type
    std::int32_t bits = 0;
};

Logical logicalOperand(const Value& v0)
{
    Value v = primitive(v0);
    Logical l;
    switch (v.type()) {
    case Type::Null: l.isNull = true; return l;
    case Type::Empty: return l;
    case Type::Boolean: l.isBool = true; l.bits = v.asBool() ? -1 : 0; return l;
    case Type::Integer: l.bits = v.asInt(); return l;
    case Type::String: {
        std::string_view s = v.asStringView();
        if (equalsNoCaseAscii(s, "true") || equalsNoCaseAscii(s, "false")) {
            l.bits = equalsNoCaseAscii(s, "true") ? -1 : 0;
            l.isBool = true;
            return l;
        }
        l.small = false;
        l.bits = std::int32_t(roundToLong(toNumeric(v)));
        return l;
    }
    default:
        l.small = false;
        l.bits = std::int32_t(roundToLong(toNumeric(v)));
        return l;
    }
}

Value logicalResult(const Logical& a, const Logical& b, std::int32_t bits)
{
    if (a.isBool && b.isBool)
        return Value::boolean(bits != 0);
    if ((a.small || a.isBool) && (b.small || b.isBool))
        return Value::integer(bits);
    return Value::longValue(bits);
}

template <class F>
Value logical(const Value& a0, const Value& b0, F f, int nullCase)
{
    Logical a = logicalOperand(a0), b = logicalOperand(b0);
    if (a.isNull || b.isNull) {
        // And: Null And False is False; Or: Null Or True is True; Imp: see below.
        const Logical& other = a.isNull ? b : a;
        if (!other.isNull) {
            if (nullCase == 1 && other.bits == 0)
                return logicalResult(other, other, 0);
            if (nullCase == 2 && other.bits == -1)
                return logicalResult(other, other, -1);
        }
        if (nullCase == 3) {
            // Imp: False Imp Null and Null Imp True are True.
            if (!a.isNull && a.bits == 0)
                return logicalResult(a, a, -1);
            if (!b.isNull && b.bits == -1)
                return logicalResult(b, b, -1);
        }
        return Value::null();
    }
    return logicalResult(a, b, f(a.bits, b.bits));
}

}  // namespace

double roundHalfEven(double d) { return std::nearbyint(d); }

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return 99;
}

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// "&H1F" or "&O17": 16-bit values read as Integers, so "&HFFFF" is -1.
std::optional<double> parseRadix(std::string_view text)
{
    char k = text[1];
    int base = (k == 'h' || k == 'H') ? 16 : (k == 'o' || k == 'O') ? 8 : 0;
    if (base == 0 || text.size() == 2)
        return std::nullopt;
    std::uint64_t v = 0;
    for (char c : text.substr(2)) {
        int d = digitValue(c);
        if (d >= base)
            return std::nullopt;
        v = v * std::uint64_t(base) + std::uint64_t(d);
        if (v > 0xFFFFFFFFull)
            return std::nullopt;
    }
    return v <= 0xFFFF ? double(std::int16_t(v)) : double(std::int32_t(std::uint32_t(v)));
}

// Where the decimal number at the start of text ends: digits, "." digits,
// then an exponent (E or D, sign, digits); npos when it has no digit or a
// bare exponent.
std::size_t decimalEnd(std::string_view text, bool& dExponent)
{
    std::size_t i = 0, n = text.size();
    bool any = false;
    for (; i < n && isDigit(text[i]); ++i)
        any = true;
    if (i < n && text[i] == '.')
        for (++i; i < n && isDigit(text[i]); ++i)
            any = true;
    if (!any)
        return std::string_view::npos;
    if (i < n && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        dExponent = text[i] == 'd' || text[i] == 'D';
        std::size_t j = i + 1;
        if (j < n && (text[j] == '+' || text[j] == '-'))
            ++j;
        std::size_t digits = j;
        while (j < n && isDigit(text[j]))
            ++j;
        if (j == digits)
            return std::string_view::npos;
        i = j;
    }
    return i;
}

// Validate in place, then convert the span at once: long numeric texts
// are read in linear time.
std::optional<double> parseDecimal(std::string_view text)
{
    bool dExponent = false;
    if (decimalEnd(text, dExponent) != text.size())
        return std::nullopt;
    // Leading zeros change nothing but cost the converter dearly on long texts.
    std::size_t begin = 0;
    while (begin + 1 < text.size() && text[begin] == '0' && isDigit(text[begin + 1]))
        ++begin;
    std::string copy;
    std::string_view number = text.substr(begin);
    if (dExponent) {
        copy = std::string(number);
        for (char& c : copy)
            if (c == 'd' || c == 'D')
                c = 'e';
        number = copy;
    }
    double d = 0;
    std::from_chars_result r = doubleFromChars(number.data(), number.data() + number.size(), d);
    if (r.ec != std::errc() || !std::isfinite(d))
        return std::nullopt;
    return d;
}

}  // namespace

std::optional<double> parseNumeric(std::string_view text)
{
    std::size_t i = 0, n = text.size();
    while (i < n && isBlank(text[i]))
        ++i;
    while (n > i && isBlank(text[n - 1]))
        --n;
    if (i == n)
        return std::nullopt;
    bool negative = false;
    if (text[i] == '+' || text[i] == '-') {
        negative = text[i] == '-';
        ++i;
        while (i < n && isBlank(text[i]))
            ++i;
    }
    std::string_view number = text.substr(i, n - i);
    std::optional<double> d = number.size() > 1 && number[0] == '&' ? parseRadix(number) : parseDecimal(number);
    if (!d)
        return d;
    return negative ? -*d : *d;
}

std::string formatDouble(double d)
{
    if (d == 0)
        return "0";
    if (std::fabs(d) < 1e15 && d == std::trunc(d)) {
        char buf[32];
        std::snprintf(buf, sizeof buf, "%.0f", d);
        return buf;
    }
    char buf[64];
    std::snprintf(buf, sizeof buf, "%.15G", d);
    // %G keeps a trailing zero-free mantissa already; VBScript writes the
    // exponent with at least two digits, as C does.
    return buf;
}

double toDateSerial(int year, int month, int day, int hour, int minute, int second)
{
    // Days from civil (proleptic Gregorian), then shifted to 30/12/1899.
    int y = year - (month <= 2 ? 1 : 0);
    int era = (y >= 0 ? y : y - 399) / 400;
    int yoe = y - era * 400;
    int mp = (month + 9) % 12;
    int doy = (153 * mp + 2) / 5 + day - 1;
    int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
    long long days = (long long)era * 146097 + doe - 719468;  // days since 1970-01-01
    long long serialDays = days + 25569;
    double frac = (hour * 3600.0 + minute * 60.0 + second) / 86400.0;
    return serialDays >= 0 ? double(serialDays) + frac : double(serialDays) - frac;
}

void fromDateSerial(double serial, int parts[6])
{
    double whole = std::trunc(serial);
    double frac = std::fabs(serial - whole);
    long long secs = std::llround(frac * 86400.0);
    if (secs >= 86400) {
        secs -= 86400;
        whole += serial >= 0 ? 1 : -1;
    }
    long long z = (long long)whole - 25569 + 719468;
    long long era = (z >= 0 ? z : z - 146096) / 146097;
    long long doe = z - era * 146097;
    long long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
    long long y = yoe + era * 400;
    long long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
    long long mp = (5 * doy + 2) / 153;
    long long d = doy - (153 * mp + 2) / 5 + 1;
    long long m = mp < 10 ? mp + 3 : mp - 9;
    parts[0] = int(y + (m <= 2 ? 1 : 0));
    parts[1] = int(m);
    parts[2] = int(d);
    parts[3] = int(secs / 3600);
    parts[4] = int(secs / 60 % 60);
    parts[5] = int(secs % 60);
}

std::string formatDate(double date)
{
    if (!(date > -657435.0 && date < 2958466.0))
        raise(errc::Overflow);
    int p[6];
    fromDateSerial(date, p);
    char buf[64];
    bool hasTime = p[3] || p[4] || p[5];
    if (std::trunc(date) == 0 && hasTime) {
        std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", p[3], p[4], p[5]);
    } else if (!hasTime) {
        std::snprintf(buf, sizeof buf, "%02d/%02d/%04d", p[2], p[1], p[0]);
    } else {
        std::snprintf(buf, sizeof buf, "%02d/%02d/%04d %02d:%02d:%02d", p[2], p[1], p[0], p[3], p[4], p[5]);
    }
    return buf;
}

Value primitive(const Value& v)
{
    if (!v.isObject())
        return v;
    Object* o = v.asObject();
    if (!o)
        raise(errc::ObjectNotSet);
    auto* host = dynamic_cast<HostObject*>(o);
    if (!host)
        raise(errc::NoSuchMember);
    HostResult r = host->defaultValue();
    if (r.failed())
        raise(*r.error);
    if (r.value.isObject())
        raise(errc::NoSuchMember);
    return r.value;
}

std::string toText(const Value& v)
{
    switch (v.type()) {
    case Type::Empty: return {};
    case Type::Null: raise(errc::InvalidUseOfNull);
    case Type::Boolean: return v.asBool() ? "True" : "False";
    case Type::Integer:
    case Type::Long: return std::to_string(v.asInt());
    case Type::Double: return formatDouble(v.asDouble());
    case Type::Date: return formatDate(v.asDouble());
    case Type::String: return std::string(v.asStringView());
    case Type::Object: return toText(primitive(v));
    case Type::Array: raise(errc::TypeMismatch);
    case Type::Ref: return toText(v.deref());
    }
    return {};
}

Value toTextValue(const Value& v)
{
    if (v.isString())
        return v;
    return Value::string(toText(v));
}

Value toNumeric(const Value& v)
{
    switch (v.type()) {
    case Type::Empty: return Value::integer(0);
    case Type::Null: return v;
    case Type::Boolean: return Value::integer(v.asBool() ? -1 : 0);
    case Type::Integer:
    case Type::Long:
    case Type::Double:
    case Type::Date: return v;
    case Type::String: {
        auto d = parseNumeric(v.asStringView());
        if (!d)
            raise(errc::TypeMismatch);
        return Value::dbl(*d);
    }
    case Type::Object: return toNumeric(primitive(v));
    case Type::Array: raise(errc::TypeMismatch);
    case Type::Ref: return toNumeric(v.deref());
    }
    return v;
}

bool isNumericValue(const Value& v)
{
    switch (v.type()) {
    case Type::Empty:
    case Type::Boolean:
    case Type::Integer:
    case Type::Long:
    case Type::Double: return true;
    case Type::String: return parseNumeric(v.asStringView()).has_value();
    default: return false;
    }
}

double toDouble(const Value& v)
{
    Value n = toNumeric(v);
    if (n.isNull())
        raise(errc::InvalidUseOfNull);
    return numberOf(n);
}

std::int32_t toLong(const Value& v)
{
    if (v.isInteger())
        return v.asInt();
    Value n = toNumeric(v);
    if (n.isNull())
        raise(errc::InvalidUseOfNull);
    return std::int32_t(roundToLong(n));
}

std::int16_t toInteger(const Value& v)
{
    std::int32_t l = toLong(v);
    if (l < -32768 || l > 32767)
        raise(errc::Overflow);
    return std::int16_t(l);
}

bool toBoolean(const Value& v)
{
    switch (v.type()) {
    case Type::Empty: return false;
    case Type::Null: raise(errc::InvalidUseOfNull);
    case Type::Boolean:
    case Type::Integer:
    case Type::Long: return v.asInt() != 0;
    case Type::Double:
    case Type::Date: return v.asDouble() != 0;
    case Type::String: {
        std::string_view s = v.asStringView();
        std::size_t a = 0, b = s.size();
        while (a < b && isBlank(s[a])) ++a;
        while (b > a && isBlank(s[b - 1])) --b;
        s = s.substr(a, b - a);
        if (equalsNoCaseAscii(s, "true") || equalsNoCaseAscii(s, "vrai"))
            return true;
        if (equalsNoCaseAscii(s, "false") || equalsNoCaseAscii(s, "faux"))
            return false;
        auto d = parseNumeric(s);
        if (!d)
            raise(errc::TypeMismatch);
        return *d != 0;
    }
    case Type::Object: return toBoolean(primitive(v));
    case Type::Array: raise(errc::TypeMismatch);
    case Type::Ref: return toBoolean(v.deref());
    }
    return false;
}

bool isTrue(const Value& v)
{
    if (v.type() == Type::Boolean)
        return v.asBool();
    if (v.isNull())
        return false;
    return toBoolean(v);
}

Value joinStrings(const Value& a, const Value& b)
{
    std::string_view x = a.asStringView(), y = b.asStringView();
    if (x.empty())
        return b;
    if (y.empty())
        return a;
    StringRep* rep = StringRep::allocate(x.size() + y.size());
    std::memcpy(rep->data, x.data(), x.size());
    std::memcpy(rep->data + x.size(), y.data(), y.size());
    StringRep* ra = a.asStringRep();
    StringRep* rb = b.asStringRep();
    if (ra->chars >= 0 && rb->chars >= 0)
        rep->chars = ra->chars + rb->chars;
    return Value::string(rep);
}

Value add(const Value& a, const Value& b)
{
    if (a.isString() && b.isString())
        return joinStrings(a, b);
    Value pa = primitive(a), pb = primitive(b);
    if (pa.isString() && pb.isString())
        return joinStrings(pa, pb);
    if (pa.isNull() || pb.isNull())
        return Value::null();
    // Empty + text is the text, as if Empty were "".
    if (pa.isString() && pb.isEmpty())
        return pa;
    if (pb.isString() && pa.isEmpty())
        return pb;
    return arithmetic(Arith::Add, pa, pb);
}

Value subtract(const Value& a, const Value& b) { return arithmetic(Arith::Sub, a, b); }
Value multiply(const Value& a, const Value& b) { return arithmetic(Arith::Mul, a, b); }

Value divide(const Value& a0, const Value& b0)
{
    Value a = toNumeric(a0), b = toNumeric(b0);
    if (a.isNull() || b.isNull())
        return Value::null();
    double x = numberOf(a), y = numberOf(b);
    if (y == 0)
        raise(x == 0 ? errc::Overflow : errc::DivisionByZero);
    return checkedDouble(x / y);
}

// \ and Mod: both operands rounded to whole numbers first.
template <class F>
Value wholeDivision(const Value& a0, const Value& b0, F op)
{
    Value a = toNumeric(a0), b = toNumeric(b0);
    if (a.isNull() || b.isNull())
        return Value::null();
    std::int64_t x = roundToLong(a), y = roundToLong(b);
    if (y == 0)
        raise(errc::DivisionByZero);
    return wholeResult(op(x, y), a.type() == Type::Integer && b.type() == Type::Integer);
}

Value intDivide(const Value& a, const Value& b)
{
    return wholeDivision(a, b, [](std::int64_t x, std::int64_t y) { return x / y; });
}

Value modulo(const Value& a, const Value& b)
{
    return wholeDivision(a, b, [](std::int64_t x, std::int64_t y) { return x % y; });
}

Value power(const Value& a0, const Value& b0)
{
    Value a = toNumeric(a0), b = toNumeric(b0);
    if (a.isNull() || b.isNull())
        return Value::null();
    double x = numberOf(a), y = numberOf(b);
    if (x < 0 && y != std::trunc(y))
        raise(errc::InvalidCall);
    if (x == 0 && y < 0)
        raise(errc::DivisionByZero);
    return checkedDouble(std::pow(x, y));
}

Value concat(const Value& a, const Value& b)
{
    if (a.isString() && b.isString())
        return joinStrings(a, b);
    Value pa = primitive(a), pb = primitive(b);
    if (pa.isNull() && pb.isNull())
        return Value::null();
    Value x = pa.isNull() ? Value::string("") : toTextValue(pa);
    Value y = pb.isNull() ? Value::string("") : toTextValue(pb);
    if (x.asStringRep() == nullptr)
        return y.isString() ? y : Value::string("");
    if (y.asStringRep() == nullptr)
        return x;
    return joinStrings(x, y);
}

Value negate(const Value& a0)
{
    Value a = toNumeric(a0);
    switch (a.type()) {
    case Type::Null: return a;
    case Type::Integer: return wholeResult(-std::int64_t(a.asInt()), true);
    case Type::Long: return wholeResult(-std::int64_t(a.asInt()), false);
    case Type::Date: return Value::date(-a.asDouble());
    default: return Value::dbl(-a.asDouble());
    }
}

Value logicalNot(const Value& a0)
{
    Logical a = logicalOperand(a0);
    if (a.isNull)
        return Value::null();
    return logicalResult(a, a, ~a.bits);
}

Value logicalAnd(const Value& a, const Value& b)
{
    return logical(a, b, [](std::int32_t x, std::int32_t y) { return x & y; }, 1);
}
Value logicalOr(const Value& a, const Value& b)
{
    return logical(a, b, [](std::int32_t x, std::int32_t y) { return x | y; }, 2);
}
Value logicalXor(const Value& a, const Value& b)
{
    return logical(a, b, [](std::int32_t x, std::int32_t y) { return x ^ y; }, 0);
}
Value logicalEqv(const Value& a, const Value& b)
{
    return logical(a, b, [](std::int32_t x, std::int32_t y) { return ~(x ^ y); }, 0);
}
Value logicalImp(const Value& a, const Value& b)
{
    return logical(a, b, [](std::int32_t x, std::int32_t y) { return ~x | y; }, 3);
}

int compareValues(const Value& a0, const Value& b0, std::uint8_t literals, bool ignoreCase)
{
    const Value& ra = a0.deref();
    const Value& rb = b0.deref();
    if (ra.isInteger() && rb.isInteger())
        return ra.asInt() < rb.asInt() ? -1 : ra.asInt() > rb.asInt();
    Value a = primitive(ra), b = primitive(rb);
    if (a.isNull() || b.isNull())
        return 2;
    if (a.isArray() || b.isArray())
        raise(errc::TypeMismatch);
    auto textCompare = [&](std::string_view x, std::string_view y) {
        if (ignoreCase)
            return compareNoCase(x, y);
        int c = x.compare(y);
        return c < 0 ? -1 : c > 0;
    };
    auto numberCompare = [](double x, double y) { return x < y ? -1 : x > y ? 1 : 0; };
    bool sa = a.isString(), sb = b.isString();
    if (sa && sb)
        return textCompare(a.asStringView(), b.asStringView());
    if (a.isEmpty() && b.isEmpty())
        return 0;
    if (sa && b.isEmpty())
        return textCompare(a.asStringView(), {});
    if (sb && a.isEmpty())
        return textCompare({}, b.asStringView());
    if (!sa && !sb)
        return numberCompare(numberOf(toNumeric(a)), numberOf(toNumeric(b)));
    // A number against a text.
    const Value& text = sa ? a : b;
    const Value& number = sa ? b : a;
    bool textIsLiteral = (literals & (sa ? LeftLiteral : RightLiteral)) != 0;
    bool numberIsLiteral = (literals & (sa ? RightLiteral : LeftLiteral)) != 0;
    int c;
    if (numberIsLiteral && !textIsLiteral) {
        auto d = parseNumeric(text.asStringView());
        if (!d)
            raise(errc::TypeMismatch);
        c = numberCompare(*d, numberOf(toNumeric(number)));
    } else if (textIsLiteral && !numberIsLiteral) {
        c = textCompare(text.asStringView(), toText(number));
    } else {
        c = 1;  // between two variables a number is less than any text
    }
    return sa ? c : -c;
}

Value compare(Compare op, const Value& a, const Value& b, std::uint8_t literals)
{
    int c = compareValues(a, b, literals, false);
    if (c == 2)
        return Value::null();
    bool r = false;
    switch (op) {
    case Compare::Eq: r = c == 0; break;
    case Compare::Ne: r = c != 0; break;
    case Compare::Lt: r = c < 0; break;
    case Compare::Le: r = c <= 0; break;
    case Compare::Gt: r = c > 0; break;
    case Compare::Ge: r = c >= 0; break;
    }
    return Value::boolean(r);
}

Value identical(const Value& a0, const Value& b0)
{
    const Value& a = a0.deref();
    const Value& b = b0.deref();
    if (!a.isObject() || !b.isObject())
        raise(errc::ObjectRequired);
    return Value::boolean(a.asObject() == b.asObject());
}

}  // namespace qor::script
