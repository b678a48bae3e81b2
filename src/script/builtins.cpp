#include "script/builtins.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstring>
#include <ctime>
#include <unordered_map>

#include "script/code.h"
#include "script/operations.h"
#include "script/runtime.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

using Args = std::span<Value>;

bool given(Args a, std::size_t i) { return i < a.size() && !isMissing(a[i]); }

// Text functions give Null for Null, as the language does.
bool nullIn(Args a, std::size_t i) { return i < a.size() && a[i].isNull(); }

Value str(std::string s) { return Value::string(s); }

std::int32_t charLength(const Value& s)
{
    StringRep* r = s.asStringRep();
    return r ? r->charCount() : 0;
}

// Substring by characters (0-based start, count), fast on ASCII.
Value substring(const Value& s, std::int64_t start, std::int64_t count)
{
    StringRep* r = s.asStringRep();
    std::int64_t len = r ? r->charCount() : 0;
    if (start >= len || count <= 0)
        return Value::string("");
    count = std::min(count, len - start);
    if (start == 0 && count == len)
        return s;
    std::string_view v = s.asStringView();
    if (r->isAscii()) {
        StringRep* out = StringRep::make(v.substr(std::size_t(start), std::size_t(count)));
        out->chars = std::int32_t(count);
        return Value::string(out);
    }
    std::size_t a = byteOffsetOfChar(v, std::size_t(start));
    std::size_t b = a + byteOffsetOfChar(v.substr(a), std::size_t(count));
    return Value::string(v.substr(a, b - a));
}

// Position (1-based characters) of what in text from character start (0-based), 0 when absent.
std::int64_t findText(const Value& text, const Value& what, std::int64_t start, bool ignoreCase)
{
    std::string_view t = text.asStringView(), w = what.asStringView();
    StringRep* r = text.asStringRep();
    bool ascii = !r || r->isAscii();
    std::size_t from = ascii ? std::size_t(start) : byteOffsetOfChar(t, std::size_t(start));
    if (from > t.size())
        return 0;
    std::size_t pos;
    if (!ignoreCase) {
        pos = t.find(w, from);
    } else {
        std::string lt = toLowerText(t.substr(from)), lw = toLowerText(w);
        std::size_t p = lt.find(lw);
        // Folding keeps byte lengths for the letters we fold, so offsets agree.
        pos = p == std::string::npos ? p : from + p;
    }
    if (pos == std::string::npos)
        return 0;
    return ascii ? std::int64_t(pos) + 1 : std::int64_t(utf8Length(t.substr(0, pos))) + 1;
}

int compareMode(Args a, std::size_t i)
{
    if (!given(a, i))
        return 0;
    std::int32_t m = toLong(a[i]);
    if (m < 0 || m > 2)
        raise(errc::InvalidCall);
    return m;
}

std::int64_t nonNegative(const Value& v)
{
    std::int32_t n = toLong(v);
    if (n < 0)
        raise(errc::InvalidCall);
    return n;
}

// ---- Messages ---------------------------------------------------------

Value fnMsgBox(Runtime& rt, Args a)
{
    MsgBoxRequest r;
    r.prompt = toText(a[0]);
    r.buttons = given(a, 1) ? toLong(a[1]) : 0;
    if (given(a, 2))
        r.title = toText(a[2]);
    int answer = rt.host() ? rt.host()->msgBox(r) : vbOK;
    return Value::integer(answer);
}

Value fnInputBox(Runtime& rt, Args a)
{
    InputBoxRequest r;
    r.prompt = toText(a[0]);
    if (given(a, 1))
        r.title = toText(a[1]);
    if (given(a, 2))
        r.defaultText = toText(a[2]);
    std::optional<std::string> answer = rt.host() ? rt.host()->inputBox(r) : std::nullopt;
    return str(answer.value_or(""));
}

Value fnCreateObject(Runtime& rt, Args a)
{
    std::string id = toText(a[0]);
    if (!rt.host())
        raise(errc::CannotCreateObject, id);
    HostResult r = rt.host()->createObject(id);
    if (r.failed()) {
        ScriptError e = *r.error;
        if (e.number == errc::CannotCreateObject && e.description == errorDescription(errc::CannotCreateObject))
            e = makeScriptError(errc::CannotCreateObject, id);
        throw e;
    }
    return std::move(r.value);
}

Value fnLoadPicture(Runtime& rt, Args a)
{
    std::string path = given(a, 0) ? toText(a[0]) : std::string();
    if (!rt.host())
        raise(errc::InvalidPicture);
    HostResult r = rt.host()->loadPicture(path);
    if (r.failed())
        throw *r.error;
    return std::move(r.value);
}

// ---- Colours ----------------------------------------------------------

// RGB(red, green, blue) as 0x00BBGGRR; a part above 255 counts as 255.
Value fnRGB(Runtime&, Args a)
{
    std::int32_t colour = 0;
    for (int i = 0; i < 3; ++i) {
        const std::int32_t part = toLong(a[std::size_t(i)]);
        if (part < 0)
            raise(errc::InvalidCall);
        colour |= std::min<std::int32_t>(part, 255) << (8 * i);
    }
    return Value::longValue(colour);
}

// ---- Characters -------------------------------------------------------

Value fnChr(Runtime&, Args a)
{
    std::int32_t n = toLong(a[0]);
    if (n < 0 || n > 255)
        raise(errc::InvalidCall);
    std::string s;
    appendUtf8(s, cp1252CodePoint(static_cast<unsigned char>(n)));
    return str(s);
}

Value fnChrW(Runtime&, Args a)
{
    std::int32_t n = toLong(a[0]);
    if (n < -32768 || n > 65535)
        raise(errc::InvalidCall);
    std::string s;
    appendUtf8(s, char32_t(n < 0 ? n + 65536 : n));
    return str(s);
}

char32_t firstChar(Args a)
{
    Value s = toTextValue(a[0]);
    std::string_view v = s.asStringView();
    if (v.empty())
        raise(errc::InvalidCall);
    std::size_t pos = 0;
    return nextCodePoint(v, pos);
}

Value fnAsc(Runtime&, Args a)
{
    int b = cp1252ByteOf(firstChar(a));
    return Value::integer(b < 0 ? '?' : b);
}

Value fnAscW(Runtime&, Args a)
{
    char32_t c = firstChar(a);
    return Value::integer(c > 0xFFFF ? '?' : std::int32_t(std::int16_t(std::uint16_t(c))));
}

// ---- Strings ----------------------------------------------------------

Value fnLen(Runtime&, Args a)
{
    if (a[0].isNull())
        return Value::null();
    if (a[0].isString())
        return Value::longValue(charLength(a[0]));
    return Value::longValue(charLength(toTextValue(a[0])));
}

Value fnLeft(Runtime&, Args a)
{
    if (nullIn(a, 0))
        return Value::null();
    return substring(toTextValue(a[0]), 0, nonNegative(a[1]));
}

Value fnRight(Runtime&, Args a)
{
    if (nullIn(a, 0))
        return Value::null();
    Value s = toTextValue(a[0]);
    std::int64_t n = nonNegative(a[1]), len = charLength(s);
    return substring(s, std::max<std::int64_t>(0, len - n), n);
}

Value fnMid(Runtime&, Args a)
{
    if (nullIn(a, 0))
        return Value::null();
    Value s = toTextValue(a[0]);
    std::int32_t start = toLong(a[1]);
    if (start < 1)
        raise(errc::InvalidCall);
    std::int64_t count = given(a, 2) ? nonNegative(a[2]) : std::int64_t(INT32_MAX);
    return substring(s, start - 1, count);
}

Value mapCase(Args a, bool upper)
{
    if (nullIn(a, 0))
        return Value::null();
    Value s = toTextValue(a[0]);
    std::string_view v = s.asStringView();
    return str(upper ? toUpperText(v) : toLowerText(v));
}
Value fnUCase(Runtime&, Args a) { return mapCase(a, true); }
Value fnLCase(Runtime&, Args a) { return mapCase(a, false); }

Value trim(Args a, bool left, bool right)
{
    if (nullIn(a, 0))
        return Value::null();
    Value s = toTextValue(a[0]);
    std::string_view v = s.asStringView();
    std::size_t b = 0, e = v.size();
    if (left)
        while (b < e && v[b] == ' ')
            ++b;
    if (right)
        while (e > b && v[e - 1] == ' ')
            --e;
    if (b == 0 && e == v.size())
        return s;
    return str(std::string(v.substr(b, e - b)));
}
Value fnTrim(Runtime&, Args a) { return trim(a, true, true); }
Value fnLTrim(Runtime&, Args a) { return trim(a, true, false); }
Value fnRTrim(Runtime&, Args a) { return trim(a, false, true); }

Value fnInStr(Runtime&, Args a)
{
    // InStr([start, ]text, what[, compare])
    std::size_t base = 0;
    std::int64_t start = 0;
    if (a.size() >= 3) {
        if (nullIn(a, 0))
            raise(errc::InvalidUseOfNull);
        std::int32_t s = toLong(a[0]);
        if (s < 1)
            raise(errc::InvalidCall);
        start = s - 1;
        base = 1;
    }
    if (nullIn(a, base) || nullIn(a, base + 1))
        return Value::null();
    bool ignoreCase = compareMode(a, base + 2) == 1;
    Value text = toTextValue(a[base]), what = toTextValue(a[base + 1]);
    std::int64_t len = charLength(text);
    if (start >= len && !(len == 0 && start == 0))
        return Value::longValue(0);
    if (what.asStringView().empty())
        return Value::longValue(std::int32_t(start + 1));
    return Value::longValue(std::int32_t(findText(text, what, start, ignoreCase)));
}

Value fnInStrRev(Runtime&, Args a)
{
    if (nullIn(a, 0) || nullIn(a, 1))
        return Value::null();
    Value text = toTextValue(a[0]), what = toTextValue(a[1]);
    std::int64_t len = charLength(text);
    std::int64_t start = given(a, 2) ? toLong(a[2]) : -1;
    if (start == 0 || start < -1)
        raise(errc::InvalidCall);
    if (start == -1)
        start = len;
    bool ignoreCase = compareMode(a, 3) == 1;
    if (start > len)
        return Value::longValue(0);
    std::int64_t wlen = charLength(what);
    if (wlen == 0)
        return Value::longValue(std::int32_t(start));
    // Search the first start characters for the last match.
    Value head = substring(text, 0, start);
    std::string h(head.asStringView()), w(what.asStringView());
    if (ignoreCase) {
        h = toLowerText(h);
        w = toLowerText(w);
    }
    std::size_t pos = h.rfind(w);
    if (pos == std::string::npos)
        return Value::longValue(0);
    return Value::longValue(std::int32_t(utf8Length(std::string_view(h).substr(0, pos)) + 1));
}

Value fnReplace(Runtime&, Args a)
{
    if (nullIn(a, 0) || nullIn(a, 1) || nullIn(a, 2))
        return Value::null();
    Value text = toTextValue(a[0]);
    std::string find = toText(a[1]), with = toText(a[2]);
    std::int64_t start = given(a, 3) ? toLong(a[3]) : 1;
    if (start < 1)
        raise(errc::InvalidCall);
    std::int64_t count = given(a, 4) ? toLong(a[4]) : -1;
    if (count < -1)
        raise(errc::InvalidCall);
    bool ignoreCase = compareMode(a, 5) == 1;
    // The result starts at start, as the language's Replace does.
    Value tail = substring(text, start - 1, INT32_MAX);
    std::string src(tail.asStringView());
    if (find.empty() || count == 0)
        return str(src);
    std::string hay = ignoreCase ? toLowerText(src) : src;
    std::string needle = ignoreCase ? toLowerText(find) : find;
    std::string out;
    std::size_t pos = 0;
    std::int64_t done = 0;
    for (;;) {
        if (count >= 0 && done >= count)
            break;
        std::size_t hit = hay.find(needle, pos);
        if (hit == std::string::npos)
            break;
        out.append(src, pos, hit - pos);
        out += with;
        if (out.size() > memoryLimits().maxStringBytes)
            raise(errc::OutOfStringSpace);
        pos = hit + needle.size();
        ++done;
    }
    out.append(src, pos, std::string::npos);
    return str(std::move(out));
}

Value fnSpace(Runtime&, Args a)
{
    std::int64_t n = nonNegative(a[0]);
    StringRep* r = StringRep::allocate(std::size_t(n));
    std::memset(r->data, ' ', std::size_t(n));
    r->chars = std::int32_t(n);
    return Value::string(r);
}

Value fnString(Runtime&, Args a)
{
    std::int64_t n = nonNegative(a[0]);
    if (a[1].isNull())
        return Value::null();
    std::string unit;
    if (a[1].isString()) {
        std::string_view v = a[1].asStringView();
        if (v.empty())
            raise(errc::InvalidCall);
        std::size_t pos = 0;
        nextCodePoint(v, pos);
        unit = std::string(v.substr(0, pos));
    } else {
        std::int32_t code = toLong(a[1]) % 256;
        if (code < 0)
            code += 256;
        appendUtf8(unit, cp1252CodePoint(static_cast<unsigned char>(code)));
    }
    StringRep* r = StringRep::allocate(std::size_t(n) * unit.size());
    for (std::int64_t i = 0; i < n; ++i)
        std::memcpy(r->data + i * unit.size(), unit.data(), unit.size());
    r->chars = std::int32_t(n);
    return Value::string(r);
}

Value fnStrReverse(Runtime&, Args a)
{
    if (nullIn(a, 0))
        raise(errc::InvalidUseOfNull);
    Value s = toTextValue(a[0]);
    std::string_view v = s.asStringView();
    std::vector<std::string_view> chars;
    std::size_t pos = 0;
    while (pos < v.size()) {
        std::size_t b = pos;
        nextCodePoint(v, pos);
        chars.push_back(v.substr(b, pos - b));
    }
    std::string out;
    out.reserve(v.size());
    for (auto it = chars.rbegin(); it != chars.rend(); ++it)
        out += *it;
    return str(std::move(out));
}

Value fnStrComp(Runtime&, Args a)
{
    if (nullIn(a, 0) || nullIn(a, 1))
        return Value::null();
    bool ignoreCase = compareMode(a, 2) == 1;
    std::string x = toText(a[0]), y = toText(a[1]);
    int c = ignoreCase ? compareNoCase(x, y) : (x < y ? -1 : x > y);
    return Value::integer(c);
}

Value fnSplit(Runtime&, Args a)
{
    if (nullIn(a, 0))
        raise(errc::InvalidUseOfNull);
    std::string text = toText(a[0]);
    std::string delim = given(a, 1) ? toText(a[1]) : " ";
    std::int64_t limit = given(a, 2) ? toLong(a[2]) : -1;
    bool ignoreCase = compareMode(a, 3) == 1;
    std::vector<std::string> parts;
    if (!text.empty()) {
        if (delim.empty()) {
            parts.push_back(text);
        } else {
            std::string hay = ignoreCase ? toLowerText(text) : text;
            std::string needle = ignoreCase ? toLowerText(delim) : delim;
            std::size_t pos = 0;
            for (;;) {
                if (limit >= 0 && std::int64_t(parts.size()) + 1 >= limit)
                    break;
                std::size_t hit = hay.find(needle, pos);
                if (hit == std::string::npos)
                    break;
                parts.push_back(text.substr(pos, hit - pos));
                pos = hit + needle.size();
                if (parts.size() > memoryLimits().maxArrayItems)
                    raise(errc::OutOfMemory);
            }
            parts.push_back(text.substr(pos));
        }
    }
    ArrayRep* arr = ArrayRep::make({std::int32_t(parts.size()) - 1}, false);
    Value result = Value::array(arr);
    for (std::size_t i = 0; i < parts.size(); ++i)
        arr->items[i] = Value::string(parts[i]);
    return result;
}

Value fnJoin(Runtime&, Args a)
{
    if (!a[0].isArray() || a[0].asArray()->upper.size() != 1)
        raise(errc::TypeMismatch);
    std::string delim = given(a, 1) ? toText(a[1]) : " ";
    std::string out;
    const auto& items = a[0].asArray()->items;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i)
            out += delim;
        out += items[i].isNull() ? std::string() : toText(items[i]);
        if (out.size() > memoryLimits().maxStringBytes)
            raise(errc::OutOfStringSpace);
    }
    return str(std::move(out));
}

// ---- Conversions ------------------------------------------------------

Value fnCStr(Runtime&, Args a) { return toTextValue(a[0]); }
Value fnCInt(Runtime&, Args a) { return Value::integer(toInteger(a[0])); }
Value fnCLng(Runtime&, Args a) { return Value::longValue(toLong(a[0])); }
Value fnCDbl(Runtime&, Args a)
{
    Value n = toNumeric(a[0]);
    if (n.isNull())
        raise(errc::InvalidUseOfNull);
    return Value::dbl(toDouble(n));
}
Value fnCBool(Runtime&, Args a) { return Value::boolean(toBoolean(a[0])); }

Value wholePart(Args a, bool floorIt)
{
    Value n = toNumeric(a[0]);
    if (n.isNull() || n.isInteger())
        return n;
    double d = n.asDouble();
    double r = floorIt ? std::floor(d) : std::trunc(d);
    return n.type() == Type::Date ? Value::date(r) : Value::dbl(r);
}
Value fnInt(Runtime&, Args a) { return wholePart(a, true); }
Value fnFix(Runtime&, Args a) { return wholePart(a, false); }

Value fnAbs(Runtime&, Args a)
{
    Value n = toNumeric(a[0]);
    if (n.isNull())
        return n;
    if (n.isInteger())
        return n.asInt() < 0 ? negate(n) : n;
    return Value::dbl(std::fabs(n.asDouble()));
}

Value fnSgn(Runtime&, Args a)
{
    Value n = toNumeric(a[0]);
    if (n.isNull())
        raise(errc::InvalidUseOfNull);
    double d = n.isInteger() ? n.asInt() : n.asDouble();
    return Value::integer(d > 0 ? 1 : d < 0 ? -1 : 0);
}

Value fnRound(Runtime&, Args a)
{
    Value n = toNumeric(a[0]);
    if (n.isNull())
        return n;
    std::int32_t places = given(a, 1) ? toLong(a[1]) : 0;
    if (places < 0)
        raise(errc::InvalidCall);
    if (n.isInteger())
        return n;
    double d = n.asDouble();
    if (places == 0)
        return Value::dbl(roundHalfEven(d));
    if (places > 15 || std::fabs(d) >= 1e15)
        return n;
    double scale = std::pow(10.0, places);
    double scaled = d * scale;
    // Half to even on the decimal digits the user sees, not on binary noise.
    double r = roundHalfEven(scaled);
    if (std::fabs(scaled - std::trunc(scaled)) != 0.5) {
        char buf[64];
        std::snprintf(buf, sizeof buf, "%.*f", places, d);
        return Value::dbl(std::strtod(buf, nullptr));
    }
    return Value::dbl(r / scale);
}

Value fnSqr(Runtime&, Args a)
{
    double d = toDouble(a[0]);
    if (d < 0)
        raise(errc::InvalidCall);
    return Value::dbl(std::sqrt(d));
}

double nextRnd(Runtime& rt)
{
    rt.rndSeed = (rt.rndSeed * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return double(rt.rndSeed) / 16777216.0;
}

Value fnRnd(Runtime& rt, Args a)
{
    if (given(a, 0)) {
        double d = toDouble(a[0]);
        if (d == 0)
            return Value::dbl(rt.lastRnd);
        if (d < 0) {
            float fl = float(d);
            std::uint32_t bits;
            std::memcpy(&bits, &fl, sizeof bits);
            rt.rndSeed = (bits + (bits >> 24)) & 0xFFFFFFu;
        }
    }
    rt.lastRnd = nextRnd(rt);
    return Value::dbl(rt.lastRnd);
}

Value fnRandomize(Runtime& rt, Args a)
{
    double seed;
    if (given(a, 0)) {
        seed = toDouble(a[0]);
    } else {
        auto now = std::chrono::system_clock::now().time_since_epoch();
        seed = double(std::chrono::duration_cast<std::chrono::microseconds>(now).count() % 86400000000LL) / 1e6;
    }
    std::uint64_t bits;
    std::memcpy(&bits, &seed, sizeof bits);
    std::uint32_t mix = std::uint32_t(bits >> 32) ^ std::uint32_t(bits);
    rt.rndSeed = (rt.rndSeed & 0xFF) | ((mix ^ (mix >> 16)) & 0xFFFF00u);
    return Value();
}

// ---- Tests and types --------------------------------------------------

Value fnIsNumeric(Runtime&, Args a) { return Value::boolean(isNumericValue(a[0])); }
Value fnIsEmpty(Runtime&, Args a) { return Value::boolean(a[0].isEmpty()); }
Value fnIsNull(Runtime&, Args a) { return Value::boolean(a[0].isNull()); }
Value fnIsArray(Runtime&, Args a) { return Value::boolean(a[0].isArray()); }
Value fnIsObject(Runtime&, Args a) { return Value::boolean(a[0].isObject()); }

Value fnTypeName(Runtime&, Args a)
{
    const Value& v = a[0];
    switch (v.type()) {
    case Type::Empty: return str("Empty");
    case Type::Null: return str("Null");
    case Type::Boolean: return str("Boolean");
    case Type::Integer: return str("Integer");
    case Type::Long: return str("Long");
    case Type::Double: return str("Double");
    case Type::Date: return str("Date");
    case Type::String: return str("String");
    case Type::Array: return str("Variant()");
    case Type::Object:
        if (!v.asObject())
            return str("Nothing");
        return str(static_cast<HostObject*>(v.asObject())->typeName());
    case Type::Ref: break;
    }
    return str("Empty");
}

Value fnVarType(Runtime&, Args a)
{
    switch (a[0].type()) {
    case Type::Empty: return Value::integer(0);
    case Type::Null: return Value::integer(1);
    case Type::Integer: return Value::integer(2);
    case Type::Long: return Value::integer(3);
    case Type::Double: return Value::integer(5);
    case Type::Date: return Value::integer(7);
    case Type::String: return Value::integer(8);
    case Type::Object: return Value::integer(9);
    case Type::Boolean: return Value::integer(11);
    case Type::Array: return Value::integer(8204);
    case Type::Ref: break;
    }
    return Value::integer(0);
}

// ---- Arrays -----------------------------------------------------------

Value fnArray(Runtime&, Args a)
{
    ArrayRep* arr = ArrayRep::make({std::int32_t(a.size()) - 1}, false);
    Value result = Value::array(arr);
    for (std::size_t i = 0; i < a.size(); ++i)
        arr->items[i] = isMissing(a[i]) ? Value() : a[i];
    return result;
}

Value bound(Args a, bool upper)
{
    if (!a[0].isArray())
        raise(errc::TypeMismatch);
    const ArrayRep* arr = a[0].asArray();
    std::int32_t dim = given(a, 1) ? toLong(a[1]) : 1;
    if (dim < 1 || std::size_t(dim) > arr->upper.size())
        raise(errc::SubscriptOutOfRange);
    return Value::longValue(upper ? arr->upper[std::size_t(dim - 1)] : 0);
}
Value fnUBound(Runtime&, Args a) { return bound(a, true); }
Value fnLBound(Runtime&, Args a) { return bound(a, false); }

// ---- Dates and times --------------------------------------------------

double nowSerial()
{
    std::time_t t = std::time(nullptr);
    std::tm local = *std::localtime(&t);
    return toDateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                        local.tm_sec);
}

Value fnNow(Runtime&, Args) { return Value::date(nowSerial()); }
Value fnDate(Runtime&, Args) { return Value::date(std::floor(nowSerial())); }
Value fnTime(Runtime&, Args)
{
    double n = nowSerial();
    return Value::date(n - std::floor(n));
}
Value fnTimer(Runtime&, Args)
{
    auto now = std::chrono::system_clock::now();
    std::time_t t = std::chrono::system_clock::to_time_t(now);
    std::tm local = *std::localtime(&t);
    auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    double secs = local.tm_hour * 3600.0 + local.tm_min * 60.0 + local.tm_sec + double(ms) / 1000.0;
    return Value::dbl(double(float(secs)));
}

// A date from a value: a date or number as it is, a text "dd/mm/yyyy [hh:mm[:ss]]" or "hh:mm[:ss]".
double dateOf(const Value& v)
{
    if (v.isNull())
        raise(errc::InvalidUseOfNull);
    if (v.isString()) {
        std::string_view s = v.asStringView();
        int nums[6] = {0, 0, 0, 0, 0, 0};
        int count = 0;
        bool timeOnly = s.find('/') == std::string_view::npos && s.find('-') == std::string_view::npos;
        std::size_t i = 0;
        while (i < s.size() && count < 6) {
            if (s[i] >= '0' && s[i] <= '9') {
                long n = 0;
                while (i < s.size() && s[i] >= '0' && s[i] <= '9' && n < 100000)
                    n = n * 10 + (s[i++] - '0');
                nums[count++] = int(n);
            } else {
                ++i;
            }
        }
        if (timeOnly && count >= 2 && count <= 3 && nums[0] < 24 && nums[1] < 60 && nums[2] < 60)
            return (nums[0] * 3600.0 + nums[1] * 60 + nums[2]) / 86400.0;
        if (!timeOnly && count >= 3 && nums[0] >= 1 && nums[0] <= 31 && nums[1] >= 1 && nums[1] <= 12 &&
            nums[3] < 24 && nums[4] < 60 && nums[5] < 60) {
            int year = nums[2] < 100 ? (nums[2] < 30 ? 2000 + nums[2] : 1900 + nums[2]) : nums[2];
            return toDateSerial(year, nums[1], nums[0], nums[3], nums[4], nums[5]);
        }
        if (auto d = parseNumeric(s))
            return *d;
        raise(errc::TypeMismatch);
    }
    double d = toDouble(v);
    if (!(d > -657435.0 && d < 2958466.0))
        raise(errc::InvalidCall);
    return d;
}

Value datePart(Args a, int index)
{
    if (a[0].isNull())
        return Value::null();
    int p[6];
    fromDateSerial(dateOf(a[0]), p);
    return Value::integer(p[index]);
}
Value fnYear(Runtime&, Args a) { return datePart(a, 0); }
Value fnMonth(Runtime&, Args a) { return datePart(a, 1); }
Value fnDay(Runtime&, Args a) { return datePart(a, 2); }
Value fnHour(Runtime&, Args a) { return datePart(a, 3); }
Value fnMinute(Runtime&, Args a) { return datePart(a, 4); }
Value fnSecond(Runtime&, Args a) { return datePart(a, 5); }

Value fnCDate(Runtime&, Args a) { return Value::date(dateOf(a[0])); }

// ---- Numbers in other bases ------------------------------------------

Value radix(Args a, int bits, const char* digits)
{
    if (a[0].isNull())
        return Value::null();
    Value n = toNumeric(a[0]);
    std::int32_t v = toLong(n);
    std::uint32_t u = (n.type() == Type::Integer && v < 0) ? std::uint32_t(std::uint16_t(v)) : std::uint32_t(v);
    std::string out;
    do {
        out += digits[u & ((1u << bits) - 1)];
        u >>= bits;
    } while (u);
    std::reverse(out.begin(), out.end());
    return str(out);
}
Value fnHex(Runtime&, Args a) { return radix(a, 4, "0123456789ABCDEF"); }
Value fnOct(Runtime&, Args a) { return radix(a, 3, "01234567"); }

constexpr Builtin kBuiltins[] = {
    {"MsgBox", 1, 5, fnMsgBox},
    {"InputBox", 1, 7, fnInputBox},
    {"CreateObject", 1, 2, fnCreateObject},
    {"LoadPicture", 0, 5, fnLoadPicture},
    {"Chr", 1, 1, fnChr},
    {"ChrW", 1, 1, fnChrW},
    {"Asc", 1, 1, fnAsc},
    {"AscW", 1, 1, fnAscW},
    {"Len", 1, 1, fnLen},
    {"Left", 2, 2, fnLeft},
    {"Right", 2, 2, fnRight},
    {"Mid", 2, 3, fnMid},
    {"UCase", 1, 1, fnUCase},
    {"LCase", 1, 1, fnLCase},
    {"Trim", 1, 1, fnTrim},
    {"LTrim", 1, 1, fnLTrim},
    {"RTrim", 1, 1, fnRTrim},
    {"InStr", 2, 4, fnInStr},
    {"InStrRev", 2, 4, fnInStrRev},
    {"Replace", 3, 6, fnReplace},
    {"Split", 1, 4, fnSplit},
    {"Join", 1, 2, fnJoin},
    {"Space", 1, 1, fnSpace},
    {"String", 2, 2, fnString},
    {"StrReverse", 1, 1, fnStrReverse},
    {"StrComp", 2, 3, fnStrComp},
    {"CStr", 1, 1, fnCStr},
    {"CInt", 1, 1, fnCInt},
    {"CLng", 1, 1, fnCLng},
    {"CDbl", 1, 1, fnCDbl},
    {"CBool", 1, 1, fnCBool},
    {"CDate", 1, 1, fnCDate},
    {"Int", 1, 1, fnInt},
    {"Fix", 1, 1, fnFix},
    {"Abs", 1, 1, fnAbs},
    {"Sgn", 1, 1, fnSgn},
    {"Round", 1, 2, fnRound},
    {"Sqr", 1, 1, fnSqr},
    {"Rnd", 0, 1, fnRnd},
    {"Randomize", 0, 1, fnRandomize},
    {"IsNumeric", 1, 1, fnIsNumeric},
    {"IsEmpty", 1, 1, fnIsEmpty},
    {"IsNull", 1, 1, fnIsNull},
    {"IsArray", 1, 1, fnIsArray},
    {"IsObject", 1, 1, fnIsObject},
    {"TypeName", 1, 1, fnTypeName},
    {"VarType", 1, 1, fnVarType},
    {"Array", 0, 4096, fnArray},
    {"UBound", 1, 2, fnUBound},
    {"LBound", 1, 2, fnLBound},
    {"Now", 0, 0, fnNow},
    {"Date", 0, 0, fnDate},
    {"Time", 0, 0, fnTime},
    {"Timer", 0, 0, fnTimer},
    {"Year", 1, 1, fnYear},
    {"Month", 1, 1, fnMonth},
    {"Day", 1, 1, fnDay},
    {"Hour", 1, 1, fnHour},
    {"Minute", 1, 1, fnMinute},
    {"Second", 1, 1, fnSecond},
    {"Hex", 1, 1, fnHex},
    {"Oct", 1, 1, fnOct},
    {"RGB", 3, 3, fnRGB},
};

struct Constant {
    const char* name;
    Value value;
};

const std::vector<Constant>& constants()
{
    static const std::vector<Constant> list = [] {
        auto i = [](int n) { return Value::integer(n); };
        auto l = [](std::int32_t n) { return Value::longValue(n); };
        auto s = [](const char* t) { return Value::string(t); };
        return std::vector<Constant>{
            {"vbCrLf", s("\r\n")}, {"vbCr", s("\r")}, {"vbLf", s("\n")}, {"vbTab", s("\t")},
            {"vbNewLine", s("\r\n")}, {"vbNullString", s("")}, {"vbNullChar", Value::string(std::string_view("\0", 1))},
            {"vbBack", s("\b")}, {"vbFormFeed", s("\f")}, {"vbVerticalTab", s("\v")},
            {"vbOKOnly", i(0)}, {"vbOKCancel", i(1)}, {"vbAbortRetryIgnore", i(2)}, {"vbYesNoCancel", i(3)},
            {"vbYesNo", i(4)}, {"vbRetryCancel", i(5)},
            {"vbCritical", i(16)}, {"vbQuestion", i(32)}, {"vbExclamation", i(48)}, {"vbInformation", i(64)},
            {"vbDefaultButton1", i(0)}, {"vbDefaultButton2", i(256)}, {"vbDefaultButton3", i(512)},
            {"vbDefaultButton4", i(768)}, {"vbApplicationModal", i(0)}, {"vbSystemModal", i(4096)},
            {"vbOK", i(vbOK)}, {"vbCancel", i(vbCancel)}, {"vbAbort", i(vbAbort)}, {"vbRetry", i(vbRetry)},
            {"vbIgnore", i(vbIgnore)}, {"vbYes", i(vbYes)}, {"vbNo", i(vbNo)},
            {"vbBinaryCompare", i(0)}, {"vbTextCompare", i(1)},
            {"vbUseDefault", i(-2)}, {"vbTrue", i(-1)}, {"vbFalse", i(0)},
            {"vbObjectError", l(-2147221504)},
            {"vbBlack", l(0)}, {"vbRed", l(255)}, {"vbGreen", l(65280)}, {"vbYellow", l(65535)},
            {"vbBlue", l(16711680)}, {"vbMagenta", l(16711935)}, {"vbCyan", l(16776960)}, {"vbWhite", l(16777215)},
            {"vbEmpty", i(0)}, {"vbNull", i(1)}, {"vbInteger", i(2)}, {"vbLong", i(3)}, {"vbSingle", i(4)},
            {"vbDouble", i(5)}, {"vbCurrency", i(6)}, {"vbDate", i(7)}, {"vbString", i(8)}, {"vbObject", i(9)},
            {"vbError", i(10)}, {"vbBoolean", i(11)}, {"vbVariant", i(12)}, {"vbByte", i(17)}, {"vbArray", i(8192)},
        };
    }();
    return list;
}

}  // namespace

const Builtin* findBuiltin(std::string_view name)
{
    static const std::unordered_map<std::string, const Builtin*> index = [] {
        std::unordered_map<std::string, const Builtin*> m;
        for (const auto& b : kBuiltins)
            m.emplace(lowerAscii(b.name), &b);
        return m;
    }();
    auto it = index.find(lowerAscii(name));
    return it == index.end() ? nullptr : it->second;
}

const Value* findBuiltinConstant(std::string_view name)
{
    for (const auto& c : constants())
        if (equalsNoCaseAscii(c.name, name))
            return &c.value;
    return nullptr;
}

}  // namespace qor::script
