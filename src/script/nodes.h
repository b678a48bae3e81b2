#pragma once

#include <optional>
#include <utility>
#include <string>
#include <vector>

#include "script/builtins.h"
#include "script/code.h"
#include "script/operations.h"
#include "script/runtime.h"
#include "script/syntax.h"

namespace qor::script {

// The compiled tree the engine runs: every node knows its slot or its
// global, so running a script never looks a name up.

// Where a variable lives, for statements that both read and write it.
struct VarRef {
    enum Kind : std::uint8_t { Local, RefParam, Global } kind = Local;
    int slot = 0;
    struct Global* global = nullptr;

    Value& storage(Frame& f) const;  // creates an undefined global as a variable
    Value get(Frame& f) const;
    void set(Frame& f, Value v) const;
};

struct Literal final : Expr {
    Value value;
    explicit Literal(Value v) : value(std::move(v)) {}
    Value eval(Frame&) const override { return value; }
    bool isLiteral() const override { return true; }
};

struct MissingArg final : Expr {
    Value eval(Frame&) const override { return missingArgument(); }
    bool isMissing() const override { return true; }
};

struct LocalGet final : Expr {
    int slot;
    explicit LocalGet(int s) : slot(s) {}
    Value eval(Frame& f) const override { return f.locals[slot]; }
    Value* reference(Frame& f) const override { return &f.locals[slot]; }
};

struct RefParamGet final : Expr {
    int slot;
    explicit RefParamGet(int s) : slot(s) {}
    Value eval(Frame& f) const override { return f.locals[slot].deref(); }
    Value* reference(Frame& f) const override { return &f.locals[slot].deref(); }
};

struct GlobalGet final : Expr {
    struct Global* global;
    explicit GlobalGet(struct Global* g) : global(g) {}
    Value eval(Frame& f) const override
    {
        if (global->holdsValue())
            return global->value;
        return f.rt->readGlobal(*global, f);
    }
    Value* reference(Frame& f) const override;
};

struct WithGet final : Expr {
    int slot;
    explicit WithGet(int s) : slot(s) {}
    Value eval(Frame& f) const override { return f.locals[slot]; }
};

struct ParenExpr final : Expr {
    ExprPtr inner;
    explicit ParenExpr(ExprPtr e) : inner(std::move(e)) {}
    Value eval(Frame& f) const override { return inner->eval(f); }
};

struct RaiseExpr final : Expr {
    int number;
    std::string name;
    RaiseExpr(int n, std::string nm) : number(n), name(std::move(nm)) {}
    Value eval(Frame&) const override { raise(number, name); }
};

struct UnaryExpr final : Expr {
    UnOp op;
    ExprPtr operand;
    UnaryExpr(UnOp o, ExprPtr e) : op(o), operand(std::move(e)) {}
    Value eval(Frame& f) const override;
};

struct BinaryExpr final : Expr {
    BinOp op;
    std::uint8_t literals = 0;
    ExprPtr left, right;
    BinaryExpr(BinOp o, ExprPtr a, ExprPtr b);
    Value eval(Frame& f) const override;
};

// An operand of the hot operators: a local, a ByRef parameter, a literal or
// a module variable is read in place, without a virtual call or a copy;
// anything else is evaluated.
struct Operand {
    enum class Kind : std::uint8_t { Local, RefParam, Fixed, Other };
    ExprPtr expr;
    Kind kind = Kind::Other;
    int slot = -1;
    // A literal or a module variable: where its value lies, and the kind
    // of name that says whether it is there now (always for a literal).
    const Value* fixed = nullptr;
    const Global::Kind* fixedKind = nullptr;

    explicit Operand(ExprPtr e);
    // The value where it lies when reading it runs no code; null when it
    // must be evaluated (a call, or a global that is a procedure or not
    // yet defined: those may run a script or ask the host).
    const Value* peek(Frame& f) const
    {
        if (kind == Kind::Local)
            return &f.locals[slot];
        if (kind == Kind::Fixed)
            return *fixedKind >= Global::Variable ? fixed : nullptr;
        if (kind == Kind::RefParam)
            return &std::as_const(f.locals[slot]).deref();
        return nullptr;
    }
    const Value& get(Frame& f, Value& tmp) const
    {
        if (const Value* p = peek(f))
            return *p;
        tmp = expr->eval(f);
        return tmp;
    }
};

// Reads both operands left to right; an operand read in place on the left
// is copied first when the right side runs code that may change it.
#define QOR_OPERANDS(f)                                              \
    Value ta, tb;                                                    \
    const Value* pa = &left.get(f, ta);                              \
    const Value* pb = right.peek(f);                                 \
    if (!pb) {                                                       \
        if (pa != &ta) {                                             \
            ta = *pa;                                                \
            pa = &ta;                                                \
        }                                                            \
        tb = right.expr->eval(f);                                    \
        pb = &tb;                                                    \
    }                                                                \
    const Value& a = *pa;                                            \
    const Value& b = *pb

// A number the fast paths can take as a double: Integer, Long or Double
// (a Date, a string or Empty go the general way).
inline bool asPlainNumber(const Value& v, double& d)
{
    if (v.isInteger()) {
        d = v.asInt();
        return true;
    }
    if (v.type() == Type::Double) {
        d = v.asDouble();
        return true;
    }
    return false;
}

// a + b and a - b with the whole-number and double fast paths inline: the
// loops menus run are mostly counters and sums.
template <bool Subtract>
struct AddSubExpr final : Expr {
    Operand left, right;
    AddSubExpr(ExprPtr a, ExprPtr b) : left(std::move(a)), right(std::move(b)) {}
    static std::int64_t combine(const Value& a, const Value& b)
    {
        return Subtract ? std::int64_t(a.asInt()) - b.asInt() : std::int64_t(a.asInt()) + b.asInt();
    }
    static bool bothInteger(const Value& a, const Value& b)
    {
        return a.type() == Type::Integer && b.type() == Type::Integer;
    }
    // A Double with a number gives a Double, as add and subtract would; the
    // callers leave an overflow (an infinite result) to them to report.
    static bool combineDouble(const Value& a, const Value& b, double& d)
    {
        double x, y;
        if (!asPlainNumber(a, x) || !asPlainNumber(b, y))
            return false;
        d = Subtract ? x - y : x + y;
        return true;
    }
    // out = a + b for two numbers; false, with out untouched, when it
    // takes the general way. Inlined into each statement that sums in
    // place (compilers that do not know the hint ignore it).
    [[gnu::always_inline]] static bool combineInto(const Value& a, const Value& b, Value& out)
    {
        double x, y;
        if (a.isInteger()) {
            if (b.isInteger())
                return storeWhole(out, combine(a, b), bothInteger(a, b));
            if (b.type() != Type::Double)
                return false;
            x = a.asInt();
            y = b.asDouble();
        } else if (a.type() == Type::Double) {
            x = a.asDouble();
            if (b.type() == Type::Double)
                y = b.asDouble();
            else if (b.isInteger())
                y = b.asInt();
            else
                return false;
        } else {
            return false;
        }
        const double d = Subtract ? x - y : x + y;
        if (d - d != 0)
            return false;
        out.setDouble(d);
        return true;
    }
    // variable = a + b when both operands are read in place, computed into
    // the variable; false, with out untouched, when it takes the general way.
    bool into(Frame& f, Value& out) const
    {
        const Value* pa = left.peek(f);
        const Value* pb = pa ? right.peek(f) : nullptr;
        return pb && combineInto(*pa, *pb, out);
    }
    Value eval(Frame& f) const override
    {
        QOR_OPERANDS(f);
        // Whole numbers give what add or subtract would, without the detour.
        if (a.isInteger() && b.isInteger())
            return wholeResult(combine(a, b), bothInteger(a, b));
        double d;
        if (combineDouble(a, b, d) && d - d == 0)
            return Value::dbl(d);
        return Subtract ? subtract(a, b) : add(a, b);
    }
};
using AddExpr = AddSubExpr<false>;
using SubExpr = AddSubExpr<true>;

// variable = a + b or a - b computed into the variable without a virtual
// call; null when the value is no sum. False, with the variable untouched,
// when it takes the general way.
using SumInto = bool (*)(const Expr& sum, Frame& f, Value& out);
SumInto sumInto(const Expr* value);

struct CompareExpr final : Expr {
    // The condition's test, chosen like SumInto for the operator and the
    // shape of the operands.
    using TestFn = bool (*)(const CompareExpr&, Frame&);
    Compare op;
    std::uint8_t literals;
    Operand left, right;
    TestFn fast;
    CompareExpr(Compare o, std::uint8_t lit, ExprPtr a, ExprPtr b)
        : op(o), literals(lit), left(std::move(a)), right(std::move(b)), fast(chooseTest(o, left.kind, right.kind))
    {
    }
    static TestFn chooseTest(Compare op, Operand::Kind l, Operand::Kind r);
    static bool intCompare(Compare op, std::int32_t x, std::int32_t y) { return compareNumbers(op, x, y); }
    Value eval(Frame& f) const override
    {
        QOR_OPERANDS(f);
        if (a.isInteger() && b.isInteger())
            return Value::boolean(intCompare(op, a.asInt(), b.asInt()));
        return compare(op, a, b, literals);
    }
    template <class T>
    static bool compareNumbers(Compare op, T x, T y)
    {
        switch (op) {
        case Compare::Eq: return x == y;
        case Compare::Ne: return x != y;
        case Compare::Lt: return x < y;
        case Compare::Le: return x <= y;
        case Compare::Gt: return x > y;
        case Compare::Ge: return x >= y;
        }
        return false;
    }
    // Two numbers read in place are compared by fast; the rest (strings,
    // dates, objects, a side that runs code) in testAny.
    bool test(Frame& f) const override { return fast(*this, f); }
    bool testAny(Frame& f) const;
};

struct ConcatExpr final : Expr {
    Operand left, right;
    ConcatExpr(ExprPtr a, ExprPtr b) : left(std::move(a)), right(std::move(b)) {}
    Value eval(Frame& f) const override
    {
        QOR_OPERANDS(f);
        return concat(a, b);
    }
    // target = left & right written into target's own string when both
    // sides are strings read in place and target alone holds a string
    // with room; false when the general way must run.
    bool joinInto(Frame& f, Value& target) const
    {
        if (!target.isString() || !target.asStringRep())
            return false;
        const Value* a = left.peek(f);
        const Value* b = right.peek(f);
        if (!a || !b || !a->isString() || !b->isString() || !a->asStringRep() || !b->asStringRep())
            return false;
        return StringRep::rewrite(target.asStringRep(), a->asStringRep(), b->asStringRep());
    }
};

struct BuiltinCall final : Expr {
    BuiltinFn fn;
    ExprList args;
    int minArgs;
    BuiltinCall(BuiltinFn f, ExprList a, int required) : fn(f), args(std::move(a)), minArgs(required) {}
    Value eval(Frame& f) const override;
};

struct GlobalCall final : Expr {
    struct Global* global;
    ExprList args;
    bool asStatement;
    GlobalCall(struct Global* g, ExprList a, bool stmt) : global(g), args(std::move(a)), asStatement(stmt) {}
    Value eval(Frame& f) const override
    {
        Global& g = *global;
        if (g.kind == Global::Proc)
            return f.rt->callProcedure(*g.proc, args, f);
        return f.rt->callGlobal(g, args, f, asStatement);
    }
};

struct IndexExpr final : Expr {
    ExprPtr target;
    ExprList args;
    std::string name;
    IndexExpr(ExprPtr t, ExprList a, std::string n) : target(std::move(t)), args(std::move(a)), name(std::move(n)) {}
    Value eval(Frame& f) const override;
};

struct MemberExpr final : Expr {
    ExprPtr object;
    std::string name;
    ExprList args;
    bool asStatement;
    std::string objectName;
    MemberExpr(ExprPtr o, std::string n, ExprList a, bool stmt, std::string on)
        : object(std::move(o)), name(std::move(n)), args(std::move(a)), asStatement(stmt), objectName(std::move(on)) {}
    Value eval(Frame& f) const override;
};

// Statements

// A statement list. The loops and If hold theirs as a Block, so that
// running it is a direct call.
struct Block final : Stmt {
    std::vector<StmtPtr> body;
    Flow exec(Frame& f) const override
    {
        Runtime& rt = *f.rt;
        for (const auto& s : body) {
            rt.line = s->line;
            Flow fl = f.resumeNext ? guarded(*s, f) : s->exec(f);
            if (fl != Flow::Normal)
                return fl;
        }
        return Flow::Normal;
    }
    static Flow guarded(const Stmt& s, Frame& f);
};

struct ExprStmt final : Stmt {
    ExprPtr expr;
    explicit ExprStmt(ExprPtr e) : expr(std::move(e)) {}
    Flow exec(Frame& f) const override
    {
        expr->eval(f);
        return Flow::Normal;
    }
};

struct AssignLocal final : Stmt {
    int slot;
    ExprPtr value;
    bool isSet;
    SumInto sum = nullptr;  // counters: x = x + 1 without a virtual call or a copy
    const ConcatExpr* join = nullptr;
    AssignLocal(int s, ExprPtr v, bool set) : slot(s), value(std::move(v)), isSet(set)
    {
        if (!isSet) {
            sum = sumInto(value.get());
            join = dynamic_cast<const ConcatExpr*>(value.get());
        }
    }
    // The sums here, the rest in assign: the hot path stays small enough
    // to need no saved registers.
    Flow exec(Frame& f) const override
    {
        if (sum && sum(*value, f, f.locals[slot]))
            return Flow::Normal;
        return assign(f);
    }
    Flow assign(Frame& f) const;
};

// global = value: a module variable is written in place; anything else
// (not yet defined, a constant, a procedure, a host object's member) goes
// through the runtime, which knows the language's rules for it.
struct AssignGlobal final : Stmt {
    struct Global* global;
    ExprPtr value;
    bool isSet;
    SumInto sum = nullptr;
    const ConcatExpr* join = nullptr;
    AssignGlobal(struct Global* g, ExprPtr v, bool set) : global(g), value(std::move(v)), isSet(set)
    {
        if (!isSet) {
            sum = sumInto(value.get());
            join = dynamic_cast<const ConcatExpr*>(value.get());
        }
    }
    Flow exec(Frame& f) const override
    {
        Global& g = *global;
        if (g.kind == Global::Variable && sum && sum(*value, f, g.value))
            return Flow::Normal;
        return assign(f);
    }
    Flow assign(Frame& f) const;
};

// The assignments the compiler builds: a sum of two operands read in place
// (x = x + 1, s = s + i, at the top level too) becomes one statement for
// the shape of its operands, which adds without calling the expression.
StmtPtr assignLocal(int slot, ExprPtr value, bool set);
StmtPtr assignGlobal(struct Global* global, ExprPtr value, bool set);

struct AssignVar final : Stmt {
    VarRef var;
    ExprPtr value;
    bool isSet;
    AssignVar(VarRef r, ExprPtr v, bool set) : var(r), value(std::move(v)), isSet(set) {}
    Flow exec(Frame& f) const override;
};

struct AssignIndex final : Stmt {
    ExprPtr target;
    ExprList args;
    ExprPtr value;
    bool isSet;
    std::string name;
    Flow exec(Frame& f) const override;
};

struct AssignMember final : Stmt {
    ExprPtr object;
    std::string name;
    ExprList args;
    ExprPtr value;
    bool isSet;
    std::string objectName;
    Flow exec(Frame& f) const override;
};

struct RaiseStmt final : Stmt {
    int number;
    std::string name;
    Flow exec(Frame&) const override { raise(number, name); }
};

// Under On Error Resume Next a condition that fails counts as true: the
// language goes on with the statement after the failing one, which is the
// first of the Then block.
bool testResuming(const Expr& condition, Frame& f);

struct IfStmt final : Stmt {
    std::vector<ExprPtr> conditions;
    std::vector<StmtPtr> blocks;  // one per condition, plus the Else block when there is one
    Flow exec(Frame& f) const override
    {
        for (std::size_t i = 0; i < conditions.size(); ++i) {
            if (f.resumeNext ? testResuming(*conditions[i], f) : conditions[i]->test(f))
                return blocks[i]->exec(f);
        }
        if (blocks.size() > conditions.size())
            return blocks.back()->exec(f);
        return Flow::Normal;
    }
};

// If with one condition (and maybe Else), the usual shape, without the
// walk over a list of conditions.
struct IfThenStmt final : Stmt {
    ExprPtr condition;
    const CompareExpr* comparison = nullptr;  // the condition when it is one: called directly
    std::unique_ptr<Block> then, otherwise;   // otherwise may be null
    const Stmt* single = nullptr;             // the Then block's statement when it is alone: If x Then y
    IfThenStmt(ExprPtr c, std::unique_ptr<Block> t, std::unique_ptr<Block> e)
        : condition(std::move(c)), comparison(dynamic_cast<const CompareExpr*>(condition.get())), then(std::move(t)),
          otherwise(std::move(e)), single(then->body.size() == 1 ? then->body[0].get() : nullptr)
    {
    }
    Flow exec(Frame& f) const override
    {
        if (f.resumeNext) {
            if (testResuming(*condition, f))
                return then->exec(f);
        } else if (comparison ? comparison->test(f) : condition->test(f)) {
            if (!single)
                return then->exec(f);
            f.rt->line = single->line;
            return single->exec(f);
        }
        return otherwise ? otherwise->exec(f) : Flow::Normal;
    }
};

// The If with one condition the compiler builds: a comparison of two
// operands read in place becomes one statement for its operator and the
// shape of its operands.
StmtPtr ifThen(ExprPtr condition, std::unique_ptr<Block> then, std::unique_ptr<Block> otherwise);

// For var = start To limit Step step: the limit and the step are worked
// out once, into hidden slots.
struct ForStmt final : Stmt {
    VarRef var;
    ExprPtr start, limit, step;
    std::unique_ptr<Block> body;
    int limitSlot, stepSlot;
    Flow exec(Frame& f) const override;

private:
    template <bool Up>
    std::optional<Flow> runCounter(Frame& f, Value& counter, const struct Global* global) const;
    Flow runGeneral(Frame& f, bool up) const;
};

struct ForEachStmt final : Stmt {
    VarRef var;
    ExprPtr collection;
    std::unique_ptr<Block> body;
    Flow exec(Frame& f) const override;
};

struct DoStmt final : Stmt {
    DoKind kind;
    bool whileWend;
    int conditionLine;
    ExprPtr condition;
    std::unique_ptr<Block> body;
    Flow exec(Frame& f) const override;
};

struct SelectStmt final : Stmt {
    struct Item {
        int kind;  // 0 value, 1 range, 2 Is
        Compare op;
        std::uint8_t literal;
        ExprPtr a, b;
    };
    struct Case {
        std::vector<Item> items;  // empty: Case Else
        StmtPtr body;
        int line;
    };
    ExprPtr subject;
    std::vector<Case> cases;
    Flow exec(Frame& f) const override;
};

struct ExitStmt final : Stmt {
    Flow flow;
    explicit ExitStmt(Flow fl) : flow(fl) {}
    Flow exec(Frame& f) const override;
};

struct OnErrorStmt final : Stmt {
    bool resumeNext;
    explicit OnErrorStmt(bool r) : resumeNext(r) {}
    Flow exec(Frame& f) const override;
};

struct DimArrayStmt final : Stmt {
    VarRef var;
    std::vector<std::int32_t> upper;  // empty: Dim a()
    Flow exec(Frame& f) const override;
};

struct ReDimStmt final : Stmt {
    VarRef var;
    ExprList bounds;
    bool preserve;
    std::string name;
    Flow exec(Frame& f) const override;
};

struct EraseStmt final : Stmt {
    VarRef var;
    std::string name;
    Flow exec(Frame& f) const override;
};

struct WithStmt final : Stmt {
    int slot;
    ExprPtr object;
    StmtPtr body;
    Flow exec(Frame& f) const override;
};

}  // namespace qor::script
