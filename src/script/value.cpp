#include "script/value.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <new>

#include "script/script_error.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {
// Short strings come and go by the million in a loop that joins or cuts
// text: their blocks are kept for reuse instead of going back to the C
// library, whose allocator is slow on some systems (Windows' heap under
// wine takes twice as long as the loop's own work). All blocks of a short
// string have one size, so a block fits any short string.
constexpr std::size_t kShortBlock = 64;
constexpr std::size_t kShortMax = kShortBlock - offsetof(StringRep, data) - 1;
constexpr int kKeptBlocks = 256;

class ShortBlocks {
public:
    ShortBlocks() = default;
    ShortBlocks(const ShortBlocks&) = delete;
    ShortBlocks& operator=(const ShortBlocks&) = delete;
    ~ShortBlocks()
    {
        while (head_) {
            Free* next = head_->next;
            std::free(head_);
            head_ = next;
        }
    }
    void* take()
    {
        if (!head_)
            return std::malloc(kShortBlock);
        Free* b = head_;
        head_ = b->next;
        --count_;
        return b;
    }
    void give(void* p)
    {
        if (count_ == kKeptBlocks) {
            std::free(p);
            return;
        }
        auto* b = static_cast<Free*>(p);
        b->next = head_;
        head_ = b;
        ++count_;
    }

private:
    struct Free {
        Free* next;
    };
    Free* head_ = nullptr;
    int count_ = 0;
};
// One thread's string space: its limits, what its live strings hold, its
// kept blocks. One object, so that an allocation finds it once (a
// thread-local variable is a call away on Windows).
struct StringSpace {
    MemoryLimits limits;
    std::size_t liveStringBytes = 0;
    ShortBlocks shortBlocks;
};

// The hot path reads a plain pointer: a thread-local with a constructor or
// destructor costs an extra guard call on every access with some
// toolchains (MinGW's emulated TLS), which doubled the price of each string
// made and freed. The space itself is built on a thread's first string and
// freed with the thread by its owner, which nothing else touches.
thread_local StringSpace* tSpacePtr = nullptr;

struct SpaceOwner {
    StringSpace space;
    ~SpaceOwner() { tSpacePtr = nullptr; }
};

StringSpace& newSpace()
{
    thread_local SpaceOwner owner;
    tSpacePtr = &owner.space;
    return owner.space;
}

inline StringSpace& space()
{
    StringSpace* p = tSpacePtr;
    return p ? *p : newSpace();
}
}  // namespace

MemoryLimits& memoryLimits() { return space().limits; }
std::size_t liveStringBytes() { return space().liveStringBytes; }

const Value& Value::emptyValue()
{
    static const Value empty;
    return empty;
}

// What a write through a left-out argument lands in: reset to Empty each
// time it is handed out, so nothing ever reads what was written.
Value& Value::scratchValue()
{
    thread_local Value scratch;
    scratch = Value();
    return scratch;
}

Value Value::string(std::string_view text)
{
    if (text.empty()) {
        Value v;
        v.type_ = Type::String;
        v.s_ = nullptr;
        return v;
    }
    return string(StringRep::make(text));
}

Value Value::string(StringRep* rep)
{
    Value v;
    v.type_ = Type::String;
    v.s_ = rep;
    return v;
}

Value Value::object(Object* o)
{
    Value v;
    v.type_ = Type::Object;
    v.o_ = o;
    if (o)
        o->addRef();
    return v;
}

Value Value::array(ArrayRep* a)
{
    Value v;
    v.type_ = Type::Array;
    v.a_ = a;
    return v;
}

std::string_view Value::asStringView() const
{
    return s_ ? s_->view() : std::string_view();
}

void Value::retain() const
{
    switch (type_) {
    case Type::String:
        if (s_)
            ++s_->refs;
        break;
    case Type::Array:
        ++a_->refs;
        break;
    case Type::Object:
        if (o_)
            o_->addRef();
        break;
    default:
        break;
    }
}

void Value::release()
{
    switch (type_) {
    case Type::String:
        if (s_ && --s_->refs == 0)
            StringRep::destroy(s_);
        break;
    case Type::Array:
        if (--a_->refs == 0)
            ArrayRep::destroy(a_);
        break;
    case Type::Object:
        if (o_)
            o_->release();
        break;
    default:
        break;
    }
    type_ = Type::Empty;
}

StringRep* StringRep::allocate(std::size_t size)
{
    StringSpace& space = qor::script::space();
    if (size > space.limits.maxStringBytes || size > 0x7fffffffu)
        raise(errc::OutOfStringSpace);
    if (space.liveStringBytes + size > space.limits.maxLiveStringBytes)
        raise(errc::OutOfMemory);
    void* p = size <= kShortMax ? space.shortBlocks.take() : std::malloc(offsetof(StringRep, data) + size + 1);
    if (!p)
        raise(errc::OutOfMemory);
    auto* rep = static_cast<StringRep*>(p);
    rep->refs = 1;
    rep->chars = -1;
    rep->size = std::uint32_t(size);
    rep->data[size] = '\0';
    space.liveStringBytes += size;
    return rep;
}

StringRep* StringRep::make(std::string_view text)
{
    StringRep* rep = allocate(text.size());
    if (!text.empty())
        std::memcpy(rep->data, text.data(), text.size());
    return rep;
}

void StringRep::destroy(StringRep* rep)
{
    StringSpace& space = qor::script::space();
    space.liveStringBytes -= rep->size;
    if (rep->size <= kShortMax)
        space.shortBlocks.give(rep);
    else
        std::free(rep);
}

bool StringRep::rewrite(StringRep* rep, const StringRep* x, const StringRep* y)
{
    std::size_t size = std::size_t(x->size) + y->size;
    if (rep->refs != 1 || rep->size > kShortMax || size > kShortMax)
        return false;
    if (size != rep->size) {
        StringSpace& space = qor::script::space();
        std::size_t live = space.liveStringBytes - rep->size + size;
        if (size > space.limits.maxStringBytes || live > space.limits.maxLiveStringBytes)
            return false;
        space.liveStringBytes = live;
    }
    // Read before the bytes move, as either side may be this very string.
    std::int32_t chars = x->chars >= 0 && y->chars >= 0 ? x->chars + y->chars : -1;
    std::uint32_t xSize = x->size;
    // y first: its new place lies past x's bytes, which stay where they are
    // when x is this string.
    std::memmove(rep->data + xSize, y->data, y->size);
    std::memmove(rep->data, x->data, xSize);
    rep->size = std::uint32_t(size);
    rep->data[size] = '\0';
    rep->chars = chars;
    return true;
}

std::int32_t StringRep::charCount()
{
    if (chars < 0) {
        std::uint32_t i = 0;
        while (i < size && static_cast<unsigned char>(data[i]) < 0x80)
            ++i;
        chars = i == size ? std::int32_t(size) : std::int32_t(qor::utf8Length(view()));
    }
    return chars;
}

ArrayRep* ArrayRep::make(std::vector<std::int32_t> upper, bool fixedSize)
{
    std::size_t count = 1;
    for (auto u : upper) {
        if (u < -1)
            raise(errc::SubscriptOutOfRange);
        count *= std::size_t(u) + 1;
        if (count > space().limits.maxArrayItems)
            raise(errc::OutOfMemory);
    }
    auto* a = new ArrayRep;
    a->fixedSize = fixedSize;
    a->upper = std::move(upper);
    a->items.resize(a->upper.empty() ? 0 : count);
    return a;
}

void ArrayRep::destroy(ArrayRep* a)
{
    delete a;
}

ArrayRep* ArrayRep::clone() const
{
    auto* a = new ArrayRep;
    a->fixedSize = fixedSize;
    a->upper = upper;
    a->items = items;
    return a;
}

std::int64_t ArrayRep::offset(const std::int32_t* subscripts, std::size_t count) const
{
    if (count != upper.size())
        return -1;
    std::int64_t off = 0;
    for (std::size_t d = 0; d < count; ++d) {
        if (subscripts[d] < 0 || subscripts[d] > upper[d])
            return -1;
        off = off * (std::int64_t(upper[d]) + 1) + subscripts[d];
    }
    return off;
}

Object::~Object() = default;

}  // namespace qor::script
