#include "script/nodes.h"

#include <cmath>
#include <new>

#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

// Evaluates arguments into values; missing ones stay marked for builtins.
// A few arguments live on the stack, and only the slots used are built:
// a builtin call in a loop costs no more than its arguments.
class ArgValues {
public:
    ArgValues(const ExprList& args, Frame& f)
    {
        const std::size_t n = args.size();
        if (n > kInline) {
            heap_.resize(n);
            for (std::size_t i = 0; i < n; ++i)
                heap_[i] = args[i]->eval(f);
            data_ = heap_.data();
            size_ = n;
            return;
        }
        data_ = inline_.values();
        for (; inline_.built < n; ++inline_.built)
            new (data_ + inline_.built) Value(args[inline_.built]->eval(f));
        size_ = n;
    }
    std::span<Value> span() { return {data_, size_}; }
    void dropMissing()
    {
        for (std::size_t i = 0; i < size_; ++i)
            if (isMissing(data_[i]))
                data_[i] = Value();
    }

private:
    static constexpr std::size_t kInline = 6;
    // Raw slots; the ones built are destroyed with it, also when an
    // argument fails half-way.
    struct Slots {
        alignas(Value) unsigned char raw[kInline * sizeof(Value)];
        std::size_t built = 0;
        Value* values() { return reinterpret_cast<Value*>(raw); }
        ~Slots()
        {
            for (std::size_t i = 0; i < built; ++i)
                values()[i].~Value();
        }
    };
    Slots inline_;
    std::vector<Value> heap_;
    Value* data_;
    std::size_t size_;
};

Value numericForLoop(const Value& v)
{
    Value n = toNumeric(v);
    if (n.isNull())
        raise(errc::InvalidUseOfNull);
    return n;
}

// One turn of a For or For Each body; the loop's way out when it ends
// there (Exit For ends the loop itself, nothing beyond it).
inline std::optional<Flow> turn(const Block& body, int forLine, Frame& f)
{
    Flow fl = body.exec(f);
    if (fl == Flow::ExitFor)
        return Flow::Normal;
    if (fl != Flow::Normal)
        return fl;
    f.rt->tick();
    f.rt->line = forLine;
    return std::nullopt;
}

// counter = counter + step at the end of a turn.
inline void stepCounter(Value& counter, const Value& by)
{
    if (counter.isInteger() && by.isInteger()) {
        std::int64_t n = std::int64_t(counter.asInt()) + by.asInt();
        counter = wholeResult(n, counter.type() == Type::Integer && by.type() == Type::Integer);
    } else {
        counter = add(numericForLoop(counter), by);
    }
}

}  // namespace

namespace {
const Global::Kind kAlwaysThere = Global::Constant;
}  // namespace

Operand::Operand(ExprPtr e) : expr(std::move(e))
{
    if (auto* l = dynamic_cast<LocalGet*>(expr.get())) {
        kind = Kind::Local;
        slot = l->slot;
    } else if (auto* r = dynamic_cast<RefParamGet*>(expr.get())) {
        kind = Kind::RefParam;
        slot = r->slot;
    } else if (auto* k = dynamic_cast<Literal*>(expr.get())) {
        kind = Kind::Fixed;
        fixed = &k->value;
        fixedKind = &kAlwaysThere;
    } else if (auto* g = dynamic_cast<GlobalGet*>(expr.get())) {
        kind = Kind::Fixed;
        fixed = &g->global->value;
        fixedKind = &g->global->kind;
    }
}

Value& VarRef::storage(Frame& f) const
{
    switch (kind) {
    case Local: return f.locals[slot];
    case RefParam: return f.locals[slot].deref();
    case Global:
        break;
    }
    if (global->kind == Global::Undefined) {
        if (f.rt->optionExplicit)
            raise(errc::UndefinedVariable, global->name);
        global->kind = Global::Variable;
    }
    if (global->kind != Global::Variable)
        raise(errc::IllegalAssignment, global->name);
    return global->value;
}

Value VarRef::get(Frame& f) const
{
    switch (kind) {
    case Local: return f.locals[slot];
    case RefParam: return f.locals[slot].deref();
    case Global:
        break;
    }
    if (global->kind == Global::Variable || global->kind == Global::Constant)
        return global->value;
    return f.rt->readGlobal(*global, f);
}

void VarRef::set(Frame& f, Value v) const
{
    if (kind == Global) {
        f.rt->writeGlobal(*global, std::move(v), false);
        return;
    }
    storage(f) = Runtime::letValue(std::move(v));
}

Value* GlobalGet::reference(Frame& f) const
{
    if (global->kind == Global::Variable)
        return &global->value;
    if (global->kind == Global::Undefined && f.rt->exposed.empty() && !f.rt->optionExplicit) {
        global->kind = Global::Variable;
        return &global->value;
    }
    return nullptr;
}

namespace {
using OperandKind = Operand::Kind;

// Operand::peek for an operand whose kind is known when the code is built.
template <OperandKind Kind>
inline const Value* peekAs(const Operand& o, Frame& f)
{
    if constexpr (Kind == OperandKind::Local)
        return &f.locals[o.slot];
    else
        return *o.fixedKind >= Global::Variable ? o.fixed : nullptr;
}

template <bool Subtract>
bool sumAny(const Expr& e, Frame& f, Value& out)
{
    return static_cast<const AddSubExpr<Subtract>&>(e).into(f, out);
}

// Where an operand of known kind lies: a local's slot, or a literal's or
// module variable's value with the kind that says whether it is there.
struct Place {
    int slot;
    const Value* fixed;
    const Global::Kind* kind;
    explicit Place(const Operand& o) : slot(o.slot), fixed(o.fixed), kind(o.fixedKind) {}
    template <OperandKind Kind>
    const Value* peek(Frame& f) const
    {
        if constexpr (Kind == OperandKind::Local)
            return &f.locals[slot];
        else
            return *kind >= Global::Variable ? fixed : nullptr;
    }
};

// x = a + b (or a - b) as one statement when both operands are locals,
// literals or module variables: the sum is computed here, into x, and
// anything but two numbers goes the general assignment's way.
template <bool Subtract, OperandKind L, OperandKind R>
struct SumToLocal final : Stmt {
    AssignLocal general;
    Place left, right;
    SumToLocal(const AddSubExpr<Subtract>& sum, int slot, ExprPtr value)
        : general(slot, std::move(value), false), left(sum.left), right(sum.right)
    {
    }
    Flow exec(Frame& f) const override
    {
        const Value* a = left.peek<L>(f);
        const Value* b = right.peek<R>(f);
        if (a && b && AddSubExpr<Subtract>::combineInto(*a, *b, f.locals[general.slot]))
            return Flow::Normal;
        return general.assign(f);
    }
};

template <bool Subtract, OperandKind L, OperandKind R>
struct SumToGlobal final : Stmt {
    AssignGlobal general;
    Place left, right;
    SumToGlobal(const AddSubExpr<Subtract>& sum, Global* global, ExprPtr value)
        : general(global, std::move(value), false), left(sum.left), right(sum.right)
    {
    }
    Flow exec(Frame& f) const override
    {
        Global& g = *general.global;
        if (g.kind == Global::Variable) {
            const Value* a = left.peek<L>(f);
            const Value* b = right.peek<R>(f);
            if (a && b && AddSubExpr<Subtract>::combineInto(*a, *b, g.value))
                return Flow::Normal;
        }
        return general.assign(f);
    }
};

template <template <bool, OperandKind, OperandKind> class Node, bool Subtract, class Target>
StmtPtr sumStatement(const AddSubExpr<Subtract>& sum, Target target, ExprPtr& value)
{
    constexpr OperandKind Local = OperandKind::Local, Fixed = OperandKind::Fixed;
    const OperandKind l = sum.left.kind, r = sum.right.kind;
    if (l == Local && r == Local)
        return std::make_unique<Node<Subtract, Local, Local>>(sum, target, std::move(value));
    if (l == Local && r == Fixed)
        return std::make_unique<Node<Subtract, Local, Fixed>>(sum, target, std::move(value));
    if (l == Fixed && r == Local)
        return std::make_unique<Node<Subtract, Fixed, Local>>(sum, target, std::move(value));
    if (l == Fixed && r == Fixed)
        return std::make_unique<Node<Subtract, Fixed, Fixed>>(sum, target, std::move(value));
    return nullptr;
}

template <template <bool, OperandKind, OperandKind> class Node, class Target>
StmtPtr sumStatement(Target target, ExprPtr& value)
{
    if (auto* a = dynamic_cast<const AddExpr*>(value.get()))
        return sumStatement<Node>(*a, target, value);
    if (auto* s = dynamic_cast<const SubExpr*>(value.get()))
        return sumStatement<Node>(*s, target, value);
    return nullptr;
}

template <Compare Op, OperandKind L, OperandKind R>
bool testOf(const CompareExpr& c, Frame& f)
{
    const Value* pa = peekAs<L>(c.left, f);
    const Value* pb = peekAs<R>(c.right, f);
    if (pa && pb) {
        if (pa->isInteger() && pb->isInteger())
            return CompareExpr::compareNumbers(Op, pa->asInt(), pb->asInt());
        double x, y;
        if (pa->type() == Type::Double && pb->type() == Type::Double)
            return CompareExpr::compareNumbers(Op, pa->asDouble(), pb->asDouble());
        if (asPlainNumber(*pa, x) && asPlainNumber(*pb, y))
            return CompareExpr::compareNumbers(Op, x, y);
    }
    return c.testAny(f);
}

bool testPeek(const CompareExpr& c, Frame& f)
{
    if (const Value* pa = c.left.peek(f)) {
        if (const Value* pb = c.right.peek(f)) {
            if (pa->isInteger() && pb->isInteger())
                return CompareExpr::intCompare(c.op, pa->asInt(), pb->asInt());
            double x, y;
            if (asPlainNumber(*pa, x) && asPlainNumber(*pb, y))
                return CompareExpr::compareNumbers(c.op, x, y);
        }
    }
    return c.testAny(f);
}

template <Compare Op>
CompareExpr::TestFn testFor(OperandKind l, OperandKind r)
{
    constexpr OperandKind Local = OperandKind::Local, Fixed = OperandKind::Fixed;
    if (l == Local && r == Local)
        return testOf<Op, Local, Local>;
    if (l == Local && r == Fixed)
        return testOf<Op, Local, Fixed>;
    if (l == Fixed && r == Local)
        return testOf<Op, Fixed, Local>;
    if (l == Fixed && r == Fixed)
        return testOf<Op, Fixed, Fixed>;
    return testPeek;
}
}  // namespace

// If a < b Then ... with both sides locals, literals or module variables:
// two numbers are compared here, without calling the condition; anything
// else (strings, dates, On Error Resume Next) is the general If's.
template <Compare Op, OperandKind L, OperandKind R>
struct IfCompare final : Stmt {
    IfThenStmt general;
    Place left, right;
    IfCompare(const CompareExpr& c, ExprPtr condition, std::unique_ptr<Block> then, std::unique_ptr<Block> otherwise)
        : general(std::move(condition), std::move(then), std::move(otherwise)), left(c.left), right(c.right)
    {
    }
    Flow exec(Frame& f) const override
    {
        if (f.resumeNext)
            return general.exec(f);
        const Value* a = left.peek<L>(f);
        const Value* b = right.peek<R>(f);
        bool yes;
        if (a && b && a->isInteger() && b->isInteger())
            yes = CompareExpr::compareNumbers(Op, a->asInt(), b->asInt());
        else if (a && b && a->type() == Type::Double && b->type() == Type::Double)
            yes = CompareExpr::compareNumbers(Op, a->asDouble(), b->asDouble());
        else
            yes = general.comparison->test(f);
        if (yes) {
            if (const Stmt* single = general.single) {
                f.rt->line = single->line;
                return single->exec(f);
            }
            return general.then->exec(f);
        }
        return general.otherwise ? general.otherwise->exec(f) : Flow::Normal;
    }
};

template <Compare Op>
StmtPtr ifCompare(const CompareExpr& c, ExprPtr& condition, std::unique_ptr<Block>& then,
                  std::unique_ptr<Block>& otherwise)
{
    constexpr OperandKind Local = OperandKind::Local, Fixed = OperandKind::Fixed;
    const OperandKind l = c.left.kind, r = c.right.kind;
    if (l == Local && r == Local)
        return std::make_unique<IfCompare<Op, Local, Local>>(c, std::move(condition), std::move(then), std::move(otherwise));
    if (l == Local && r == Fixed)
        return std::make_unique<IfCompare<Op, Local, Fixed>>(c, std::move(condition), std::move(then), std::move(otherwise));
    if (l == Fixed && r == Local)
        return std::make_unique<IfCompare<Op, Fixed, Local>>(c, std::move(condition), std::move(then), std::move(otherwise));
    if (l == Fixed && r == Fixed)
        return std::make_unique<IfCompare<Op, Fixed, Fixed>>(c, std::move(condition), std::move(then), std::move(otherwise));
    return nullptr;
}

SumInto sumInto(const Expr* value)
{
    if (dynamic_cast<const AddExpr*>(value))
        return sumAny<false>;
    if (dynamic_cast<const SubExpr*>(value))
        return sumAny<true>;
    return nullptr;
}

StmtPtr assignLocal(int slot, ExprPtr value, bool set)
{
    if (!set) {
        if (StmtPtr s = sumStatement<SumToLocal>(slot, value))
            return s;
    }
    return std::make_unique<AssignLocal>(slot, std::move(value), set);
}

StmtPtr ifThen(ExprPtr condition, std::unique_ptr<Block> then, std::unique_ptr<Block> otherwise)
{
    StmtPtr s;
    if (auto* c = dynamic_cast<const CompareExpr*>(condition.get())) {
        switch (c->op) {
        case Compare::Eq: s = ifCompare<Compare::Eq>(*c, condition, then, otherwise); break;
        case Compare::Ne: s = ifCompare<Compare::Ne>(*c, condition, then, otherwise); break;
        case Compare::Lt: s = ifCompare<Compare::Lt>(*c, condition, then, otherwise); break;
        case Compare::Le: s = ifCompare<Compare::Le>(*c, condition, then, otherwise); break;
        case Compare::Gt: s = ifCompare<Compare::Gt>(*c, condition, then, otherwise); break;
        case Compare::Ge: s = ifCompare<Compare::Ge>(*c, condition, then, otherwise); break;
        }
    }
    if (s)
        return s;
    return std::make_unique<IfThenStmt>(std::move(condition), std::move(then), std::move(otherwise));
}

StmtPtr assignGlobal(Global* global, ExprPtr value, bool set)
{
    if (!set) {
        if (StmtPtr s = sumStatement<SumToGlobal>(global, value))
            return s;
    }
    return std::make_unique<AssignGlobal>(global, std::move(value), set);
}

CompareExpr::TestFn CompareExpr::chooseTest(Compare op, OperandKind l, OperandKind r)
{
    switch (op) {
    case Compare::Eq: return testFor<Compare::Eq>(l, r);
    case Compare::Ne: return testFor<Compare::Ne>(l, r);
    case Compare::Lt: return testFor<Compare::Lt>(l, r);
    case Compare::Le: return testFor<Compare::Le>(l, r);
    case Compare::Gt: return testFor<Compare::Gt>(l, r);
    case Compare::Ge: return testFor<Compare::Ge>(l, r);
    }
    return testPeek;
}

bool CompareExpr::testAny(Frame& f) const
{
    QOR_OPERANDS(f);
    if (a.isInteger() && b.isInteger())
        return intCompare(op, a.asInt(), b.asInt());
    // Two numbers, one a Double: compared as numbers, as compare would.
    double x, y;
    if (asPlainNumber(a, x) && asPlainNumber(b, y))
        return compareNumbers(op, x, y);
    Value r = compare(op, a, b, literals);
    return r.type() == Type::Boolean && r.asBool();
}

Value UnaryExpr::eval(Frame& f) const
{
    Value v = operand->eval(f);
    switch (op) {
    case UnOp::Neg: return negate(v);
    case UnOp::Not: return logicalNot(v);
    case UnOp::Plus: break;
    }
    if (v.isObject())
        return primitive(v);
    return v;
}

BinaryExpr::BinaryExpr(BinOp o, ExprPtr a, ExprPtr b) : op(o), left(std::move(a)), right(std::move(b))
{
    literals = (left->isLiteral() ? LeftLiteral : 0) | (right->isLiteral() ? RightLiteral : 0);
}

Value BinaryExpr::eval(Frame& f) const
{
    Value a = left->eval(f);
    Value b = right->eval(f);
    switch (op) {
    case BinOp::Pow: return power(a, b);
    case BinOp::Mul: return multiply(a, b);
    case BinOp::Div: return divide(a, b);
    case BinOp::IntDiv: return intDivide(a, b);
    case BinOp::Mod: return modulo(a, b);
    case BinOp::Add: return add(a, b);
    case BinOp::Sub: return subtract(a, b);
    case BinOp::Concat: return concat(a, b);
    case BinOp::Eq: return compare(Compare::Eq, a, b, literals);
    case BinOp::Ne: return compare(Compare::Ne, a, b, literals);
    case BinOp::Lt: return compare(Compare::Lt, a, b, literals);
    case BinOp::Le: return compare(Compare::Le, a, b, literals);
    case BinOp::Gt: return compare(Compare::Gt, a, b, literals);
    case BinOp::Ge: return compare(Compare::Ge, a, b, literals);
    case BinOp::Is: return identical(a, b);
    case BinOp::And: return logicalAnd(a, b);
    case BinOp::Or: return logicalOr(a, b);
    case BinOp::Xor: return logicalXor(a, b);
    case BinOp::Eqv: return logicalEqv(a, b);
    case BinOp::Imp: return logicalImp(a, b);
    }
    return Value();
}

Value BuiltinCall::eval(Frame& f) const
{
    ArgValues values(args, f);
    std::size_t i = 0;
    for (auto& v : values.span()) {
        if (v.isRef()) {
            // A required argument cannot be left out: Mid(s, , 2).
            if (script::isMissing(v) && i < std::size_t(minArgs))
                raise(errc::InvalidCall);
            if (!script::isMissing(v))
                v = Value(v.deref());
        }
        ++i;
    }
    return fn(*f.rt, values.span());
}

Value IndexExpr::eval(Frame& f) const
{
    ArgValues values(args, f);
    values.dropMissing();
    if (Value* ref = target->reference(f))
        return f.rt->index(*ref, values.span(), name);
    Value t = target->eval(f);
    return f.rt->index(t, values.span(), name);
}

Value MemberExpr::eval(Frame& f) const
{
    Value o = object->eval(f);
    ArgValues values(args, f);
    return f.rt->getMember(o, name, values.span(), asStatement, objectName);
}

namespace {

// On Error Resume Next: an error that is not fatal goes to Err, and the
// script goes on as if the failed step had given `resumed`.
template <class R, class F>
R resumeOnError(Frame& f, R resumed, F&& step)
{
    try {
        return step();
    } catch (const ScriptError& e) {
        if (e.fatal)
            throw;
        f.rt->recordError(e);
        return resumed;
    }
}

}  // namespace

bool testResuming(const Expr& condition, Frame& f)
{
    return resumeOnError(f, true, [&] { return condition.test(f); });
}

Flow Block::guarded(const Stmt& s, Frame& f)
{
    return resumeOnError(f, Flow::Normal, [&] { return s.exec(f); });
}

Flow AssignLocal::assign(Frame& f) const
{
    if (join && join->joinInto(f, f.locals[slot]))
        return Flow::Normal;
    Value v = value->eval(f);
    if (v.type() >= Type::Object)
        v = isSet ? Runtime::setValue(std::move(v)) : Runtime::letValue(std::move(v));
    else if (isSet)
        raise(errc::ObjectRequired);
    f.locals[slot] = std::move(v);
    return Flow::Normal;
}

Flow AssignGlobal::assign(Frame& f) const
{
    Global& g = *global;
    if (join && g.kind == Global::Variable && join->joinInto(f, g.value))
        return Flow::Normal;
    Value v = value->eval(f);
    // Checked after the value: evaluating it may have run a script
    // that changed what the name is.
    if (g.kind == Global::Variable && v.type() < Type::Object && !isSet) {
        g.value = std::move(v);
        return Flow::Normal;
    }
    f.rt->writeGlobal(g, std::move(v), isSet);
    return Flow::Normal;
}

Flow AssignVar::exec(Frame& f) const
{
    Value v = value->eval(f);
    var.storage(f) = isSet ? Runtime::setValue(std::move(v)) : Runtime::letValue(std::move(v));
    return Flow::Normal;
}

Flow AssignIndex::exec(Frame& f) const
{
    ArgValues values(args, f);
    values.dropMissing();
    Value v = value->eval(f);
    v = isSet ? Runtime::setValue(std::move(v)) : Runtime::letValue(std::move(v));
    if (Value* ref = target->reference(f)) {
        f.rt->storeIndexed(*ref, values.span(), v, name);
        return Flow::Normal;
    }
    Value t = target->eval(f);
    if (!t.isObject())
        raise(errc::TypeMismatch, name);
    f.rt->storeIndexed(t, values.span(), v, name);
    return Flow::Normal;
}

Flow AssignMember::exec(Frame& f) const
{
    Value o = object->eval(f);
    ArgValues values(args, f);
    values.dropMissing();
    Value v = value->eval(f);
    if (isSet)
        v = Runtime::setValue(std::move(v));
    else if (v.isRef())
        v = Runtime::letValue(std::move(v));
    // An object assigned without Set goes to the host as it is: a property
    // such as Picture = LoadPicture(...) takes the picture itself.
    f.rt->setMember(o, name, values.span(), v, objectName);
    return Flow::Normal;
}

Flow ForStmt::exec(Frame& f) const
{
    Value from = numericForLoop(start->eval(f));
    f.locals[limitSlot] = numericForLoop(limit->eval(f));
    f.locals[stepSlot] = step ? numericForLoop(step->eval(f)) : Value::integer(1);
    const Value& to = f.locals[limitSlot];
    const Value& by = f.locals[stepSlot];
    bool up = by.isInteger() ? by.asInt() >= 0 : by.asDouble() >= 0;
    if (var.kind == VarRef::Global)
        f.rt->writeGlobal(*var.global, std::move(from), false);
    else
        var.storage(f) = std::move(from);
    if (to.isInteger() && by.isInteger()) {
        std::optional<Flow> done;
        if (var.kind == VarRef::Local)
            done = up ? runCounter<true>(f, f.locals[var.slot], nullptr) : runCounter<false>(f, f.locals[var.slot], nullptr);
        else if (var.kind == VarRef::Global && var.global->kind == Global::Variable)
            done = up ? runCounter<true>(f, var.global->value, var.global)
                      : runCounter<false>(f, var.global->value, var.global);
        if (done)
            return *done;
    }
    return runGeneral(f, up);
}

// A local or module variable as counter, whole-number bounds: the common
// loop, kept tight. Nothing when the body stored something else in the
// counter: the general loop finishes the work. A module counter is
// watched: a script run from the body may make its name something else
// than a variable, and the general loop's step then reports it.
template <bool Up>
std::optional<Flow> ForStmt::runCounter(Frame& f, Value& counter, const struct Global* global) const
{
    if (!counter.isInteger())
        return std::nullopt;
    const Value& by = f.locals[stepSlot];
    const std::int32_t to = f.locals[limitSlot].asInt(), step = by.asInt();
    const bool integerStep = by.type() == Type::Integer;
    const Block& statements = *body;
    const int forLine = line;
    for (;;) {
        const std::int32_t c = counter.asInt();
        if (Up ? c > to : c < to)
            return Flow::Normal;
        if (std::optional<Flow> done = turn(statements, forLine, f))
            return done;
        if (global && global->kind != Global::Variable) {
            stepCounter(var.storage(f), by);
            return std::nullopt;
        }
        if (!counter.isInteger()) {
            stepCounter(counter, by);
            return std::nullopt;
        }
        // Past 32 bits the counter is a Double, which the general loop
        // compares with the limit.
        if (!storeWhole(counter, std::int64_t(counter.asInt()) + step, counter.type() == Type::Integer && integerStep)) {
            counter.setDouble(double(std::int64_t(counter.asInt()) + step));
            return std::nullopt;
        }
    }
}

// Any counter, any bounds. The counter is the variable itself, read again
// each turn: the body may change it.
Flow ForStmt::runGeneral(Frame& f, bool up) const
{
    const Value& to = f.locals[limitSlot];
    const Value& by = f.locals[stepSlot];
    for (;;) {
        Value& counter = var.storage(f);
        int c;
        if (counter.isInteger() && to.isInteger())
            c = counter.asInt() < to.asInt() ? -1 : counter.asInt() > to.asInt();
        else
            c = compareValues(numericForLoop(counter), to, NoLiteral, false);
        if (up ? c > 0 : c < 0)
            return Flow::Normal;
        if (std::optional<Flow> done = turn(*body, line, f))
            return *done;
        stepCounter(var.storage(f), by);
    }
}

Flow ForEachStmt::exec(Frame& f) const
{
    Value c = collection->eval(f);
    Value items;
    if (c.isArray()) {
        items = c;
    } else if (c.isObject()) {
        if (!c.asObject())
            raise(errc::ObjectNotSet);
        HostResult r = static_cast<HostObject*>(c.asObject())->elements();
        if (r.failed()) {
            ScriptError e = *r.error;
            if (e.number == errc::NoSuchMember)
                e = makeScriptError(451);
            throw e;
        }
        items = std::move(r.value);
        if (!items.isArray())
            raise(451);
    } else {
        raise(errc::TypeMismatch);
    }
    for (const Value& item : items.asArray()->items) {
        if (var.kind == VarRef::Global)
            f.rt->writeGlobal(*var.global, item, item.isObject());
        else
            var.storage(f) = item;
        if (std::optional<Flow> done = turn(*body, line, f))
            return *done;
    }
    return Flow::Normal;
}

Flow DoStmt::exec(Frame& f) const
{
    auto test = [&]() {
        f.rt->line = conditionLine;
        bool t = condition->test(f);
        return (kind == DoKind::PreWhile || kind == DoKind::PostWhile) ? t : !t;
    };
    for (;;) {
        if ((kind == DoKind::PreWhile || kind == DoKind::PreUntil) && !test())
            break;
        Flow fl = body->exec(f);
        if (fl == Flow::ExitDo && !whileWend)
            break;
        if (fl != Flow::Normal)
            return fl;
        f.rt->tick();
        if ((kind == DoKind::PostWhile || kind == DoKind::PostUntil) && !test())
            break;
    }
    return Flow::Normal;
}

Flow SelectStmt::exec(Frame& f) const
{
    Value s = subject->eval(f);
    for (const Case& c : cases) {
        bool hit = c.items.empty();
        for (const Item& it : c.items) {
            f.rt->line = c.line;
            Value a = it.a->eval(f);
            int cmp;
            switch (it.kind) {
            case 0:
                hit = compareValues(s, a, it.literal ? RightLiteral : NoLiteral, false) == 0;
                break;
            case 1: {
                Value b = it.b->eval(f);
                cmp = compareValues(s, a, NoLiteral, false);
                int cmp2 = compareValues(s, b, NoLiteral, false);
                hit = cmp != 2 && cmp2 != 2 && cmp >= 0 && cmp2 <= 0;
                break;
            }
            default: {
                Value r = compare(it.op, s, a, it.literal ? RightLiteral : NoLiteral);
                hit = r.type() == Type::Boolean && r.asBool();
                break;
            }
            }
            if (hit)
                break;
        }
        if (hit)
            return c.body->exec(f);
    }
    return Flow::Normal;
}

Flow ExitStmt::exec(Frame& f) const
{
    if (flow == Flow::ExitProc)
        f.rt->err().clear();
    return flow;
}

Flow OnErrorStmt::exec(Frame& f) const
{
    f.resumeNext = resumeNext;
    f.rt->err().clear();
    return Flow::Normal;
}

Flow DimArrayStmt::exec(Frame& f) const
{
    Value& v = var.storage(f);
    if (v.isArray())
        return Flow::Normal;
    v = Value::array(ArrayRep::make(upper, !upper.empty()));
    return Flow::Normal;
}

Flow ReDimStmt::exec(Frame& f) const
{
    std::vector<std::int32_t> upper;
    for (const auto& b : bounds)
        upper.push_back(toLong(b->eval(f)));
    Value& v = var.storage(f);
    if (v.isArray() && v.asArray()->fixedSize)
        raise(errc::FixedArray, name);
    if (preserve && v.isArray() && !v.asArray()->upper.empty()) {
        const ArrayRep* old = v.asArray();
        if (old->upper.size() != upper.size())
            raise(errc::SubscriptOutOfRange, name);
        for (std::size_t d = 0; d + 1 < upper.size(); ++d)
            if (old->upper[d] != upper[d])
                raise(errc::SubscriptOutOfRange, name);
        ArrayRep* a = ArrayRep::make(upper, false);
        // Only the last dimension changes: copy row by row.
        std::size_t oldLast = std::size_t(old->upper.back() + 1), newLast = std::size_t(upper.back() + 1);
        std::size_t rows = newLast ? a->items.size() / newLast : 0;
        std::size_t keep = std::min(oldLast, newLast);
        for (std::size_t r = 0; r < rows; ++r)
            for (std::size_t k = 0; k < keep; ++k)
                a->items[r * newLast + k] = old->items[r * oldLast + k];
        v = Value::array(a);
        return Flow::Normal;
    }
    v = Value::array(ArrayRep::make(std::move(upper), false));
    return Flow::Normal;
}

Flow EraseStmt::exec(Frame& f) const
{
    Value& v = var.storage(f);
    if (!v.isArray())
        raise(errc::TypeMismatch, name);
    if (v.asArray()->fixedSize) {
        v = Value::array(ArrayRep::make(v.asArray()->upper, true));
    } else {
        v = Value::array(ArrayRep::make({}, false));
    }
    return Flow::Normal;
}

Flow WithStmt::exec(Frame& f) const
{
    f.locals[slot] = object->eval(f);
    Flow fl = body->exec(f);
    f.locals[slot] = Value();
    return fl;
}

}  // namespace qor::script
