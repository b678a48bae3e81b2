#include "script/compiler.h"

#include "script/builtins.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

[[noreturn]] void fail(int number, int line, std::string_view name = {})
{
    ScriptError e = makeScriptError(number, name);
    e.line = line;
    throw e;
}

Compare compareOf(BinOp op)
{
    switch (op) {
    case BinOp::Eq: return Compare::Eq;
    case BinOp::Ne: return Compare::Ne;
    case BinOp::Lt: return Compare::Lt;
    case BinOp::Le: return Compare::Le;
    case BinOp::Gt: return Compare::Gt;
    default: return Compare::Ge;
    }
}

bool isCompare(BinOp op) { return op >= BinOp::Eq && op <= BinOp::Ge; }

// Calls every Dim and Const of a statement list, outside procedures.
template <class F>
void forEachDeclaration(SyntaxNode& n, F&& f)
{
    switch (n.kind) {
    case Syn::Dim:
    case Syn::Const:
        f(n);
        return;
    case Syn::Block:
    case Syn::If:
    case Syn::For:
    case Syn::ForEach:
    case Syn::Do:
    case Syn::Select:
    case Syn::Case:
    case Syn::With:
        for (auto& k : n.kids)
            if (k && (k->kind == Syn::Block || k->kind == Syn::Case || k->kind == Syn::Dim || k->kind == Syn::Const ||
                      k->kind == Syn::If || k->kind == Syn::For || k->kind == Syn::ForEach || k->kind == Syn::Do ||
                      k->kind == Syn::Select || k->kind == Syn::With))
                forEachDeclaration(*k, f);
        return;
    default:
        return;
    }
}

}  // namespace

Global& Compiler::moduleGlobal(const std::string& name) { return rt_.globalSlot(name); }

// Names resolve innermost first: the procedure's own names, then the
// module's (this text's and the earlier texts'), then the library's.
Compiler::Resolved Compiler::resolve(const std::string& name, bool forCall)
{
    std::string key = lowerAscii(name);
    Scope& s = *scope_;
    Resolved r;
    if (!s.top && resolveLocal(key, forCall, r))
        return r;
    if (resolveModule(name, key, r))
        return r;
    if (!s.top && s.assigned.count(key) && rt_.exposed.empty() && !explicit_) {
        // Assigned but never declared in a procedure: a local, as the language makes it.
        Local l;
        l.slot = s.newSlot();
        s.names.emplace(key, l);
        r.kind = NameKind::Local;
        r.slot = l.slot;
        return r;
    }
    r.kind = NameKind::Global;
    r.global = &moduleGlobal(name);
    return r;
}

// A parameter, Dim or Const of the procedure, or its Function's return value.
bool Compiler::resolveLocal(const std::string& key, bool forCall, Resolved& r)
{
    Scope& s = *scope_;
    auto it = s.names.find(key);
    if (it != s.names.end()) {
        r.slot = it->second.slot;
        switch (it->second.kind) {
        case LocalKind::Var: r.kind = NameKind::Local; break;
        case LocalKind::RefParam: r.kind = NameKind::RefParam; break;
        case LocalKind::Const:
            r.kind = NameKind::Constant;
            r.constant = it->second.constant;
            break;
        }
        return true;
    }
    if (!forCall && key == s.functionName) {
        r.kind = NameKind::Local;
        r.slot = s.returnSlot;
        return true;
    }
    return false;
}

bool Compiler::resolveModule(const std::string& name, const std::string& key, Resolved& r)
{
    if (auto c = newConstants_.find(key); c != newConstants_.end()) {
        r.kind = NameKind::Constant;
        r.constant = c->second;
        return true;
    }
    if (newProcedures_.count(key) || newVariables_.count(key) || topAssigned_.count(key)) {
        r.kind = NameKind::Global;
        r.global = &moduleGlobal(name);
        return true;
    }
    if (Global* g = rt_.findGlobal(key); g && g->kind != Global::Undefined) {
        if (g->kind == Global::Constant) {
            r.kind = NameKind::Constant;
            r.constant = g->value;
            return true;
        }
        r.kind = NameKind::Global;
        r.global = g;
        return true;
    }
    if (const Value* c = findBuiltinConstant(key)) {
        r.kind = NameKind::Constant;
        r.constant = *c;
        return true;
    }
    if (const Builtin* b = findBuiltin(key)) {
        r.kind = NameKind::Builtin;
        r.builtin = b;
        return true;
    }
    return false;
}

VarRef Compiler::variable(const std::string& name, int line)
{
    Resolved r = resolve(name, false);
    VarRef v;
    switch (r.kind) {
    case NameKind::Local:
        v.kind = VarRef::Local;
        v.slot = r.slot;
        return v;
    case NameKind::RefParam:
        v.kind = VarRef::RefParam;
        v.slot = r.slot;
        return v;
    case NameKind::Constant:
        fail(errc::IllegalAssignment, line, name);
    case NameKind::Builtin:
        v.kind = VarRef::Global;
        v.global = &moduleGlobal(name);
        return v;
    default:
        v.kind = VarRef::Global;
        v.global = r.global;
        return v;
    }
}

std::optional<Value> Compiler::fold(const SyntaxNode& n)
{
    try {
        switch (n.kind) {
        case Syn::Literal: return n.value;
        case Syn::Paren: return fold(*n.kids[0]);
        case Syn::Name: {
            Resolved r = resolve(n.name, false);
            if (r.kind == NameKind::Constant)
                return r.constant;
            return std::nullopt;
        }
        case Syn::Unary: {
            auto v = fold(*n.kids[0]);
            if (!v)
                return v;
            switch (UnOp(n.op)) {
            case UnOp::Neg: return negate(*v);
            case UnOp::Not: return logicalNot(*v);
            case UnOp::Plus: return v;
            }
            return v;
        }
        case Syn::Binary: {
            auto a = fold(*n.kids[0]);
            auto b = a ? fold(*n.kids[1]) : std::nullopt;
            if (!a || !b)
                return std::nullopt;
            switch (BinOp(n.op)) {
            case BinOp::Add: return add(*a, *b);
            case BinOp::Sub: return subtract(*a, *b);
            case BinOp::Mul: return multiply(*a, *b);
            case BinOp::Div: return divide(*a, *b);
            case BinOp::IntDiv: return intDivide(*a, *b);
            case BinOp::Mod: return modulo(*a, *b);
            case BinOp::Pow: return power(*a, *b);
            case BinOp::Concat: return concat(*a, *b);
            default: return std::nullopt;
            }
        }
        default: return std::nullopt;
        }
    } catch (const ScriptError&) {
        return std::nullopt;
    }
}

void Compiler::collectAssigned(const SyntaxNode& n, Scope& scope)
{
    switch (n.kind) {
    case Syn::Assign:
        if (n.kids[0]->kind == Syn::Name)
            scope.assigned.insert(lowerAscii(n.kids[0]->name));
        return;
    case Syn::ReDim:
        for (const auto& item : n.kids)
            scope.assigned.insert(lowerAscii(item->name));
        return;
    case Syn::For:
    case Syn::ForEach:
        scope.assigned.insert(lowerAscii(n.name));
        break;
    default:
        break;
    }
    for (const auto& k : n.kids)
        if (k && (k->kind == Syn::Block || k->kind == Syn::Assign || k->kind == Syn::ReDim || k->kind == Syn::For ||
                  k->kind == Syn::ForEach || k->kind == Syn::If || k->kind == Syn::Do || k->kind == Syn::Select ||
                  k->kind == Syn::Case || k->kind == Syn::With))
            collectAssigned(*k, scope);
}

std::string Compiler::describe(const SyntaxNode& n) const
{
    if (n.kind == Syn::Name || n.kind == Syn::Member || n.kind == Syn::WithMember)
        return n.name;
    if (n.kind == Syn::Call && !n.kids.empty())
        return describe(*n.kids[0]);
    return {};
}

ExprPtr Compiler::withObject(int line)
{
    if (scope_->withSlots.empty())
        fail(errc::SyntaxError, line);
    return at(std::make_unique<WithGet>(scope_->withSlots.back()), line);
}

ExprList Compiler::arguments(const std::vector<SyntaxPtr>& kids, std::size_t first)
{
    ExprList out;
    for (std::size_t i = first; i < kids.size(); ++i)
        out.push_back(expr(*kids[i]));
    return out;
}

ExprPtr Compiler::nameCall(SyntaxNode& nameNode, std::vector<SyntaxPtr>& kids, std::size_t first, bool asStatement,
                           int line)
{
    Resolved r = resolve(nameNode.name, true);
    ExprList args = arguments(kids, first);
    switch (r.kind) {
    case NameKind::Local:
        return at(std::make_unique<IndexExpr>(at(std::make_unique<LocalGet>(r.slot), line), std::move(args), nameNode.name), line);
    case NameKind::RefParam:
        return at(std::make_unique<IndexExpr>(at(std::make_unique<RefParamGet>(r.slot), line), std::move(args), nameNode.name), line);
    case NameKind::Constant:
        return at(std::make_unique<IndexExpr>(at(std::make_unique<Literal>(r.constant), line), std::move(args), nameNode.name), line);
    case NameKind::Builtin:
        if (int(args.size()) < r.builtin->minArgs || int(args.size()) > r.builtin->maxArgs)
            return at(std::make_unique<RaiseExpr>(errc::WrongArguments, r.builtin->name), line);
        return at(std::make_unique<BuiltinCall>(r.builtin->fn, std::move(args), r.builtin->minArgs), line);
    default:
        return at(std::make_unique<GlobalCall>(r.global, std::move(args), asStatement), line);
    }
}

// obj.name or .name inside With, with the arguments argKids[1..] (none
// when argKids is empty).
ExprPtr Compiler::member(SyntaxNode& target, const std::vector<SyntaxPtr>& argKids, bool asStatement, int line)
{
    if (target.kind == Syn::WithMember)
        return at(std::make_unique<MemberExpr>(withObject(line), target.name, arguments(argKids, 1), asStatement, ""),
                  line);
    std::string objectName = describe(*target.kids[0]);
    ExprPtr object = expr(*target.kids[0]);
    return at(std::make_unique<MemberExpr>(std::move(object), target.name, arguments(argKids, 1), asStatement,
                                           std::move(objectName)),
              line);
}

// A Call node, or a call statement (the same shape: callee, then arguments).
ExprPtr Compiler::callee(SyntaxNode& call, bool asStatement)
{
    SyntaxNode& target = *call.kids[0];
    int line = call.line;
    switch (target.kind) {
    case Syn::Name:
        return nameCall(target, call.kids, 1, asStatement, line);
    case Syn::Member:
    case Syn::WithMember:
        return member(target, call.kids, asStatement, line);
    default: {
        ExprPtr t = expr(target);
        return at(std::make_unique<IndexExpr>(std::move(t), arguments(call.kids, 1), describe(target)), line);
    }
    }
}

ExprPtr Compiler::name(SyntaxNode& n)
{
    int line = n.line;
    Resolved r = resolve(n.name, false);
    switch (r.kind) {
    case NameKind::Local: return at(std::make_unique<LocalGet>(r.slot), line);
    case NameKind::RefParam: return at(std::make_unique<RefParamGet>(r.slot), line);
    case NameKind::Constant: return at(std::make_unique<Literal>(r.constant), line);
    case NameKind::Builtin:
        if (r.builtin->minArgs > 0)
            return at(std::make_unique<RaiseExpr>(errc::WrongArguments, r.builtin->name), line);
        return at(std::make_unique<BuiltinCall>(r.builtin->fn, ExprList{}, 0), line);
    default: return at(std::make_unique<GlobalGet>(r.global), line);
    }
}

// The hot operators get nodes of their own; the rest share BinaryExpr.
ExprPtr Compiler::binary(SyntaxNode& n)
{
    int line = n.line;
    BinOp op = BinOp(n.op);
    ExprPtr a = expr(*n.kids[0]);
    ExprPtr b = expr(*n.kids[1]);
    if (op == BinOp::Add)
        return at(std::make_unique<AddExpr>(std::move(a), std::move(b)), line);
    if (op == BinOp::Sub)
        return at(std::make_unique<SubExpr>(std::move(a), std::move(b)), line);
    if (op == BinOp::Concat)
        return at(std::make_unique<ConcatExpr>(std::move(a), std::move(b)), line);
    if (isCompare(op)) {
        std::uint8_t lit = (a->isLiteral() ? LeftLiteral : 0) | (b->isLiteral() ? RightLiteral : 0);
        return at(std::make_unique<CompareExpr>(compareOf(op), lit, std::move(a), std::move(b)), line);
    }
    return at(std::make_unique<BinaryExpr>(op, std::move(a), std::move(b)), line);
}

ExprPtr Compiler::expr(SyntaxNode& n)
{
    int line = n.line;
    switch (n.kind) {
    case Syn::Literal:
        return at(std::make_unique<Literal>(n.value), line);
    case Syn::Name:
        return name(n);
    case Syn::Member:
    case Syn::WithMember:
        return member(n, {}, false, line);
    case Syn::Call:
        return callee(n, false);
    case Syn::Paren:
        return at(std::make_unique<ParenExpr>(expr(*n.kids[0])), line);
    case Syn::Missing:
        return at(std::make_unique<MissingArg>(), line);
    case Syn::Unary: {
        if (n.kids[0]->kind == Syn::Literal && UnOp(n.op) == UnOp::Neg) {
            if (auto v = fold(n))
                return at(std::make_unique<Literal>(*v), line);
        }
        return at(std::make_unique<UnaryExpr>(UnOp(n.op), expr(*n.kids[0])), line);
    }
    case Syn::Binary:
        return binary(n);
    default:
        fail(errc::ExpectedExpression, line);
    }
}

std::unique_ptr<Block> Compiler::block(SyntaxNode& n)
{
    auto b = std::make_unique<Block>();
    b->line = n.line;
    for (auto& k : n.kids) {
        if (k->kind == Syn::Dim) {
            declare(*k, b->body);
            continue;
        }
        if (StmtPtr s = statement(*k))
            b->body.push_back(std::move(s));
    }
    return b;
}

void Compiler::declare(SyntaxNode& dim, std::vector<StmtPtr>& out)
{
    for (auto& item : dim.kids) {
        if (!item->flag)
            continue;
        auto s = std::make_unique<DimArrayStmt>();
        s->line = item->line;
        s->var = variable(item->name, item->line);
        for (auto& bound : item->kids) {
            auto v = fold(*bound);
            if (!v || !isNumericValue(*v))
                fail(errc::ExpectedInteger, item->line);
            std::int32_t u = toLong(*v);
            if (u < 0)
                fail(errc::SubscriptOutOfRange, item->line);
            s->upper.push_back(u);
        }
        out.push_back(std::move(s));
    }
}

// A constant assigned: the error is raised when the statement runs.
StmtPtr Compiler::illegalAssignment(const std::string& name, int line)
{
    auto s = std::make_unique<RaiseStmt>();
    s->number = errc::IllegalAssignment;
    s->name = name;
    return at(std::move(s), line);
}

StmtPtr Compiler::assignment(SyntaxNode& n)
{
    SyntaxNode& target = *n.kids[0];
    int line = n.line;
    switch (target.kind) {
    case Syn::Name: {
        Resolved r = resolve(target.name, false);
        ExprPtr value = expr(*n.kids[1]);
        if (r.kind == NameKind::Local)
            return at(assignLocal(r.slot, std::move(value), n.flag), line);
        if (r.kind == NameKind::Constant)
            return illegalAssignment(target.name, line);
        VarRef var = variable(target.name, line);
        if (var.kind == VarRef::Global)
            return at(assignGlobal(var.global, std::move(value), n.flag), line);
        return at(std::make_unique<AssignVar>(var, std::move(value), n.flag), line);
    }
    case Syn::Member:
    case Syn::WithMember:
        return memberAssignment(target, {}, n);
    case Syn::Call: {
        SyntaxNode& c = *target.kids[0];
        if (c.kind == Syn::Member || c.kind == Syn::WithMember)
            return memberAssignment(c, target.kids, n);
        return indexAssignment(target, n);
    }
    default:
        fail(errc::IllegalAssignment, line);
    }
}

// obj.name = v, or obj.name(argKids[1..]) = v.
StmtPtr Compiler::memberAssignment(SyntaxNode& target, const std::vector<SyntaxPtr>& argKids, SyntaxNode& n)
{
    auto s = std::make_unique<AssignMember>();
    if (target.kind == Syn::Member) {
        s->objectName = describe(*target.kids[0]);
        s->object = expr(*target.kids[0]);
    } else {
        s->object = withObject(n.line);
    }
    s->name = target.name;
    s->args = arguments(argKids, 1);
    s->value = expr(*n.kids[1]);
    s->isSet = n.flag;
    return at(std::move(s), n.line);
}

// a(i) = v: an array element, or the default member of an object.
StmtPtr Compiler::indexAssignment(SyntaxNode& call, SyntaxNode& n)
{
    SyntaxNode& c = *call.kids[0];
    int line = n.line;
    auto s = std::make_unique<AssignIndex>();
    if (c.kind == Syn::Name) {
        Resolved r = resolve(c.name, true);
        switch (r.kind) {
        case NameKind::Local: s->target = at(std::make_unique<LocalGet>(r.slot), line); break;
        case NameKind::RefParam: s->target = at(std::make_unique<RefParamGet>(r.slot), line); break;
        case NameKind::Constant: return illegalAssignment(c.name, line);
        case NameKind::Builtin: s->target = at(std::make_unique<GlobalGet>(&moduleGlobal(c.name)), line); break;
        default: s->target = at(std::make_unique<GlobalGet>(r.global), line); break;
        }
        s->name = c.name;
    } else {
        s->target = expr(c);
        s->name = describe(c);
    }
    s->args = arguments(call.kids, 1);
    s->value = expr(*n.kids[1]);
    s->isSet = n.flag;
    return at(std::move(s), line);
}

StmtPtr Compiler::statement(SyntaxNode& n)
{
    int line = n.line;
    switch (n.kind) {
    case Syn::Assign: return assignment(n);
    case Syn::CallStmt: return at(std::make_unique<ExprStmt>(callee(n, true)), line);
    case Syn::Const:
        if (!scope_->top)
            localConstants(n);
        return nullptr;  // top-level constants were set before compiling
    case Syn::ReDim: return redim(n);
    case Syn::If: return ifStatement(n);
    case Syn::For: return forStatement(n);
    case Syn::ForEach: return forEachStatement(n);
    case Syn::Do: return doStatement(n);
    case Syn::Select: return selectStatement(n);
    case Syn::Exit: {
        ExitKind k = ExitKind(n.op);
        Flow fl = k == ExitKind::For ? Flow::ExitFor : k == ExitKind::Do ? Flow::ExitDo : Flow::ExitProc;
        return at(std::make_unique<ExitStmt>(fl), line);
    }
    case Syn::OnError: return at(std::make_unique<OnErrorStmt>(n.flag), line);
    case Syn::Erase: {
        auto s = std::make_unique<EraseStmt>();
        s->var = variable(n.kids[0]->name, line);
        s->name = n.kids[0]->name;
        return at(std::move(s), line);
    }
    case Syn::With: return withStatement(n);
    case Syn::OptionExplicit:
        chunk_->optionExplicit = true;
        return nullptr;
    case Syn::Block: return block(n);
    default: fail(errc::SyntaxError, line);
    }
}

void Compiler::localConstants(SyntaxNode& n)
{
    for (auto& item : n.kids) {
        auto v = fold(*item->kids[0]);
        if (!v)
            fail(errc::ExpectedLiteral, item->line);
        std::string key = lowerAscii(item->name);
        if (scope_->names.count(key))
            fail(errc::NameRedefined, item->line, item->name);
        Local l;
        l.kind = LocalKind::Const;
        l.constant = *v;
        scope_->names.emplace(key, l);
    }
}

StmtPtr Compiler::redim(SyntaxNode& n)
{
    auto b = std::make_unique<Block>();
    b->line = n.line;
    for (auto& item : n.kids) {
        auto s = std::make_unique<ReDimStmt>();
        s->line = item->line;
        s->var = variable(item->name, item->line);
        s->bounds = arguments(item->kids, 0);
        s->preserve = n.flag;
        s->name = item->name;
        b->body.push_back(std::move(s));
    }
    return b;
}

StmtPtr Compiler::ifStatement(SyntaxNode& n)
{
    std::size_t pairs = (n.kids.size() - (n.flag ? 1 : 0)) / 2;
    if (pairs == 1) {
        ExprPtr condition = expr(*n.kids[0]);
        auto then = block(*n.kids[1]);
        auto otherwise = n.flag ? block(*n.kids.back()) : nullptr;
        return at(ifThen(std::move(condition), std::move(then), std::move(otherwise)), n.line);
    }
    auto s = std::make_unique<IfStmt>();
    for (std::size_t i = 0; i < pairs; ++i) {
        s->conditions.push_back(expr(*n.kids[2 * i]));
        s->blocks.push_back(block(*n.kids[2 * i + 1]));
    }
    if (n.flag)
        s->blocks.push_back(block(*n.kids.back()));
    return at(std::move(s), n.line);
}

StmtPtr Compiler::forStatement(SyntaxNode& n)
{
    auto s = std::make_unique<ForStmt>();
    s->var = variable(n.name, n.line);
    s->start = expr(*n.kids[0]);
    s->limit = expr(*n.kids[1]);
    if (n.kids[2])
        s->step = expr(*n.kids[2]);
    s->limitSlot = scope_->newSlot();
    s->stepSlot = scope_->newSlot();
    s->body = block(*n.kids[3]);
    return at(std::move(s), n.line);
}

StmtPtr Compiler::forEachStatement(SyntaxNode& n)
{
    auto s = std::make_unique<ForEachStmt>();
    s->var = variable(n.name, n.line);
    s->collection = expr(*n.kids[0]);
    s->body = block(*n.kids[1]);
    return at(std::move(s), n.line);
}

StmtPtr Compiler::doStatement(SyntaxNode& n)
{
    auto s = std::make_unique<DoStmt>();
    s->kind = DoKind(n.op);
    s->whileWend = n.flag;
    if (n.kids[0]) {
        s->conditionLine = n.kids[0]->line;
        s->condition = expr(*n.kids[0]);
    }
    s->body = block(*n.kids[1]);
    return at(std::move(s), n.line);
}

StmtPtr Compiler::selectStatement(SyntaxNode& n)
{
    auto s = std::make_unique<SelectStmt>();
    s->subject = expr(*n.kids[0]);
    for (std::size_t i = 1; i < n.kids.size(); ++i) {
        SyntaxNode& c = *n.kids[i];
        SelectStmt::Case sc;
        sc.line = c.line;
        for (std::size_t k = 1; k < c.kids.size(); ++k) {
            SyntaxNode& it = *c.kids[k];
            SelectStmt::Item item;
            item.kind = it.op;
            item.op = it.op == 2 ? compareOf(BinOp(it.op2)) : Compare::Eq;
            item.a = expr(*it.kids[0]);
            item.literal = item.a->isLiteral();
            if (it.op == 1)
                item.b = expr(*it.kids[1]);
            sc.items.push_back(std::move(item));
        }
        sc.body = block(*c.kids[0]);
        s->cases.push_back(std::move(sc));
    }
    return at(std::move(s), n.line);
}

StmtPtr Compiler::withStatement(SyntaxNode& n)
{
    auto s = std::make_unique<WithStmt>();
    s->object = expr(*n.kids[0]);
    s->slot = scope_->newSlot();
    scope_->withSlots.push_back(s->slot);
    s->body = block(*n.kids[1]);
    scope_->withSlots.pop_back();
    return at(std::move(s), n.line);
}

StmtPtr Compiler::procedure(SyntaxNode& n, Procedure& p)
{
    Scope s;
    s.top = false;
    for (const auto& param : n.params) {
        Local l;
        l.slot = s.newSlot();
        l.kind = param.byRef ? LocalKind::RefParam : LocalKind::Var;
        s.names.emplace(lowerAscii(param.name), l);
        p.byRef.push_back(param.byRef);
    }
    if (n.flag) {
        s.functionName = lowerAscii(n.name);
        s.returnSlot = s.newSlot();
        p.returnSlot = s.returnSlot;
    }
    // Dim declares for the whole procedure, wherever it stands.
    forEachDeclaration(*n.kids[0], [&](SyntaxNode& d) {
        if (d.kind != Syn::Dim)
            return;
        for (auto& item : d.kids) {
            std::string key = lowerAscii(item->name);
            if (s.names.count(key))
                fail(errc::NameRedefined, item->line, item->name);
            Local l;
            l.slot = s.newSlot();
            s.names.emplace(key, l);
        }
    });
    collectAssigned(*n.kids[0], s);
    Scope* saved = scope_;
    scope_ = &s;
    StmtPtr body = block(*n.kids[0]);
    scope_ = saved;
    p.localCount = s.count;
    return body;
}

std::unique_ptr<Chunk> Compiler::compile(Program& program)
{
    auto chunk = std::make_unique<Chunk>();
    chunk_ = chunk.get();
    // Under Option Explicit an undeclared name is never a local of its own.
    explicit_ = program.optionExplicit || rt_.optionExplicit;
    Scope top;
    scope_ = &top;
    declareModuleNames(program);
    for (auto& syn : program.procedures) {
        auto& proc = newProcedures_.at(lowerAscii(syn->name));
        proc->body = procedure(*syn, *proc);
        chunk->procedures.push_back(proc);
    }
    chunk->body = block(*program.body);
    chunk->topLocals = top.count;
    for (const auto& name : newVariables_)
        chunk->variables.push_back(rt_.findGlobal(name));
    if (program.optionExplicit)
        chunk->optionExplicit = true;
    scope_ = nullptr;
    chunk_ = nullptr;
    return chunk;
}

// The text's procedures, module-level Dim and Const, and the names its top
// level assigns: known before any body is compiled, so that a procedure
// sees the module names declared below it.
void Compiler::declareModuleNames(Program& program)
{
    for (auto& syn : program.procedures) {
        std::string key = lowerAscii(syn->name);
        if (newProcedures_.count(key))
            fail(errc::NameRedefined, syn->line, syn->name);
        auto proc = std::make_shared<Procedure>();
        proc->name = syn->name;
        proc->isFunction = syn->flag;
        newProcedures_.emplace(key, proc);
        moduleGlobal(syn->name);
    }
    // Module-level Dim and Const hold for the whole text, procedures included.
    forEachDeclaration(*program.body, [&](SyntaxNode& d) {
        for (auto& item : d.kids) {
            std::string key = lowerAscii(item->name);
            if (newProcedures_.count(key) || newVariables_.count(key) || newConstants_.count(key))
                fail(errc::NameRedefined, item->line, item->name);
            if (d.kind == Syn::Dim) {
                newVariables_.insert(key);
                moduleGlobal(item->name);
            } else {
                auto v = fold(*item->kids[0]);
                if (!v)
                    fail(errc::ExpectedLiteral, item->line);
                newConstants_.emplace(key, *v);
                chunk_->constants.emplace_back(&moduleGlobal(item->name), *v);
            }
        }
    });
    if (rt_.exposed.empty()) {
        // A procedure that assigns a name the top level also assigns works
        // on that module variable, not on a local of its own.
        Scope probe;
        collectAssigned(*program.body, probe);
        topAssigned_ = std::move(probe.assigned);
    }
}

ExprPtr Compiler::compileExpression(SyntaxNode& e, int& topLocals)
{
    Scope top;
    scope_ = &top;
    ExprPtr out = expr(e);
    topLocals = top.count;
    scope_ = nullptr;
    return out;
}

}  // namespace qor::script
