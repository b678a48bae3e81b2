#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "script/operations.h"
#include "script/value.h"

namespace qor::script {

// Compiled code as the runtime sees it: an expression gives a value, a
// statement runs and tells how it left. The runtime calls code through
// these two interfaces only; the node kinds (nodes.h) sit above it and
// call the runtime, so the arrow between the two points one way.

class Runtime;

// A statement's way out of the normal flow.
enum class Flow : std::uint8_t { Normal, ExitFor, ExitDo, ExitProc };

// The running activation of the top level or of a procedure.
struct Frame {
    Runtime* rt;
    Value* locals;
    bool resumeNext = false;
};

// Compiled expression: evaluates to a value. Nodes are built once by the
// compiler with every name already resolved to a slot.
struct Expr {
    int line = 0;
    virtual ~Expr() = default;
    virtual Value eval(Frame& f) const = 0;
    // The variable's storage, for passing it by reference; null for
    // anything that is not a plain variable.
    virtual Value* reference(Frame&) const { return nullptr; }
    virtual bool isLiteral() const { return false; }
    virtual bool isMissing() const { return false; }
    // The value as an If or loop condition (Null is false).
    virtual bool test(Frame& f) const
    {
        Value c = eval(f);
        return c.type() == Type::Boolean ? c.asBool() : isTrue(c);
    }
};
using ExprPtr = std::unique_ptr<Expr>;
using ExprList = std::vector<ExprPtr>;

struct Stmt {
    int line = 0;
    virtual ~Stmt() = default;
    virtual Flow exec(Frame& f) const = 0;
};
using StmtPtr = std::unique_ptr<Stmt>;

struct Procedure {
    std::string name;
    bool isFunction = false;
    std::vector<std::uint8_t> byRef;  // one flag a parameter (not vector<bool>: read on every call)
    int localCount = 0;   // parameters first, then the return value, then locals
    int returnSlot = -1;
    StmtPtr body;
};

// A missing argument, as in MsgBox "x", , "titre": a Ref to nowhere.
inline Value missingArgument() { return Value::ref(nullptr); }
inline bool isMissing(const Value& v) { return v.isRef() && v.asRef() == nullptr; }

}  // namespace qor::script
