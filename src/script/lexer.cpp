#include "script/lexer.h"

#include <cmath>
#include <cstdlib>

#include "script/script_error.h"
#include "script/script_text.h"

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

Kw keywordOf(std::string_view word)
{
    if (word.size() < 2 || word.size() > 8)
        return Kw::None;
    for (const auto& k : kKeywords)
        if (equalsNoCaseAscii(word, k.text))
            return k.kw;
    return Kw::None;
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isNameChar(char c) { return isLetter(c) || isDigit(c) || c == '_'; }

[[noreturn]] void fail(int number, int line)
{
    ScriptError e = makeScriptError(number);
    e.line = line;
    throw e;
}

// ".5" is a number, but "a.b" and "f(1).x" are member accesses.
bool memberDotFollows(const std::vector<Token>& out, bool blankBefore)
{
    if (out.empty() || blankBefore)
        return false;
    Tok t = out.back().type;
    return t == Tok::Name || t == Tok::RParen;
}

Value integerLiteral(double d)
{
    if (d <= 32767)
        return Value::integer(std::int32_t(d));
    if (d <= 2147483647.0)
        return Value::longValue(std::int32_t(d));
    return Value::dbl(d);
}

}  // namespace

std::vector<Token> tokenize(std::string_view src)
{
    std::vector<Token> out;
    int line = 1;
    std::size_t i = 0, n = src.size();
    bool blankBefore = true;

    auto push = [&](Tok t) -> Token& {
        Token tok;
        tok.type = t;
        tok.line = line;
        tok.glued = !blankBefore;
        out.push_back(std::move(tok));
        blankBefore = false;
        return out.back();
    };
    auto newline = [&]() {
        if (!out.empty() && out.back().type != Tok::Newline)
            push(Tok::Newline);
        ++line;
        blankBefore = true;
    };
    auto skipToLineEnd = [&]() {
        while (i < n && src[i] != '\r' && src[i] != '\n')
            ++i;
    };

    while (i < n) {
        char c = src[i];
        if (c == ' ' || c == '\t' || c == '\f' || c == '\v' || c == '\0') {
            ++i;
            blankBefore = true;
            continue;
        }
        if (c == '\r' || c == '\n') {
            if (c == '\r' && i + 1 < n && src[i + 1] == '\n')
                ++i;
            ++i;
            newline();
            continue;
        }
        if (c == '\'') {
            skipToLineEnd();
            continue;
        }
        // " _" at the end of a line joins the next line to this one.
        if (c == '_' && (i + 1 >= n || !isNameChar(src[i + 1]))) {
            std::size_t j = i + 1;
            while (j < n && (src[j] == ' ' || src[j] == '\t'))
                ++j;
            if (j >= n || src[j] == '\r' || src[j] == '\n') {
                if (j < n) {
                    if (src[j] == '\r' && j + 1 < n && src[j + 1] == '\n')
                        ++j;
                    ++j;
                }
                i = j;
                ++line;
                blankBefore = true;
                continue;
            }
            fail(errc::InvalidCharacter, line);
        }
        if (isLetter(c)) {
            std::size_t start = i;
            while (i < n && isNameChar(src[i]))
                ++i;
            std::string_view word = src.substr(start, i - start);
            if (word.size() > 255)
                fail(errc::IdentifierTooLong, line);
            if (equalsNoCaseAscii(word, "rem")) {
                skipToLineEnd();
                continue;
            }
            Token& t = push(Tok::Name);
            t.text = std::string(word);
            t.kw = keywordOf(word);
            continue;
        }
        if (c == '[') {
            std::size_t start = ++i;
            while (i < n && src[i] != ']' && src[i] != '\r' && src[i] != '\n')
                ++i;
            if (i >= n || src[i] != ']')
                fail(errc::ExpectedBracket, line);
            Token& t = push(Tok::Name);
            t.text = std::string(src.substr(start, i - start));
            ++i;
            continue;
        }
        if (isDigit(c) || (c == '.' && i + 1 < n && isDigit(src[i + 1]) && !memberDotFollows(out, blankBefore))) {
            std::size_t start = i;
            bool isFloat = false;
            while (i < n && isDigit(src[i]))
                ++i;
            if (i < n && src[i] == '.') {
                isFloat = true;
                ++i;
                while (i < n && isDigit(src[i]))
                    ++i;
            }
            if (i < n && (src[i] == 'e' || src[i] == 'E')) {
                std::size_t j = i + 1;
                if (j < n && (src[j] == '+' || src[j] == '-'))
                    ++j;
                if (j < n && isDigit(src[j])) {
                    isFloat = true;
                    i = j;
                    while (i < n && isDigit(src[i]))
                        ++i;
                } else {
                    fail(errc::InvalidNumber, line);
                }
            }
            if (i < n && isLetter(src[i]))
                fail(errc::ExpectedEndOfStatement, line);
            std::string digits(src.substr(start, i - start));
            double d = std::strtod(digits.c_str(), nullptr);
            if (!std::isfinite(d))
                fail(errc::InvalidNumber, line);
            Token& t = push(Tok::Literal);
            t.literal = isFloat ? Value::dbl(d) : integerLiteral(d);
            if (i < n && src[i] == '#')
                ++i;  // type suffix of a Double literal
            continue;
        }
        if (c == '&' && i + 1 < n && (src[i + 1] == 'h' || src[i + 1] == 'H' || src[i + 1] == 'o' || src[i + 1] == 'O' || isDigit(src[i + 1]))) {
            char k = src[i + 1];
            int base = (k == 'h' || k == 'H') ? 16 : 8;
            std::size_t j = isDigit(k) ? i + 1 : i + 2;
            std::uint64_t v = 0;
            bool any = false;
            while (j < n) {
                char d = src[j];
                int dv = isDigit(d) ? d - '0' : (d >= 'a' && d <= 'f') ? d - 'a' + 10 : (d >= 'A' && d <= 'F') ? d - 'A' + 10 : 99;
                if (dv >= base)
                    break;
                v = v * base + dv;
                if (v > 0xFFFFFFFFull)
                    fail(errc::InvalidNumber, line);
                any = true;
                ++j;
            }
            if (any) {
                bool longSuffix = j < n && src[j] == '&';
                if (longSuffix)
                    ++j;
                i = j;
                Token& t = push(Tok::Literal);
                if (v <= 0xFFFF && !longSuffix)
                    t.literal = Value::integer(std::int32_t(std::int16_t(std::uint16_t(v))));
                else
                    t.literal = Value::longValue(std::int32_t(std::uint32_t(v)));
                continue;
            }
            // "&h" without a hex digit after it: the & operator before a name.
        }
        if (c == '"') {
            std::string text;
            ++i;
            for (;;) {
                if (i >= n || src[i] == '\r' || src[i] == '\n')
                    fail(errc::UnterminatedString, line);
                if (src[i] == '"') {
                    if (i + 1 < n && src[i + 1] == '"') {
                        text += '"';
                        i += 2;
                        continue;
                    }
                    ++i;
                    break;
                }
                text += src[i++];
            }
            Token& t = push(Tok::Literal);
            t.literal = Value::string(text);
            continue;
        }
        ++i;
        switch (c) {
        case ':': push(Tok::Colon); break;
        case '.': push(Tok::Dot); break;
        case ',': push(Tok::Comma); break;
        case '(': push(Tok::LParen); break;
        case ')': push(Tok::RParen); break;
        case '+': push(Tok::Plus); break;
        case '-': push(Tok::Minus); break;
        case '*': push(Tok::Star); break;
        case '/': push(Tok::Slash); break;
        case '\\': push(Tok::Backslash); break;
        case '^': push(Tok::Caret); break;
        case '&': push(Tok::Amp); break;
        case '=': push(Tok::Eq); break;
        case '<':
            if (i < n && src[i] == '>') {
                ++i;
                push(Tok::Ne);
            } else if (i < n && src[i] == '=') {
                ++i;
                push(Tok::Le);
            } else {
                push(Tok::Lt);
            }
            break;
        case '>':
            if (i < n && src[i] == '=') {
                ++i;
                push(Tok::Ge);
            } else {
                push(Tok::Gt);
            }
            break;
        default:
            fail(errc::InvalidCharacter, line);
        }
    }
    if (!out.empty() && out.back().type != Tok::Newline)
        push(Tok::Newline);
    Token end;
    end.type = Tok::End;
    end.line = line;
    out.push_back(std::move(end));
    return out;
}

}  // namespace qor::script
