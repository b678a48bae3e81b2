#include "script/parser.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "script/script_error.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

// The comparison a token stands for, if it stands for one.
std::optional<BinOp> comparisonOf(Tok t)
{
    switch (t) {
    case Tok::Eq: return BinOp::Eq;
    case Tok::Ne: return BinOp::Ne;
    case Tok::Lt: return BinOp::Lt;
    case Tok::Le: return BinOp::Le;
    case Tok::Gt: return BinOp::Gt;
    case Tok::Ge: return BinOp::Ge;
    default: return std::nullopt;
    }
}

}  // namespace

Parser::NestGuard::NestGuard(Parser& parser) : p(parser)
{
    if (++p.nesting_ > kMaxNesting)
        p.fail(errc::OutOfStack);
}

Parser::Parser(std::string_view source) : tokens_(tokenize(source)) {}

const Token& Parser::peek(int ahead) const
{
    std::size_t i = std::min(pos_ + std::size_t(ahead), tokens_.size() - 1);
    return tokens_[i];
}

bool Parser::isWord(std::string_view w) const
{
    return tok().type == Tok::Name && tok().kw == Kw::None && equalsNoCaseAscii(tok().text, w);
}

bool Parser::atStatementEnd() const
{
    Tok t = tok().type;
    return t == Tok::Newline || t == Tok::Colon || t == Tok::End || (singleLineIf_ > 0 && isKw(Kw::Else));
}

void Parser::fail(int number) const { fail(number, tok().line); }

void Parser::fail(int number, int line) const
{
    ScriptError e = makeScriptError(number);
    e.line = line;
    throw e;
}

void Parser::expectKw(Kw k, int error)
{
    if (!isKw(k))
        fail(error);
    advance();
}

void Parser::expect(Tok t, int error)
{
    if (tok().type != t)
        fail(error);
    advance();
}

std::string Parser::expectName()
{
    if (tok().type != Tok::Name || tok().kw != Kw::None)
        fail(errc::ExpectedIdentifier);
    std::string n = tok().text;
    advance();
    return n;
}

void Parser::endStatement()
{
    Tok t = tok().type;
    if (t == Tok::Newline || t == Tok::Colon) {
        advance();
        return;
    }
    if (t == Tok::End || (singleLineIf_ > 0 && isKw(Kw::Else)))
        return;
    fail(errc::ExpectedEndOfStatement);
}

void Parser::skipSeparators()
{
    while (tok().type == Tok::Newline || tok().type == Tok::Colon)
        advance();
}

Program Parser::parseProgram()
{
    Program program;
    program.body = node(Syn::Block);
    skipSeparators();
    while (tok().type != Tok::End) {
        bool visibility = isKw(Kw::Public) || isKw(Kw::Private);
        const Token& head = visibility ? peek() : tok();
        if (head.type == Tok::Name && (head.kw == Kw::Sub || head.kw == Kw::Function)) {
            if (visibility)
                advance();
            bool isFunction = isKw(Kw::Function);
            advance();
            program.procedures.push_back(parseProcedure(isFunction));
        } else {
            program.body->kids.push_back(parseStatement());
        }
        endStatement();
        skipSeparators();
    }
    program.optionExplicit = optionExplicit_;
    return program;
}

SyntaxPtr Parser::parseExpressionText()
{
    skipSeparators();
    SyntaxPtr e = parseExpression();
    skipSeparators();
    if (tok().type != Tok::End)
        fail(errc::ExpectedEndOfStatement);
    return e;
}

SyntaxPtr Parser::parseProcedure(bool isFunction)
{
    auto proc = node(Syn::Procedure);
    proc->flag = isFunction;
    proc->name = expectName();
    if (tok().type == Tok::LParen) {
        advance();
        while (tok().type != Tok::RParen) {
            Param p;
            if (isKw(Kw::ByVal)) {
                p.byRef = false;
                advance();
            } else if (isKw(Kw::ByRef)) {
                advance();
            }
            p.name = expectName();
            if (tok().type == Tok::LParen) {
                advance();
                expect(Tok::RParen, errc::ExpectedCloseParen);
            }
            for (const auto& q : proc->params)
                if (equalsNoCaseAscii(q.name, p.name))
                    fail(errc::NameRedefined);
            proc->params.push_back(std::move(p));
            if (tok().type == Tok::Comma)
                advance();
            else if (tok().type != Tok::RParen)
                fail(errc::ExpectedCloseParen);
        }
        advance();
    }
    endStatement();
    procKind_ = isFunction ? 2 : 1;
    int savedFor = loopDepthFor_, savedDo = loopDepthDo_;
    loopDepthFor_ = loopDepthDo_ = 0;
    proc->kids.push_back(parseBlock());
    loopDepthFor_ = savedFor;
    loopDepthDo_ = savedDo;
    procKind_ = 0;
    expectKw(Kw::End, errc::ExpectedEnd);
    expectKw(isFunction ? Kw::Function : Kw::Sub, isFunction ? errc::ExpectedFunction : errc::ExpectedSub);
    return proc;
}

SyntaxPtr Parser::parseBlock(bool singleLine)
{
    auto block = node(Syn::Block);
    for (;;) {
        if (singleLine) {
            while (tok().type == Tok::Colon)
                advance();
            if (tok().type == Tok::Newline || tok().type == Tok::End || isKw(Kw::Else))
                break;
        } else {
            skipSeparators();
            if (tok().type == Tok::End)
                break;
            if (tok().type == Tok::Name) {
                Kw k = tok().kw;
                if (k == Kw::End || k == Kw::Next || k == Kw::Loop || k == Kw::Wend || k == Kw::Else ||
                    k == Kw::ElseIf || k == Kw::Case)
                    break;
            }
        }
        block->kids.push_back(parseStatement());
        if (singleLine) {
            if (tok().type == Tok::Colon)
                continue;
            if (tok().type == Tok::Newline || tok().type == Tok::End || isKw(Kw::Else))
                break;
            fail(errc::ExpectedEndOfStatement);
        }
        endStatement();
    }
    return block;
}

SyntaxPtr Parser::parseStatement()
{
    // Statements that hold blocks count against the nesting limit.
    static constexpr struct {
        Kw kw;
        SyntaxPtr (Parser::*parse)();
    } kBlockStatements[] = {
        {Kw::If, &Parser::parseIf},         {Kw::For, &Parser::parseFor},       {Kw::Do, &Parser::parseDo},
        {Kw::While, &Parser::parseWhile},   {Kw::Select, &Parser::parseSelect}, {Kw::With, &Parser::parseWith},
    };
    const Token& t = tok();
    if (t.type == Tok::Dot)
        return parseAssignOrCall(false);
    if (t.type != Tok::Name)
        fail(errc::ExpectedStatement);
    for (const auto& b : kBlockStatements) {
        if (t.kw == b.kw) {
            NestGuard g(*this);
            // Its lines are its own, not those of a one-line If around it.
            int outerIf = std::exchange(singleLineIf_, 0);
            SyntaxPtr n = (this->*b.parse)();
            singleLineIf_ = outerIf;
            return n;
        }
    }
    switch (t.kw) {
    case Kw::None: return parseAssignOrCall(false);
    case Kw::Dim:
        advance();
        return parseDim(false);
    case Kw::Public:
    case Kw::Private: return parseVisibility();
    case Kw::ReDim:
        advance();
        return parseDim(true);
    case Kw::Const: return parseConst();
    case Kw::Set:
        advance();
        return parseAssignOrCall(true);
    case Kw::Let:
        advance();
        return parseAssignOrCall(false);
    case Kw::Call: return parseCallKeyword();
    case Kw::Exit: return parseExit();
    case Kw::On: return parseOnError();
    case Kw::Option: return parseOption();
    case Kw::Erase: return parseErase();
    case Kw::Next: fail(errc::UnexpectedNext);
    case Kw::Loop: fail(errc::LoopWithoutDo);
    default: fail(errc::SyntaxError);
    }
}

// Public or Private before a module-level Dim or Const.
SyntaxPtr Parser::parseVisibility()
{
    if (procKind_ != 0)
        fail(errc::SyntaxError);
    advance();
    if (isKw(Kw::Const))
        return parseConst();
    if (isKw(Kw::Sub) || isKw(Kw::Function))
        fail(errc::SyntaxError);
    return parseDim(false);
}

SyntaxPtr Parser::parseOption()
{
    if (procKind_ != 0)
        fail(errc::SyntaxError);
    auto n = node(Syn::OptionExplicit);
    advance();
    if (!isWord("explicit"))
        fail(errc::SyntaxError);
    advance();
    optionExplicit_ = true;
    return n;
}

SyntaxPtr Parser::parseErase()
{
    auto n = node(Syn::Erase);
    advance();
    auto target = node(Syn::Name);
    target->name = expectName();
    n->kids.push_back(std::move(target));
    return n;
}

SyntaxPtr Parser::parseDim(bool redim)
{
    auto dim = node(redim ? Syn::ReDim : Syn::Dim);
    if (redim && isWord("preserve")) {
        dim->flag = true;
        advance();
    }
    for (;;) {
        auto item = node(Syn::DimItem);
        item->name = expectName();
        if (tok().type == Tok::LParen) {
            advance();
            item->flag = true;
            if (tok().type != Tok::RParen) {
                for (;;) {
                    item->kids.push_back(parseExpression());
                    if (tok().type != Tok::Comma)
                        break;
                    advance();
                }
            }
            expect(Tok::RParen, errc::ExpectedCloseParen);
            if (item->kids.size() > 60)
                fail(errc::SubscriptOutOfRange);
        } else if (redim) {
            fail(errc::ExpectedOpenParen);
        }
        dim->kids.push_back(std::move(item));
        if (tok().type != Tok::Comma)
            break;
        advance();
    }
    return dim;
}

SyntaxPtr Parser::parseConst()
{
    auto c = node(Syn::Const);
    advance();
    for (;;) {
        auto item = node(Syn::ConstItem);
        item->name = expectName();
        expect(Tok::Eq, errc::ExpectedEquals);
        item->kids.push_back(parseExpression());
        c->kids.push_back(std::move(item));
        if (tok().type != Tok::Comma)
            break;
        advance();
    }
    return c;
}

SyntaxPtr Parser::parseIf()
{
    auto n = node(Syn::If);
    advance();
    n->kids.push_back(parseExpression());
    expectKw(Kw::Then, errc::ExpectedThen);
    if (tok().type != Tok::Newline && tok().type != Tok::End) {
        // One-line form: statements up to the end of the line, Else optional.
        ++singleLineIf_;
        n->kids.push_back(parseBlock(true));
        if (isKw(Kw::Else)) {
            advance();
            n->flag = true;
            n->kids.push_back(parseBlock(true));
        }
        --singleLineIf_;
        if (isKw(Kw::End) && peek().kw == Kw::If) {  // tolerated: "If a Then b End If"
            advance();
            advance();
        }
        return n;
    }
    n->kids.push_back(parseBlock());
    for (;;) {
        if (isKw(Kw::ElseIf)) {
            advance();
            n->kids.push_back(parseExpression());
            expectKw(Kw::Then, errc::ExpectedThen);
            n->kids.push_back(parseBlock());
        } else if (isKw(Kw::Else)) {
            advance();
            n->flag = true;
            n->kids.push_back(parseBlock());
            break;
        } else {
            break;
        }
    }
    if (!isKw(Kw::End))
        fail(errc::ExpectedEnd);
    advance();
    expectKw(Kw::If, errc::ExpectedIf);
    return n;
}

SyntaxPtr Parser::parseFor()
{
    int line = tok().line;
    advance();
    SyntaxPtr n;
    if (isKw(Kw::Each)) {
        advance();
        n = std::make_unique<SyntaxNode>(Syn::ForEach, line);
        if (tok().type != Tok::Name || tok().kw != Kw::None)
            fail(errc::InvalidForVariable);
        n->name = expectName();
        expectKw(Kw::In, errc::ExpectedIn);
        n->kids.push_back(parseExpression());
    } else {
        n = std::make_unique<SyntaxNode>(Syn::For, line);
        if (tok().type != Tok::Name || tok().kw != Kw::None)
            fail(errc::InvalidForVariable);
        n->name = expectName();
        expect(Tok::Eq, errc::ExpectedEquals);
        n->kids.push_back(parseExpression());
        expectKw(Kw::To, errc::ExpectedTo);
        n->kids.push_back(parseExpression());
        if (isWord("step")) {
            advance();
            n->flag = true;
            n->kids.push_back(parseExpression());
        } else {
            n->kids.push_back(nullptr);
        }
    }
    ++loopDepthFor_;
    n->kids.push_back(parseBlock());
    --loopDepthFor_;
    expectKw(Kw::Next, errc::ExpectedNext);
    if (tok().type == Tok::Name && tok().kw == Kw::None)
        advance();  // the optional variable name after Next
    return n;
}

SyntaxPtr Parser::parseDo()
{
    auto n = node(Syn::Do);
    advance();
    SyntaxPtr cond;
    DoKind kind = DoKind::Forever;
    if (isKw(Kw::While) || isKw(Kw::Until)) {
        kind = isKw(Kw::While) ? DoKind::PreWhile : DoKind::PreUntil;
        advance();
        cond = parseExpression();
    } else if (tok().type != Tok::Newline && tok().type != Tok::Colon) {
        fail(errc::ExpectedWhileOrUntil);
    }
    ++loopDepthDo_;
    SyntaxPtr body = parseBlock();
    --loopDepthDo_;
    expectKw(Kw::Loop, errc::ExpectedLoop);
    if (isKw(Kw::While) || isKw(Kw::Until)) {
        if (kind != DoKind::Forever)
            fail(errc::ExpectedEndOfStatement);
        kind = isKw(Kw::While) ? DoKind::PostWhile : DoKind::PostUntil;
        advance();
        cond = parseExpression();
    }
    n->op = std::uint8_t(kind);
    n->kids.push_back(std::move(cond));
    n->kids.push_back(std::move(body));
    return n;
}

SyntaxPtr Parser::parseWhile()
{
    auto n = node(Syn::Do);
    advance();
    n->op = std::uint8_t(DoKind::PreWhile);
    n->kids.push_back(parseExpression());
    n->flag = true;  // While ... Wend: Exit Do does not apply to it
    n->kids.push_back(parseBlock());
    expectKw(Kw::Wend, errc::ExpectedWend);
    return n;
}

SyntaxPtr Parser::parseSelect()
{
    auto n = node(Syn::Select);
    advance();
    expectKw(Kw::Case, errc::ExpectedCase);
    n->kids.push_back(parseExpression());
    endStatement();
    skipSeparators();
    bool sawElse = false;
    while (isKw(Kw::Case)) {
        if (sawElse)
            fail(errc::ExpectedEnd);
        auto c = node(Syn::Case);
        advance();
        c->kids.push_back(nullptr);  // body, filled below
        if (isKw(Kw::Else)) {
            advance();
            c->flag = true;
            sawElse = true;
        } else {
            for (;;) {
                c->kids.push_back(parseCaseItem());
                if (tok().type != Tok::Comma)
                    break;
                advance();
            }
        }
        c->kids[0] = parseBlock();
        n->kids.push_back(std::move(c));
    }
    if (!isKw(Kw::End))
        fail(n->kids.size() == 1 ? errc::ExpectedCase : errc::ExpectedEnd);
    advance();
    expectKw(Kw::Select, errc::ExpectedSelect);
    return n;
}

// One item of a Case list: 1, 2 To 5, Is > 7.
SyntaxPtr Parser::parseCaseItem()
{
    auto item = node(Syn::CaseItem);
    if (isKw(Kw::Is)) {
        advance();
        std::optional<BinOp> op = comparisonOf(tok().type);
        if (!op)
            fail(errc::SyntaxError);
        advance();
        item->op = 2;
        item->op2 = std::uint8_t(*op);
        item->kids.push_back(parseBinary(7));
        return item;
    }
    item->kids.push_back(parseExpression());
    if (isKw(Kw::To)) {
        advance();
        item->op = 1;
        item->kids.push_back(parseExpression());
    }
    return item;
}

SyntaxPtr Parser::parseExit()
{
    auto n = node(Syn::Exit);
    advance();
    if (isKw(Kw::For)) {
        if (loopDepthFor_ == 0)
            fail(errc::InvalidExit);
        n->op = std::uint8_t(ExitKind::For);
    } else if (isKw(Kw::Do)) {
        if (loopDepthDo_ == 0)
            fail(errc::InvalidExit);
        n->op = std::uint8_t(ExitKind::Do);
    } else if (isKw(Kw::Sub)) {
        if (procKind_ != 1)
            fail(errc::InvalidExit);
        n->op = std::uint8_t(ExitKind::Sub);
    } else if (isKw(Kw::Function)) {
        if (procKind_ != 2)
            fail(errc::InvalidExit);
        n->op = std::uint8_t(ExitKind::Function);
    } else {
        fail(errc::InvalidExit);
    }
    advance();
    return n;
}

SyntaxPtr Parser::parseOnError()
{
    auto n = node(Syn::OnError);
    advance();
    if (!isWord("error"))
        fail(errc::SyntaxError);
    advance();
    if (isWord("resume")) {
        advance();
        expectKw(Kw::Next, errc::SyntaxError);
        n->flag = true;
    } else if (isWord("goto")) {
        advance();
        if (tok().type != Tok::Literal || !tok().literal.isInteger() || tok().literal.asInt() != 0)
            fail(errc::SyntaxError);
        advance();
    } else {
        fail(errc::SyntaxError);
    }
    return n;
}

SyntaxPtr Parser::parseWith()
{
    auto n = node(Syn::With);
    advance();
    n->kids.push_back(parseExpression());
    ++withDepth_;
    n->kids.push_back(parseBlock());
    --withDepth_;
    if (!isKw(Kw::End))
        fail(errc::ExpectedEnd);
    advance();
    expectKw(Kw::With, errc::ExpectedWith);
    return n;
}

SyntaxPtr Parser::parseCallKeyword()
{
    auto n = node(Syn::CallStmt);
    advance();
    if (tok().type != Tok::Name && tok().type != Tok::Dot)
        fail(errc::ExpectedIdentifier);
    SyntaxPtr chain = parsePostfix();
    if (chain->kind == Syn::Call) {
        n->kids.push_back(std::move(chain->kids[0]));
        for (std::size_t i = 1; i < chain->kids.size(); ++i)
            n->kids.push_back(std::move(chain->kids[i]));
    } else {
        n->kids.push_back(std::move(chain));
    }
    return n;
}

SyntaxPtr Parser::parseAssignOrCall(bool isSet)
{
    int line = tok().line;
    if (tok().type == Tok::Name && tok().kw != Kw::None)
        fail(errc::ExpectedIdentifier);
    if (tok().type == Tok::Dot && withDepth_ == 0)
        fail(errc::SyntaxError);
    SyntaxPtr chain = parsePostfix();
    if (tok().type == Tok::Eq) {
        advance();
        auto n = std::make_unique<SyntaxNode>(Syn::Assign, line);
        n->flag = isSet;
        n->kids.push_back(std::move(chain));
        n->kids.push_back(parseExpression());
        return n;
    }
    if (isSet)
        fail(errc::ExpectedEquals);
    auto n = std::make_unique<SyntaxNode>(Syn::CallStmt, line);
    if (atStatementEnd()) {
        callAlone(*n, std::move(chain), line);
        return n;
    }
    // Arguments without parentheses; "f (1), 2" starts its first argument
    // with the parenthesis the chain took as a call.
    if (chain->kind == Syn::Call) {
        pos_ = std::size_t(chain->tokenPos);
        SyntaxPtr callee = std::move(chain->kids[0]);
        chain = std::move(callee);
    }
    if (chain->kind == Syn::Literal || chain->kind == Syn::Paren)
        fail(errc::ExpectedStatement);
    n->kids.push_back(std::move(chain));
    parseBareArguments(*n);
    return n;
}

// "f", "obj.m" or "f (x)" as a whole statement.
void Parser::callAlone(SyntaxNode& n, SyntaxPtr chain, int line)
{
    if (chain->kind != Syn::Call) {
        n.kids.push_back(std::move(chain));
        return;
    }
    if (chain->kids.size() > 2)
        fail(errc::ParenthesesOnSubCall, line);
    n.kids.push_back(std::move(chain->kids[0]));
    if (chain->kids.size() < 2)
        return;
    // f (x) as a statement passes x by value.
    SyntaxPtr arg = std::move(chain->kids[1]);
    if (arg->kind != Syn::Paren && arg->kind != Syn::Missing) {
        auto p = std::make_unique<SyntaxNode>(Syn::Paren, arg->line);
        p->depth = arg->depth + 1;
        p->kids.push_back(std::move(arg));
        arg = std::move(p);
    }
    n.kids.push_back(std::move(arg));
}

// The arguments of a call statement written without parentheses, up to
// the end of the statement; a left-out one is Missing.
void Parser::parseBareArguments(SyntaxNode& call)
{
    for (;;) {
        if (tok().type == Tok::Comma) {
            call.kids.push_back(node(Syn::Missing));
            advance();
            if (atStatementEnd())
                call.kids.push_back(node(Syn::Missing));
            continue;
        }
        call.kids.push_back(parseExpression());
        if (tok().type == Tok::Comma) {
            advance();
            if (atStatementEnd())
                call.kids.push_back(node(Syn::Missing));
            continue;
        }
        if (!atStatementEnd())
            fail(errc::ExpectedEndOfStatement);
        return;
    }
}

void Parser::parseArguments(SyntaxNode& call, bool allowMissing)
{
    // tok() is the "(".
    call.tokenPos = int(pos_);
    advance();
    if (tok().type == Tok::RParen) {
        advance();
        return;
    }
    for (;;) {
        if (allowMissing && (tok().type == Tok::Comma || tok().type == Tok::RParen))
            call.kids.push_back(node(Syn::Missing));
        else
            call.kids.push_back(parseExpression());
        call.depth = std::max(call.depth, call.kids.back()->depth + 1);
        if (tok().type == Tok::Comma) {
            advance();
            continue;
        }
        expect(Tok::RParen, errc::ExpectedCloseParen);
        return;
    }
}

SyntaxPtr Parser::parseExpression()
{
    NestGuard g(*this);
    return parseBinary(0);
}

SyntaxPtr Parser::makeBinary(BinOp op, SyntaxPtr a, SyntaxPtr b, int line)
{
    auto n = std::make_unique<SyntaxNode>(Syn::Binary, line);
    n->op = std::uint8_t(op);
    n->depth = std::max(a->depth, b->depth) + 1;
    if (n->depth > kMaxDepth)
        fail(errc::OutOfStack, line);
    n->kids.push_back(std::move(a));
    n->kids.push_back(std::move(b));
    return n;
}

SyntaxPtr Parser::parseBinary(int level)
{
    if (level == 5)
        return parseNot();
    if (level == 12)
        return parseUnary();
    SyntaxPtr left = parseBinary(level + 1);
    for (;;) {
        const Token& t = tok();
        BinOp op;
        bool match = true;
        switch (level) {
        case 0: match = isKw(Kw::Imp); op = BinOp::Imp; break;
        case 1: match = isKw(Kw::Eqv); op = BinOp::Eqv; break;
        case 2: match = isKw(Kw::Xor); op = BinOp::Xor; break;
        case 3: match = isKw(Kw::Or); op = BinOp::Or; break;
        case 4: match = isKw(Kw::And); op = BinOp::And; break;
        case 6:
            if (std::optional<BinOp> c = comparisonOf(t.type)) {
                op = *c;
            } else {
                match = isKw(Kw::Is);
                op = BinOp::Is;
            }
            break;
        case 7: match = t.type == Tok::Amp; op = BinOp::Concat; break;
        case 8:
            match = t.type == Tok::Plus || t.type == Tok::Minus;
            op = t.type == Tok::Plus ? BinOp::Add : BinOp::Sub;
            break;
        case 9: match = isKw(Kw::Mod); op = BinOp::Mod; break;
        case 10: match = t.type == Tok::Backslash; op = BinOp::IntDiv; break;
        default:
            match = t.type == Tok::Star || t.type == Tok::Slash;
            op = t.type == Tok::Star ? BinOp::Mul : BinOp::Div;
            break;
        }
        if (!match)
            return left;
        int line = t.line;
        advance();
        SyntaxPtr right = parseBinary(level + 1);
        left = makeBinary(op, std::move(left), std::move(right), line);
    }
}

SyntaxPtr Parser::parseNot()
{
    if (!isKw(Kw::Not))
        return parseBinary(6);
    NestGuard g(*this);
    auto n = node(Syn::Unary);
    n->op = std::uint8_t(UnOp::Not);
    advance();
    n->kids.push_back(parseNot());
    n->depth = n->kids[0]->depth + 1;
    return n;
}

SyntaxPtr Parser::parseUnary()
{
    if (isKw(Kw::Not)) {
        // "1 + Not 0": Not as an operand.
        NestGuard g(*this);
        auto n = node(Syn::Unary);
        n->op = std::uint8_t(UnOp::Not);
        advance();
        n->kids.push_back(parseUnary());
        n->depth = n->kids[0]->depth + 1;
        return n;
    }
    if (tok().type != Tok::Minus && tok().type != Tok::Plus)
        return parsePower();
    NestGuard g(*this);
    auto n = node(Syn::Unary);
    n->op = std::uint8_t(tok().type == Tok::Minus ? UnOp::Neg : UnOp::Plus);
    advance();
    n->kids.push_back(parseUnary());
    n->depth = n->kids[0]->depth + 1;
    return n;
}

SyntaxPtr Parser::parsePower()
{
    SyntaxPtr left = parsePostfix();
    while (tok().type == Tok::Caret) {
        int line = tok().line;
        advance();
        // The exponent may carry its own sign: 2 ^ -1.
        SyntaxPtr right;
        if (tok().type == Tok::Minus || tok().type == Tok::Plus) {
            NestGuard g(*this);
            right = parseUnary();
        } else {
            right = parsePostfix();
        }
        left = makeBinary(BinOp::Pow, std::move(left), std::move(right), line);
    }
    return left;
}

SyntaxPtr Parser::parsePostfix()
{
    SyntaxPtr e = parsePrimary();
    for (;;) {
        if (tok().type == Tok::Dot && tok().glued && e->kind != Syn::Literal) {
            advance();
            if (tok().type != Tok::Name)
                fail(errc::ExpectedIdentifier);
            auto m = node(Syn::Member);
            m->name = tok().text;
            advance();
            m->depth = e->depth + 1;
            m->kids.push_back(std::move(e));
            e = std::move(m);
        } else if (tok().type == Tok::LParen &&
                   (e->kind == Syn::Name || e->kind == Syn::Member || e->kind == Syn::WithMember || e->kind == Syn::Call)) {
            auto c = node(Syn::Call);
            c->depth = e->depth + 1;
            c->kids.push_back(std::move(e));
            parseArguments(*c, true);
            e = std::move(c);
        } else {
            break;
        }
        if (e->depth > kMaxDepth)
            fail(errc::OutOfStack);
    }
    return e;
}

SyntaxPtr Parser::parsePrimary()
{
    const Token& t = tok();
    switch (t.type) {
    case Tok::Literal: {
        auto n = node(Syn::Literal);
        n->value = t.literal;
        advance();
        return n;
    }
    case Tok::Name: {
        auto n = node(Syn::Literal);
        switch (t.kw) {
        case Kw::None:
            n->kind = Syn::Name;
            n->name = t.text;
            break;
        case Kw::True: n->value = Value::boolean(true); break;
        case Kw::False: n->value = Value::boolean(false); break;
        case Kw::Empty: break;
        case Kw::Null: n->value = Value::null(); break;
        case Kw::Nothing: n->value = Value::nothing(); break;
        default: fail(errc::ExpectedExpression);
        }
        advance();
        return n;
    }
    case Tok::LParen: {
        auto n = node(Syn::Paren);
        advance();
        n->kids.push_back(parseExpression());
        n->depth = n->kids[0]->depth + 1;
        expect(Tok::RParen, errc::ExpectedCloseParen);
        return n;
    }
    case Tok::Dot: {
        if (withDepth_ == 0)
            fail(errc::SyntaxError);
        auto n = node(Syn::WithMember);
        advance();
        if (tok().type != Tok::Name)
            fail(errc::ExpectedIdentifier);
        n->name = tok().text;
        advance();
        return n;
    }
    default:
        fail(errc::ExpectedExpression);
    }
}

}  // namespace qor::script
