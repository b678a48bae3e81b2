#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "script/value.h"

namespace qor::script {

// Kinds of node of the syntax tree the parser builds and the compiler reads.
enum class Syn : std::uint8_t {
    // Expressions
    Literal,    // value
    Name,       // name
    Member,     // kids[0] . name
    WithMember, // .name inside With
    Call,       // kids[0] (kids[1..]): a call or an index; tokenPos = its "("
    Paren,      // (kids[0]): a value, never a reference
    Missing,    // an argument left out: f(1, , 3)
    Unary,      // op kids[0]
    Binary,     // kids[0] op kids[1]
    // Statements
    Block,      // kids
    Assign,     // kids[0] = kids[1]; flag: Set
    CallStmt,   // kids[0] is the callee (Name, Member or WithMember), kids[1..] the arguments
    Dim,        // kids: DimItem
    DimItem,    // name, kids: upper bounds (none: scalar); flag: "()" given
    ReDim,      // kids: DimItem; flag: Preserve
    Const,      // kids: ConstItem
    ConstItem,  // name = kids[0]
    If,         // kids: cond, block, cond, block, ... [else block]; flag: has else
    For,        // name = kids[0] To kids[1] [Step kids[2]] kids[3]; flag: has step
    ForEach,    // name In kids[0] kids[1]
    Do,         // kids[0] cond (or nullptr), kids[1] body; op: DoKind
    Select,     // kids[0] subject, then Case nodes
    Case,       // kids[0] body, kids[1..] CaseItem; flag: Case Else
    CaseItem,   // op: 0 value, 1 range (kids[0] To kids[1]), 2 Is (op2 compare, kids[0])
    Exit,       // op: ExitKind
    OnError,    // flag: Resume Next (else GoTo 0)
    Erase,      // kids[0] variable
    With,       // kids[0] object, kids[1] body
    Procedure,  // name, params, kids[0] body; flag: Function
    OptionExplicit,
};

enum class BinOp : std::uint8_t {
    Pow, Mul, Div, IntDiv, Mod, Add, Sub, Concat, Eq, Ne, Lt, Le, Gt, Ge, Is, And, Or, Xor, Eqv, Imp,
};
enum class UnOp : std::uint8_t { Neg, Plus, Not };
enum class DoKind : std::uint8_t { Forever, PreWhile, PreUntil, PostWhile, PostUntil };
enum class ExitKind : std::uint8_t { For, Do, Sub, Function };

struct Param {
    std::string name;
    bool byRef = true;  // the language passes by reference unless told ByVal
};

struct SyntaxNode {
    Syn kind;
    std::uint8_t op = 0;
    std::uint8_t op2 = 0;
    bool flag = false;
    int line = 0;
    int depth = 1;        // height of the subtree, bounded by the parser
    int tokenPos = -1;
    std::string name;
    Value value;
    std::vector<std::unique_ptr<SyntaxNode>> kids;
    std::vector<Param> params;

    SyntaxNode(Syn k, int l) : kind(k), line(l) {}
};

using SyntaxPtr = std::unique_ptr<SyntaxNode>;

// The parsed text: its procedures and its top-level statements in order.
struct Program {
    std::vector<SyntaxPtr> procedures;
    SyntaxPtr body;  // Block
    bool optionExplicit = false;
};

}  // namespace qor::script
