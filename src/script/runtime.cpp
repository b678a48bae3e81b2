#include "script/runtime.h"

#include <algorithm>
#include <cstdlib>
#include <new>

#include "script/operations.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {
constexpr std::size_t kStackValues = 1 << 16;
constexpr std::int64_t kTickChunk = 1 << 12;

HostObject* hostObject(const Value& v) { return static_cast<HostObject*>(v.asObject()); }

// obj.name(args): a property or method that takes the arguments, or else a
// property without arguments (a control array, a collection) indexed by them.
HostResult readMember(Runtime& rt, HostObject* h, const std::string& name, std::span<Value> args, bool asStatement)
{
    HostResult r = asStatement ? h->callMethod(name, args) : h->getProperty(name, args);
    if (!r.failed() || args.empty() ||
        (r.error->number != errc::NoSuchMember && r.error->number != errc::WrongArguments))
        return r;
    HostResult whole = h->getProperty(name, {});
    if (whole.failed() || !(whole.value.isObject() || whole.value.isArray()))
        return r;
    return HostResult::ok(rt.index(whole.value, args, name));
}

// The host object of obj.member, or the language's error when obj holds none.
HostObject* memberTarget(const Value& object, const std::string& objectName)
{
    const Value& o = object.deref();
    if (!o.isObject())
        raise(errc::ObjectRequired, objectName);
    if (!o.asObject())
        raise(errc::ObjectNotSet, objectName);
    return hostObject(o);
}

[[noreturn]] void raiseHostError(ScriptError e, std::string_view member)
{
    if (e.number == errc::NoSuchMember && e.description == errorDescription(errc::NoSuchMember) && !member.empty())
        e = makeScriptError(errc::NoSuchMember, member);
    e.line = 0;
    throw e;
}
}  // namespace

namespace {
void freeStack(Value* p) { std::free(p); }
}  // namespace

Runtime::Runtime(ScriptHost* host)
    : host_(host), err_(new ErrObject),
      stack_(static_cast<Value*>(std::malloc(kStackValues * sizeof(Value))), freeStack)
{
    if (!stack_)
        throw std::bad_alloc();
    sp_ = stack_.get();
    stackEnd_ = sp_ + kStackValues;
    Global& e = globalSlot("Err");
    e.kind = Global::HostObj;
    e.value = Value::object(err_.get());
}

Runtime::~Runtime() = default;

Global* Runtime::findGlobal(const std::string& lowerName)
{
    auto it = globalIndex_.find(lowerName);
    return it == globalIndex_.end() ? nullptr : it->second;
}

Global& Runtime::globalSlot(const std::string& name)
{
    std::string key = lowerAscii(name);
    if (Global* g = findGlobal(key))
        return *g;
    globals_.emplace_back();
    Global& g = globals_.back();
    g.name = name;
    globalIndex_.emplace(std::move(key), &g);
    return g;
}

Value Runtime::readGlobal(Global& g, Frame& f)
{
    switch (g.kind) {
    case Global::Variable:
    case Global::Constant:
    case Global::HostObj:
        return g.value;
    case Global::Proc: {
        ExprList none;
        auto proc = g.proc;  // keeps it alive if the call replaces it
        return callProcedure(*proc, none, f);
    }
    case Global::Undefined:
        break;
    }
    for (auto& o : exposed) {
        HostResult r = o->getProperty(g.name, {});
        if (!r.failed())
            return std::move(r.value);
        if (r.error->number != errc::NoSuchMember)
            raiseHostError(*r.error, g.name);
    }
    if (optionExplicit)
        raise(errc::UndefinedVariable, g.name);
    return Value();
}

void Runtime::writeGlobal(Global& g, Value v, bool isSet)
{
    switch (g.kind) {
    case Global::Variable:
        g.value = isSet ? setValue(std::move(v)) : letValue(std::move(v));
        return;
    case Global::Constant:
    case Global::Proc:
    case Global::HostObj:
        raise(errc::IllegalAssignment, g.name);
    case Global::Undefined:
        break;
    }
    for (auto& o : exposed) {
        HostResult r = o->setProperty(g.name, {}, v);
        if (!r.failed())
            return;
        if (r.error->number != errc::NoSuchMember)
            raiseHostError(*r.error, g.name);
    }
    if (optionExplicit)
        raise(errc::UndefinedVariable, g.name);
    g.value = isSet ? setValue(std::move(v)) : letValue(std::move(v));
    g.kind = Global::Variable;
}

Value Runtime::callGlobal(Global& g, const ExprList& args, Frame& f, bool asStatement)
{
    if (g.kind == Global::Proc) {
        auto proc = g.proc;
        return callProcedure(*proc, args, f);
    }
    std::vector<Value> values;
    values.reserve(args.size());
    for (const auto& a : args) {
        Value v = a->eval(f);
        values.push_back(isMissing(v) ? Value() : std::move(v));
    }
    if (g.kind != Global::Undefined) {
        if (args.empty() && !g.value.isObject())
            return g.value;
        return index(g.value, values, g.name);
    }
    for (auto& o : exposed) {
        HostResult r = readMember(*this, o.get(), g.name, values, asStatement);
        if (!r.failed())
            return std::move(r.value);
        if (r.error->number != errc::NoSuchMember)
            raiseHostError(*r.error, g.name);
    }
    raise(errc::TypeMismatch, g.name);
}

Value* Runtime::pushFrame(int count)
{
    if (count > stackEnd_ - sp_)
        raise(errc::OutOfStack);
    Value* base = sp_;
    for (int i = 0; i < count; ++i)
        new (base + i) Value();
    sp_ += count;
    return base;
}

void Runtime::popFrame(Value* base)
{
    for (Value* p = base; p < sp_; ++p)
        p->~Value();
    sp_ = base;
}

namespace {
class FrameGuard {
public:
    FrameGuard(Runtime& rt, Value* base) : rt_(rt), base_(base) {}
    ~FrameGuard() { rt_.popFrame(base_); }

private:
    Runtime& rt_;
    Value* base_;
};

void checkArgumentCount(const Procedure& p, std::size_t count)
{
    if (count != p.byRef.size())
        raise(errc::WrongArguments, p.name);
}
}  // namespace

// Runs a procedure whose frame holds its arguments; gives its return value.
inline Value Runtime::runBody(const Procedure& p, Value* base)
{
    Frame frame{this, base, false};
    p.body->exec(frame);
    if (p.returnSlot >= 0)
        return std::move(base[p.returnSlot]);
    return Value();
}

Value Runtime::callProcedure(const Procedure& p, const ExprList& args, Frame& caller)
{
    std::size_t paramCount = p.byRef.size();
    checkArgumentCount(p, args.size());
    checkStack();
    tick();
    Value* base = pushFrame(p.localCount);
    FrameGuard guard(*this, base);
    for (std::size_t i = 0; i < paramCount; ++i) {
        Value* target = p.byRef[i] ? args[i]->reference(caller) : nullptr;
        if (target) {
            base[i] = Value::ref(&target->deref());
        } else {
            Value v = args[i]->eval(caller);
            base[i] = isMissing(v) ? Value() : std::move(v);
        }
    }
    int savedLine = line;
    Value result = runBody(p, base);
    line = savedLine;
    return result;
}

Value Runtime::callProcedureWithValues(const Procedure& p, std::span<Value> args)
{
    checkArgumentCount(p, args.size());
    checkStack();
    Value* base = pushFrame(p.localCount);
    FrameGuard guard(*this, base);
    for (std::size_t i = 0; i < args.size(); ++i)
        base[i] = args[i];
    return runBody(p, base);
}

Value Runtime::getMember(const Value& object, const std::string& name, std::span<Value> args, bool asStatement,
                         const std::string& objectName)
{
    HostObject* h = memberTarget(object, objectName);
    for (auto& a : args)
        if (isMissing(a))
            a = Value();
    HostResult r = readMember(*this, h, name, args, asStatement);
    if (r.failed())
        raiseHostError(*r.error, name);
    return std::move(r.value);
}

void Runtime::setMember(const Value& object, const std::string& name, std::span<Value> args, const Value& v,
                        const std::string& objectName)
{
    HostResult r = memberTarget(object, objectName)->setProperty(name, args, v);
    if (r.failed())
        raiseHostError(*r.error, name);
}

// The place of element args in a, or error 9. Arrays have at most 60
// dimensions (the parser refuses more), so the subscripts fit on the stack.
std::size_t Runtime::elementOffset(const ArrayRep& a, std::span<Value> args, const std::string& name)
{
    std::int32_t subs[64];
    if (args.size() != a.upper.size() || args.size() > std::size(subs))
        raise(errc::SubscriptOutOfRange, name);
    for (std::size_t i = 0; i < args.size(); ++i)
        subs[i] = toLong(args[i]);
    const std::int64_t off = a.offset(subs, args.size());
    if (off < 0)
        raise(errc::SubscriptOutOfRange, name);
    return std::size_t(off);
}

Value Runtime::index(const Value& target0, std::span<Value> args, const std::string& name)
{
    const Value& target = target0.deref();
    if (target.isArray()) {
        const ArrayRep* a = target.asArray();
        return a->items[elementOffset(*a, args, name)];
    }
    if (target.isObject()) {
        if (!target.asObject())
            raise(errc::ObjectNotSet, name);
        HostResult r = hostObject(target)->item(args);
        if (r.failed())
            raiseHostError(*r.error, name);
        return std::move(r.value);
    }
    raise(errc::TypeMismatch, name);
}

void Runtime::storeIndexed(Value& variable0, std::span<Value> args, const Value& v, const std::string& name)
{
    Value& variable = variable0.deref();
    if (variable.isObject()) {
        if (!variable.asObject())
            raise(errc::ObjectNotSet, name);
        HostResult r = hostObject(variable)->setItem(args, v);
        if (r.failed())
            raiseHostError(*r.error, name);
        return;
    }
    if (!variable.isArray())
        raise(errc::TypeMismatch, name);
    ArrayRep* a = variable.asArray();
    const std::size_t off = elementOffset(*a, args, name);
    if (a->refs > 1) {
        ArrayRep* copy = a->clone();
        variable = Value::array(copy);
        a = copy;
    }
    a->items[off] = v;
}

Value Runtime::letValue(Value v)
{
    if (v.isObject()) {
        if (!v.asObject())
            raise(errc::ObjectNotSet);
        return primitive(v);
    }
    if (v.isRef())
        return isMissing(v) ? Value() : Value(v.deref());
    return v;
}

Value Runtime::setValue(Value v)
{
    if (!v.isObject())
        raise(errc::ObjectRequired);
    return v;
}

void Runtime::recordError(const ScriptError& e)
{
    err_->number = e.number;
    err_->description = e.description;
    err_->source = e.source.empty() ? kRuntimeSource : e.source;
}

void Runtime::setStepBudget(std::uint64_t steps) { budget_ = steps; }

void Runtime::beginRun()
{
    stop_.store(false, std::memory_order_relaxed);
    remaining_ = budget_;
    ticks_ = budget_ ? std::min<std::int64_t>(kTickChunk, std::int64_t(budget_)) : kTickChunk;
    if (budget_)
        remaining_ -= std::uint64_t(ticks_);
}

void Runtime::slowTick()
{
    if (stop_.load(std::memory_order_relaxed)) {
        ScriptError e = makeScriptError(errc::Interrupted);
        e.fatal = true;
        throw e;
    }
    if (budget_ == 0) {
        ticks_ = kTickChunk;
        return;
    }
    if (remaining_ == 0) {
        ScriptError e = makeScriptError(errc::Interrupted);
        e.description = "Script interrompu : trop d'instructions exécutées";
        e.fatal = true;
        throw e;
    }
    ticks_ = std::min<std::int64_t>(kTickChunk, std::int64_t(remaining_));
    remaining_ -= std::uint64_t(ticks_);
}

void Runtime::checkStack()
{
    char probe;
    const char* here = &probe;
    if (stackBase_ && std::size_t(stackBase_ > here ? stackBase_ - here : here - stackBase_) > maxStackBytes)
        raise(errc::OutOfStack);
}

RunScope::RunScope(Runtime& rt) : rt_(rt)
{
    if (rt_.runDepth_++ == 0) {
        char probe;
        rt_.stackBase_ = &probe;
        rt_.beginRun();
    }
}

RunScope::~RunScope()
{
    if (--rt_.runDepth_ == 0)
        rt_.stackBase_ = nullptr;
}

void ErrObject::clear()
{
    number = 0;
    description.clear();
    source.clear();
}

HostResult ErrObject::getProperty(std::string_view name, Args args)
{
    if (!args.empty())
        return HostResult::fail(errc::WrongArguments);
    if (equalsNoCase(name, "Number"))
        return HostResult::ok(Value::longValue(number));
    if (equalsNoCase(name, "Description"))
        return HostResult::ok(Value::string(description));
    if (equalsNoCase(name, "Source"))
        return HostResult::ok(Value::string(source));
    if (equalsNoCase(name, "HelpFile"))
        return HostResult::ok(Value::string(""));
    if (equalsNoCase(name, "HelpContext"))
        return HostResult::ok(Value::longValue(0));
    if (equalsNoCase(name, "Clear") || equalsNoCase(name, "Raise"))
        return callMethod(name, args);
    return noMember();
}

HostResult ErrObject::setProperty(std::string_view name, Args args, const Value& value)
{
    if (!args.empty())
        return HostResult::fail(errc::WrongArguments);
    try {
        if (equalsNoCase(name, "Number"))
            number = toLong(value);
        else if (equalsNoCase(name, "Description"))
            description = toText(value);
        else if (equalsNoCase(name, "Source"))
            source = toText(value);
        else
            return noMember();
    } catch (const ScriptError& e) {
        return HostResult{Value(), e};
    }
    return HostResult::ok();
}

HostResult ErrObject::callMethod(std::string_view name, Args args)
{
    if (equalsNoCase(name, "Clear")) {
        if (!args.empty())
            return HostResult::fail(errc::WrongArguments);
        clear();
        return HostResult::ok();
    }
    if (equalsNoCase(name, "Raise")) {
        if (args.empty() || args.size() > 5)
            return HostResult::fail(errc::WrongArguments);
        try {
            std::int32_t n = toLong(args[0]);
            if (n == 0)  // negative numbers are object errors (vbObjectError + n)
                return HostResult::fail(errc::InvalidCall);
            ScriptError e;
            e.number = n;
            e.source = args.size() > 1 && !args[1].isEmpty() ? toText(args[1]) : kRuntimeSource;
            e.description = args.size() > 2 && !args[2].isEmpty() ? toText(args[2]) : errorDescription(n);
            return HostResult{Value(), e};
        } catch (const ScriptError& e) {
            return HostResult{Value(), e};
        }
    }
    return getProperty(name, args);
}

}  // namespace qor::script
