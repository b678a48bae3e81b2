#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "script/value.h"

namespace qor::script {

enum class Tok : std::uint8_t {
    End,        // end of the text
    Newline,    // end of a line (statements end here)
    Colon,      // ':' statement separator
    Name,       // identifier (keywords are Name tokens with a keyword)
    Literal,    // number or string
    Dot,        // '.' member access (also the leading dot inside With)
    Comma,
    LParen,
    RParen,
    Plus, Minus, Star, Slash, Backslash, Caret, Amp,
    Eq, Ne, Lt, Le, Gt, Ge,
};

// Reserved words of the language; None for a plain identifier.
enum class Kw : std::uint8_t {
    None, And, ByRef, ByVal, Call, Case, Class, Const, Dim, Do, Each, Else, ElseIf, Empty, End, Eqv, Erase, Exit,
    False, For, Function, If, Imp, In, Is, Let, Loop, Mod, Next, Not, Nothing, Null, On, Option, Or, Private,
    Public, ReDim, Select, Set, Sub, Then, To, True, Until, Wend, While, With, Xor,
};

struct Token {
    Tok type = Tok::End;
    Kw kw = Kw::None;
    // The token directly follows the previous one, without a blank: tells
    // "a.b" (member) from "a .b" (With member) and "f(x)" from "f (x)".
    bool glued = false;
    int line = 1;
    std::string text;  // identifier as written, or string literal contents
    Value literal;     // value of a Literal token
};

// Splits a script into tokens. Comments, blanks and line continuations
// disappear; an unterminated string or an invalid character throws a
// ScriptError with its line.
std::vector<Token> tokenize(std::string_view source);

}  // namespace qor::script
