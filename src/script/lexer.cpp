#include "script/lexer.h"

#include <cmath>
#include <cstdlib>

#include "script/operations.h"
#include "script/script_error.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {

namespace {

struct Keyword {
    const char* text;
    Kw kw;
};

constexpr Keyword kKeywords[] = {
    {"and", Kw::And}, {"byref", Kw::ByRef}, {"byval", Kw::ByVal}, {"call", Kw::Call}, {"case", Kw::Case},
    {"class", Kw::Class}, {"const", Kw::Const}, {"dim", Kw::Dim}, {"do", Kw::Do}, {"each", Kw::Each},
    {"else", Kw::Else}, {"elseif", Kw::ElseIf}, {"empty", Kw::Empty}, {"end", Kw::End}, {"eqv", Kw::Eqv},
    {"erase", Kw::Erase}, {"exit", Kw::Exit}, {"false", Kw::False}, {"for", Kw::For},
    {"function", Kw::Function}, {"if", Kw::If}, {"imp", Kw::Imp}, {"in", Kw::In}, {"is", Kw::Is},
    {"let", Kw::Let}, {"loop", Kw::Loop}, {"mod", Kw::Mod}, {"next", Kw::Next}, {"not", Kw::Not},
    {"nothing", Kw::Nothing}, {"null", Kw::Null}, {"on", Kw::On}, {"option", Kw::Option}, {"or", Kw::Or},
    {"private", Kw::Private}, {"public", Kw::Public}, {"redim", Kw::ReDim}, {"select", Kw::Select},
    {"set", Kw::Set}, {"sub", Kw::Sub}, {"then", Kw::Then}, {"to", Kw::To}, {"true", Kw::True},
    {"until", Kw::Until}, {"wend", Kw::Wend}, {"while", Kw::While}, {"with", Kw::With}, {"xor", Kw::Xor},
};

// Two-character operators come before their one-character prefixes.
struct Operator {
    std::string_view text;
    Tok tok;
};

constexpr Operator kOperators[] = {
    {"<>", Tok::Ne}, {"<=", Tok::Le}, {">=", Tok::Ge}, {"<", Tok::Lt}, {">", Tok::Gt}, {"=", Tok::Eq},
    {":", Tok::Colon}, {".", Tok::Dot}, {",", Tok::Comma}, {"(", Tok::LParen}, {")", Tok::RParen},
    {"+", Tok::Plus}, {"-", Tok::Minus}, {"*", Tok::Star}, {"/", Tok::Slash}, {"\\", Tok::Backslash},
    {"^", Tok::Caret}, {"&", Tok::Amp},
};

Kw keywordOf(std::string_view word)
{
    if (word.size() < 2 || word.size() > 8)
        return Kw::None;
    for (const auto& k : kKeywords)
        if (equalsNoCaseAscii(word, k.text))
            return k.kw;
    return Kw::None;
}

bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\f' || c == '\v' || c == '\0'; }
bool isLineEnd(char c) { return c == '\r' || c == '\n'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameChar(char c) { return isLetter(c) || isDigit(c) || c == '_'; }

[[noreturn]] void fail(int number, int line)
{
    ScriptError e = makeScriptError(number);
    e.line = line;
    throw e;
}

Value integerLiteral(double d)
{
    if (d <= 32767)
        return Value::integer(std::int32_t(d));
    if (d <= 2147483647.0)
        return Value::longValue(std::int32_t(d));
    return Value::dbl(d);
}

// One pass over the text. scanToken looks at the next character and hands
// over to the function for that kind of token; each one consumes its
// token (or what disappears: blanks, comments, line continuations).
class Scanner {
public:
    explicit Scanner(std::string_view src) : src_(src) {}
    std::vector<Token> run();

private:
    // The character at k, or '\0' past the end (no test below looks for '\0').
    char at(std::size_t k) const { return k < src_.size() ? src_[k] : '\0'; }
    Token& push(Tok t);
    void newline();
    std::size_t afterLineEnd(std::size_t k) const;
    bool memberDotFollows() const;
    bool startsNumber() const;

    void scanToken();
    void scanLineEnd();
    void scanComment();
    void scanContinuation();
    void scanName();
    void scanBracketName();
    void scanNumber();
    void skipDigits();
    void scanExponent();
    bool scanRadixNumber();
    void scanString();
    void scanOperator();

    std::string_view src_;
    std::size_t i_ = 0;
    int line_ = 1;
    bool blankBefore_ = true;
    std::vector<Token> out_;
};

std::vector<Token> Scanner::run()
{
    while (i_ < src_.size())
        scanToken();
    if (!out_.empty() && out_.back().type != Tok::Newline)
        push(Tok::Newline);
    Token end;
    end.type = Tok::End;
    end.line = line_;
    out_.push_back(std::move(end));
    return std::move(out_);
}

Token& Scanner::push(Tok t)
{
    Token& tok = out_.emplace_back();
    tok.type = t;
    tok.line = line_;
    tok.glued = !blankBefore_;
    blankBefore_ = false;
    return tok;
}

void Scanner::newline()
{
    if (!out_.empty() && out_.back().type != Tok::Newline)
        push(Tok::Newline);
    ++line_;
    blankBefore_ = true;
}

// Past the line end at k: CR LF, LF or CR.
std::size_t Scanner::afterLineEnd(std::size_t k) const { return src_[k] == '\r' && at(k + 1) == '\n' ? k + 2 : k + 1; }

// ".5" is a number, but "a.b" and "f(1).x" are member accesses.
bool Scanner::memberDotFollows() const
{
    if (out_.empty() || blankBefore_)
        return false;
    Tok t = out_.back().type;
    return t == Tok::Name || t == Tok::RParen;
}

bool Scanner::startsNumber() const
{
    char c = src_[i_];
    return isDigit(c) || (c == '.' && isDigit(at(i_ + 1)) && !memberDotFollows());
}

void Scanner::scanToken()
{
    char c = src_[i_];
    if (isBlank(c)) {
        ++i_;
        blankBefore_ = true;
        return;
    }
    if (isLineEnd(c))
        return scanLineEnd();
    if (c == '\'')
        return scanComment();
    if (c == '_' && !isNameChar(at(i_ + 1)))
        return scanContinuation();
    if (isLetter(c))
        return scanName();
    if (c == '[')
        return scanBracketName();
    if (startsNumber())
        return scanNumber();
    if (c == '&' && scanRadixNumber())
        return;
    if (c == '"')
        return scanString();
    scanOperator();
}

void Scanner::scanLineEnd()
{
    i_ = afterLineEnd(i_);
    newline();
}

// A comment runs to the end of the line, which still ends the statement.
void Scanner::scanComment()
{
    while (i_ < src_.size() && !isLineEnd(src_[i_]))
        ++i_;
}

// " _" at the end of a line joins the next line to this one.
void Scanner::scanContinuation()
{
    std::size_t j = i_ + 1;
    while (j < src_.size() && (src_[j] == ' ' || src_[j] == '\t'))
        ++j;
    if (j < src_.size() && !isLineEnd(src_[j]))
        fail(errc::InvalidCharacter, line_);
    i_ = j < src_.size() ? afterLineEnd(j) : j;
    ++line_;
    blankBefore_ = true;
}

// An identifier or a keyword; Rem starts a comment.
void Scanner::scanName()
{
    std::size_t start = i_;
    while (i_ < src_.size() && isNameChar(src_[i_]))
        ++i_;
    std::string_view word = src_.substr(start, i_ - start);
    if (word.size() > 255)
        fail(errc::IdentifierTooLong, line_);
    if (equalsNoCaseAscii(word, "rem")) {
        scanComment();
        return;
    }
    Token& t = push(Tok::Name);
    t.text = std::string(word);
    t.kw = keywordOf(word);
}

// [any name]: an identifier with characters a plain one cannot hold.
void Scanner::scanBracketName()
{
    std::size_t start = ++i_;
    while (i_ < src_.size() && src_[i_] != ']' && !isLineEnd(src_[i_]))
        ++i_;
    if (at(i_) != ']')
        fail(errc::ExpectedBracket, line_);
    Token& t = push(Tok::Name);
    t.text = std::string(src_.substr(start, i_ - start));
    ++i_;
}

// 12, 1.5, .5, 1E3, 2.5e-2, and 1# (the Double suffix).
void Scanner::scanNumber()
{
    std::size_t start = i_;
    bool isFloat = false;
    skipDigits();
    if (at(i_) == '.') {
        isFloat = true;
        ++i_;
        skipDigits();
    }
    if (at(i_) == 'e' || at(i_) == 'E') {
        isFloat = true;
        scanExponent();
    }
    if (isLetter(at(i_)))
        fail(errc::ExpectedEndOfStatement, line_);
    std::string digits(src_.substr(start, i_ - start));
    double d = std::strtod(digits.c_str(), nullptr);
    if (!std::isfinite(d))
        fail(errc::InvalidNumber, line_);
    Token& t = push(Tok::Literal);
    t.literal = isFloat ? Value::dbl(d) : integerLiteral(d);
    if (at(i_) == '#')
        ++i_;
}

void Scanner::skipDigits()
{
    while (isDigit(at(i_)))
        ++i_;
}

void Scanner::scanExponent()
{
    std::size_t j = i_ + 1;
    if (at(j) == '+' || at(j) == '-')
        ++j;
    if (!isDigit(at(j)))
        fail(errc::InvalidNumber, line_);
    i_ = j;
    skipDigits();
}

// &HFF, &O17 or &17 (octal), with & after it for a Long. False when no
// digit of the base follows: "&h" is then the & operator before a name.
bool Scanner::scanRadixNumber()
{
    char k = at(i_ + 1);
    bool hex = k == 'h' || k == 'H';
    if (!hex && k != 'o' && k != 'O' && !isDigit(k))
        return false;
    int base = hex ? 16 : 8;
    std::size_t first = isDigit(k) ? i_ + 1 : i_ + 2, j = first;
    std::uint64_t v = 0;
    for (; j < src_.size() && digitValue(src_[j]) < base; ++j) {
        v = v * std::uint64_t(base) + std::uint64_t(digitValue(src_[j]));
        if (v > 0xFFFFFFFFull)
            fail(errc::InvalidNumber, line_);
    }
    if (j == first)
        return false;
    bool longSuffix = at(j) == '&';
    i_ = longSuffix ? j + 1 : j;
    Token& t = push(Tok::Literal);
    if (v <= 0xFFFF && !longSuffix)
        t.literal = Value::integer(std::int32_t(std::int16_t(std::uint16_t(v))));
    else
        t.literal = Value::longValue(std::int32_t(std::uint32_t(v)));
    return true;
}

// "text", with "" for a quote inside; it cannot run past the line.
void Scanner::scanString()
{
    std::string text;
    ++i_;
    for (;;) {
        if (i_ >= src_.size() || isLineEnd(src_[i_]))
            fail(errc::UnterminatedString, line_);
        if (src_[i_] == '"') {
            if (at(i_ + 1) != '"')
                break;
            ++i_;
        }
        text += src_[i_++];
    }
    ++i_;
    Token& t = push(Tok::Literal);
    t.literal = Value::string(text);
}

void Scanner::scanOperator()
{
    std::string_view rest = src_.substr(i_);
    for (const auto& op : kOperators) {
        if (rest.starts_with(op.text)) {
            i_ += op.text.size();
            push(op.tok);
            return;
        }
    }
    fail(errc::InvalidCharacter, line_);
}

}  // namespace

std::vector<Token> tokenize(std::string_view src) { return Scanner(src).run(); }

}  // namespace qor::script
