#pragma once

#include <string_view>
#include <vector>

#include "script/lexer.h"
#include "script/syntax.h"

namespace qor::script {

// Builds the syntax tree of a whole text; the first syntax error throws a
// ScriptError with its number and line, before anything has run.
class Parser {
public:
    explicit Parser(std::string_view source);
    Program parseProgram();
    // A single expression (for evaluating a text as a value).
    SyntaxPtr parseExpressionText();

    // Deepest nesting of blocks or expressions accepted; deeper text fails
    // with "out of stack space" instead of exhausting the real stack.
    static constexpr int kMaxNesting = 200;
    static constexpr int kMaxDepth = 1000;

private:
    const Token& tok() const { return tokens_[pos_]; }
    const Token& peek(int ahead = 1) const;
    bool isKw(Kw k) const { return tok().type == Tok::Name && tok().kw == k; }
    bool isWord(std::string_view w) const;  // a non-reserved word used as one (Step, Error...)
    bool atStatementEnd() const;
    void advance() { if (tokens_[pos_].type != Tok::End) ++pos_; }
    [[noreturn]] void fail(int number) const;
    [[noreturn]] void fail(int number, int line) const;
    void expectKw(Kw k, int error);
    void expect(Tok t, int error);
    std::string expectName();
    void endStatement();
    void skipSeparators();

    SyntaxPtr node(Syn k) const { return std::make_unique<SyntaxNode>(k, tok().line); }
    SyntaxPtr parseBlock(bool singleLine = false);
    SyntaxPtr parseStatement();
    SyntaxPtr parseVisibility();
    SyntaxPtr parseOption();
    SyntaxPtr parseErase();
    SyntaxPtr parseProcedure(bool isFunction);
    SyntaxPtr parseDim(bool redim);
    SyntaxPtr parseConst();
    SyntaxPtr parseIf();
    SyntaxPtr parseFor();
    SyntaxPtr parseDo();
    SyntaxPtr parseWhile();
    SyntaxPtr parseSelect();
    SyntaxPtr parseCaseItem();
    SyntaxPtr parseExit();
    SyntaxPtr parseOnError();
    SyntaxPtr parseWith();
    SyntaxPtr parseAssignOrCall(bool isSet);
    void callAlone(SyntaxNode& n, SyntaxPtr chain, int line);
    void parseBareArguments(SyntaxNode& call);
    SyntaxPtr parseCallKeyword();
    void parseArguments(SyntaxNode& call, bool allowMissing);

    SyntaxPtr parseExpression();
    SyntaxPtr parseBinary(int level);
    SyntaxPtr parseNot();
    SyntaxPtr parseUnary();
    SyntaxPtr parsePower();
    SyntaxPtr parsePostfix();
    SyntaxPtr parsePrimary();
    SyntaxPtr makeBinary(BinOp op, SyntaxPtr a, SyntaxPtr b, int line);

    struct NestGuard {
        Parser& p;
        explicit NestGuard(Parser& parser);
        ~NestGuard() { --p.nesting_; }
    };

    std::vector<Token> tokens_;
    std::size_t pos_ = 0;
    int nesting_ = 0;
    int loopDepthFor_ = 0;
    int loopDepthDo_ = 0;
    int procKind_ = 0;  // 0 top level, 1 Sub, 2 Function
    int withDepth_ = 0;
    int singleLineIf_ = 0;
    bool optionExplicit_ = false;
};

}  // namespace qor::script
