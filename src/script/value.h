#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qor::script {

class Object;
struct StringRep;
struct ArrayRep;

// The kinds of value a script handles. Integer is 16 bits and Long 32 bits,
// as in the language, so that TypeName and overflow promotion come out right.
// Ref only ever sits in the slot of a ByRef parameter.
enum class Type : std::uint8_t { Empty, Null, Boolean, Integer, Long, Double, Date, String, Object, Array, Ref };

// One script value: a tag and a payload in 16 bytes. Strings, arrays and
// objects are shared and reference-counted; numbers never allocate.
class Value {
public:
    Value() noexcept : type_(Type::Empty), i_(0) {}
    Value(const Value& other) noexcept : type_(other.type_), bits_(other.bits_) { if (counted(type_)) retain(); }
    Value(Value&& other) noexcept : type_(other.type_), bits_(other.bits_) { other.type_ = Type::Empty; }
    ~Value() { if (counted(type_)) release(); }

    Value& operator=(const Value& other) noexcept
    {
        if (this != &other) {
            Value copy(other);
            swap(copy);
        }
        return *this;
    }
    Value& operator=(Value&& other) noexcept
    {
        if (this != &other) {
            if (counted(type_)) release();
            type_ = other.type_;
            bits_ = other.bits_;
            other.type_ = Type::Empty;
        }
        return *this;
    }
    // Store a number in place: what the arithmetic fast paths write.
    void setDouble(double d) noexcept
    {
        if (counted(type_)) release();
        type_ = Type::Double;
        d_ = d;
    }
    void setInteger(std::int16_t i) noexcept { setWhole(Type::Integer, i); }
    void setLong(std::int32_t i) noexcept { setWhole(Type::Long, i); }

private:
    void setWhole(Type t, std::int32_t i) noexcept
    {
        if (counted(type_)) release();
        type_ = t;
        i_ = i;
    }

public:
    void swap(Value& other) noexcept
    {
        std::swap(type_, other.type_);
        std::swap(bits_, other.bits_);
    }

    static Value null() { Value v; v.type_ = Type::Null; return v; }
    static Value boolean(bool b) { Value v; v.type_ = Type::Boolean; v.i_ = b ? -1 : 0; return v; }
    static Value integer(std::int32_t i) { Value v; v.type_ = Type::Integer; v.i_ = std::int16_t(i); return v; }
    static Value longValue(std::int32_t i) { Value v; v.type_ = Type::Long; v.i_ = i; return v; }
    static Value dbl(double d) { Value v; v.type_ = Type::Double; v.d_ = d; return v; }
    static Value date(double d) { Value v; v.type_ = Type::Date; v.d_ = d; return v; }
    static Value string(std::string_view text);
    static Value string(StringRep* rep);  // adopts one reference
    static Value object(Object* o);       // takes a new reference (nullptr is Nothing)
    static Value nothing() { return object(nullptr); }
    static Value array(ArrayRep* a);      // adopts one reference
    static Value ref(Value* target) { Value v; v.type_ = Type::Ref; v.ref_ = target; return v; }

    Type type() const { return type_; }
    bool isEmpty() const { return type_ == Type::Empty; }
    bool isNull() const { return type_ == Type::Null; }
    bool isString() const { return type_ == Type::String; }
    bool isObject() const { return type_ == Type::Object; }
    bool isArray() const { return type_ == Type::Array; }
    bool isRef() const { return type_ == Type::Ref; }
    bool isInteger() const { return type_ == Type::Integer || type_ == Type::Long; }

    bool asBool() const { return i_ != 0; }
    std::int32_t asInt() const { return std::int32_t(i_); }
    double asDouble() const { return d_; }
    StringRep* asStringRep() const { return s_; }
    std::string_view asStringView() const;
    Object* asObject() const { return o_; }
    ArrayRep* asArray() const { return a_; }
    Value* asRef() const { return ref_; }

    // The value itself, or the one a Ref points at (Empty for a left-out argument).
    const Value& deref() const { return type_ != Type::Ref ? *this : ref_ ? *ref_ : emptyValue(); }
    Value& deref() { return type_ != Type::Ref ? *this : ref_ ? *ref_ : scratchValue(); }
    static const Value& emptyValue();

private:
    static Value& scratchValue();
    static bool counted(Type t) { return t >= Type::String && t <= Type::Array; }
    void retain() const;
    void release();

    Type type_;
    // Whole numbers are kept in 64 bits so that every payload is written and
    // read as one 8-byte word (a narrower store defeats store forwarding).
    union {
        std::int64_t i_;
        double d_;
        StringRep* s_;
        ArrayRep* a_;
        Object* o_;
        Value* ref_;
        std::uint64_t bits_;
    };
};

static_assert(sizeof(Value) == 16);

// An immutable shared string in UTF-8. chars caches the character count
// (-1 until known) so Len, Mid and InStr stay cheap on plain ASCII text.
struct StringRep {
    int refs;
    std::int32_t chars;
    std::uint32_t size;
    char data[1];

    std::string_view view() const { return {data, size}; }
    // Allocates a string of size bytes (filled by the caller); fails with
    // "out of string space" beyond the current limits.
    static StringRep* allocate(std::size_t size);
    static StringRep* make(std::string_view text);
    static void destroy(StringRep* rep);
    // Rewrites rep, held by one value only, to hold x then y when its block
    // has room, so that s = a & b in a loop makes no new string; false
    // (rep untouched) when it has not. Either side may be rep itself.
    static bool rewrite(StringRep* rep, const StringRep* x, const StringRep* y);
    std::int32_t charCount();
    bool isAscii() { return charCount() == std::int32_t(size); }
};

// An array of values, zero-based in every dimension. Shared copy-on-write,
// so assigning an array copies it as the language requires, but cheaply.
struct ArrayRep {
    int refs = 1;
    bool fixedSize = false;              // declared with bounds: ReDim refuses it
    std::vector<std::int32_t> upper;     // upper bound of each dimension
    std::vector<Value> items;            // row-major, last index fastest

    static ArrayRep* make(std::vector<std::int32_t> upper, bool fixedSize);
    static void destroy(ArrayRep* a);
    ArrayRep* clone() const;
    // Element index of the subscripts, or -1 when one is out of range.
    std::int64_t offset(const std::int32_t* subscripts, std::size_t count) const;
};

// Base of everything a script can hold as an object: host objects and the
// engine's own (Err). Reference-counted by the values that hold it.
class Object {
public:
    Object() = default;
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    virtual ~Object();

    void addRef() { ++refs_; }
    void release() { if (--refs_ == 0) delete this; }

private:
    int refs_ = 0;
};

// A counted pointer to an Object, for hosts that keep their objects.
template <class T>
class Ref {
public:
    Ref() = default;
    Ref(T* p) : p_(p) { if (p_) p_->addRef(); }
    Ref(const Ref& o) : p_(o.p_) { if (p_) p_->addRef(); }
    Ref(Ref&& o) noexcept : p_(o.p_) { o.p_ = nullptr; }
    template <class U>
    Ref(const Ref<U>& o) : p_(o.get()) { if (p_) p_->addRef(); }
    ~Ref() { if (p_) p_->release(); }
    Ref& operator=(Ref o) { std::swap(p_, o.p_); return *this; }
    T* get() const { return p_; }
    T* operator->() const { return p_; }
    T& operator*() const { return *p_; }
    explicit operator bool() const { return p_ != nullptr; }

private:
    T* p_ = nullptr;
};

template <class T, class... A>
Ref<T> makeRef(A&&... args) { return Ref<T>(new T(std::forward<A>(args)...)); }

// Limits that keep a hostile script from exhausting the machine; a string
// or array beyond them fails with a script error instead.
struct MemoryLimits {
    std::size_t maxStringBytes = std::size_t(256) << 20;
    std::size_t maxLiveStringBytes = std::size_t(1) << 30;
    std::size_t maxArrayItems = std::size_t(16) << 20;
};
MemoryLimits& memoryLimits();
std::size_t liveStringBytes();

}  // namespace qor::script
