#pragma once

#include <memory>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "script/nodes.h"
#include "script/syntax.h"

namespace qor::script {

// One compiled text: its procedures (installed in the module when the text
// runs) and its top-level statements.
struct Chunk {
    std::vector<std::shared_ptr<Procedure>> procedures;
    std::vector<std::pair<Global*, Value>> constants;
    std::vector<Global*> variables;
    StmtPtr body;
    int topLocals = 0;
    bool optionExplicit = false;
};

// Turns a parsed text into runnable nodes, resolving every name to a local
// slot, a module global, a constant or a built-in function.
class Compiler {
public:
    explicit Compiler(Runtime& rt) : rt_(rt) {}
    std::unique_ptr<Chunk> compile(Program& program);
    // An expression evaluated at the top level; hidden slots it needs are counted in topLocals.
    ExprPtr compileExpression(SyntaxNode& expr, int& topLocals);

private:
    enum class LocalKind : std::uint8_t { Var, RefParam, Const };
    struct Local {
        int slot = 0;
        LocalKind kind = LocalKind::Var;
        Value constant;
    };
    struct Scope {
        bool top = true;
        std::unordered_map<std::string, Local> names;
        std::unordered_set<std::string> assigned;  // undeclared names a procedure assigns: its implicit locals
        int count = 0;
        std::string functionName;  // lower-case, for the return value
        int returnSlot = -1;
        std::vector<int> withSlots;
        int newSlot() { return count++; }
    };
    enum class NameKind : std::uint8_t { Local, RefParam, Constant, Global, Builtin, Undeclared };
    struct Resolved {
        NameKind kind = NameKind::Undeclared;
        int slot = 0;
        Value constant;
        Global* global = nullptr;
        const struct Builtin* builtin = nullptr;
    };

    Resolved resolve(const std::string& name, bool forCall);
    bool resolveLocal(const std::string& key, bool forCall, Resolved& r);
    bool resolveModule(const std::string& name, const std::string& key, Resolved& r);
    Global& moduleGlobal(const std::string& name);
    VarRef variable(const std::string& name, int line);
    std::optional<Value> fold(const SyntaxNode& n);
    void collectAssigned(const SyntaxNode& n, Scope& scope);
    void declareModuleNames(Program& program);

    ExprPtr expr(SyntaxNode& n);
    ExprPtr name(SyntaxNode& n);
    ExprPtr binary(SyntaxNode& n);
    ExprPtr callee(SyntaxNode& call, bool asStatement);
    ExprPtr nameCall(SyntaxNode& nameNode, std::vector<SyntaxPtr>& args, std::size_t first, bool asStatement,
                     int line);
    ExprPtr member(SyntaxNode& target, const std::vector<SyntaxPtr>& argKids, bool asStatement, int line);
    ExprList arguments(const std::vector<SyntaxPtr>& kids, std::size_t first);
    ExprPtr withObject(int line);
    std::string describe(const SyntaxNode& n) const;

    std::unique_ptr<Block> block(SyntaxNode& n);
    StmtPtr statement(SyntaxNode& n);
    StmtPtr assignment(SyntaxNode& n);
    StmtPtr memberAssignment(SyntaxNode& target, const std::vector<SyntaxPtr>& argKids, SyntaxNode& n);
    StmtPtr indexAssignment(SyntaxNode& call, SyntaxNode& n);
    StmtPtr illegalAssignment(const std::string& name, int line);
    void declare(SyntaxNode& dim, std::vector<StmtPtr>& out);
    void localConstants(SyntaxNode& n);
    StmtPtr redim(SyntaxNode& n);
    StmtPtr ifStatement(SyntaxNode& n);
    StmtPtr forStatement(SyntaxNode& n);
    StmtPtr forEachStatement(SyntaxNode& n);
    StmtPtr doStatement(SyntaxNode& n);
    StmtPtr selectStatement(SyntaxNode& n);
    StmtPtr withStatement(SyntaxNode& n);
    StmtPtr procedure(SyntaxNode& n, Procedure& p);

    template <class T>
    static std::unique_ptr<T> at(std::unique_ptr<T> node, int line)
    {
        node->line = line;
        return node;
    }

    Runtime& rt_;
    Scope* scope_ = nullptr;
    Chunk* chunk_ = nullptr;
    std::unordered_map<std::string, std::shared_ptr<Procedure>> newProcedures_;
    std::unordered_map<std::string, Value> newConstants_;
    std::unordered_set<std::string> newVariables_;
    // Names the top level of the text assigns: module variables once it has run.
    std::unordered_set<std::string> topAssigned_;
    bool explicit_ = false;
};

}  // namespace qor::script
