// Tokens, line numbers and the text helpers under the scanner.
#include <gtest/gtest.h>

#include "script/lexer.h"
#include "script/script_error.h"
#include "text/cp1252.h"
#include "text/text_helpers.h"
#include "text/utf8.h"

namespace qor::script {
namespace {

std::string kinds(std::string_view source)
{
    std::string out;
    for (const Token& t : tokenize(source)) {
        switch (t.type) {
        case Tok::End: out += "$"; break;
        case Tok::Newline: out += ";"; break;
        case Tok::Colon: out += ":"; break;
        case Tok::Name: out += t.kw == Kw::None ? "n" : "k"; break;
        case Tok::Literal: out += t.literal.isString() ? "s" : "#"; break;
        case Tok::Dot: out += "."; break;
        case Tok::Comma: out += ","; break;
        case Tok::LParen: out += "("; break;
        case Tok::RParen: out += ")"; break;
        case Tok::Amp: out += "&"; break;
        case Tok::Lt: out += "<"; break;
        case Tok::Gt: out += ">"; break;
        case Tok::Le: out += "l"; break;
        case Tok::Ge: out += "g"; break;
        case Tok::Ne: out += "!"; break;
        default: out += "o"; break;
        }
    }
    return out;
}

struct Scan {
    const char* source;
    const char* tokens;
};

class Tokens : public ::testing::TestWithParam<Scan> {};

TEST_P(Tokens, SplitTheTextAsTheLanguageDoes)
{
    EXPECT_EQ(kinds(GetParam().source), GetParam().tokens) << GetParam().source;
}

INSTANTIATE_TEST_SUITE_P(Texts, Tokens, ::testing::Values(
    Scan{"x = 1", "no#;$"},
    Scan{"If a Then b Else c", "knknkn;$"},
    Scan{"exe_f.Run(\"x\")", "n.n(s);$"},
    Scan{"a &h", "n&n;$"},              // "&h" without hex digits: concatenation with h
    Scan{"a = &hFF&", "no#;$"},         // hex literal with the Long suffix
    Scan{"a = .5 + b.c", "no#on.n;$"},
    Scan{"f(1).x", "n(#).n;$"},
    Scan{"x = 1 ' comment", "no#;$"},
    Scan{"Rem whole line\r\nx", "n;$"},
    Scan{"a _\r\n  = 1", "no#;$"},
    Scan{"[my var] = 2", "no#;$"},
    Scan{"a: b", "n:n;$"},
    Scan{"a<>b<=c>=d<e>f = g", "n!nlngn<n>non;$"},  // two-character comparisons before their first character
    Scan{"\r\n\r\n", "$"},
    Scan{"x = \"a\"\"b\"", "nos;$"}
));

TEST(Tokens, CountLinesWhateverTheLineEnds)
{
    auto tokens = tokenize("a\r\nb\nc\rd _\r\n e\r\nf");
    std::vector<int> lines;
    for (const auto& t : tokens)
        if (t.type == Tok::Name)
            lines.push_back(t.line);
    EXPECT_EQ(lines, (std::vector<int>{1, 2, 3, 4, 5, 6}));
}

TEST(Tokens, KeepLiteralValuesAndTypes)
{
    auto lit = [](const char* s) { return tokenize(s)[0].literal; };
    EXPECT_EQ(lit("32767").type(), Type::Integer);
    EXPECT_EQ(lit("32768").type(), Type::Long);
    EXPECT_EQ(lit("2147483648").type(), Type::Double);
    EXPECT_EQ(lit("&H8000").asInt(), -32768);
    EXPECT_EQ(lit("&HFFFFFFFF").asInt(), -1);
    EXPECT_EQ(lit("&O777").asInt(), 511);
    EXPECT_EQ(lit("1.5E2").asDouble(), 150.0);
    EXPECT_EQ(lit("\"a\"\"b\"").asStringView(), "a\"b");
    EXPECT_TRUE(tokenize("x.End")[2].kw == Kw::End);  // a keyword as a member name stays a name token
}

struct BadText {
    const char* source;
    int error;
    int line;
};

class ScanErrors : public ::testing::TestWithParam<BadText> {};

TEST_P(ScanErrors, CarryNumberAndLine)
{
    try {
        tokenize(GetParam().source);
        FAIL() << "no error";
    } catch (const ScriptError& e) {
        EXPECT_EQ(e.number, GetParam().error);
        EXPECT_EQ(e.line, GetParam().line);
    }
}

INSTANTIATE_TEST_SUITE_P(Texts, ScanErrors, ::testing::Values(
    BadText{"x = \"abc", errc::UnterminatedString, 1},
    BadText{"a\r\nb\r\nx = \"abc\r\n\"", errc::UnterminatedString, 3},
    BadText{"x = 1 _ 2", errc::InvalidCharacter, 1},
    BadText{"x = #1/1/2000#", errc::InvalidCharacter, 1},
    BadText{"x = &HFFFFFFFFF", errc::InvalidNumber, 1},
    BadText{"x = 1e", errc::InvalidNumber, 1},
    BadText{"x = [abc", errc::ExpectedBracket, 1},
    BadText{"\r\n\r\ny = 12abc", errc::ExpectedEndOfStatement, 3}
));

TEST(Text, Windows1252MapsBothWays)
{
    struct {
        unsigned char byte;
        char32_t code;
    } cases[] = {{'A', U'A'}, {0x80, U'€'}, {0x8C, U'Œ'}, {0x92, U'’'}, {0x9F, U'Ÿ'}, {0xE9, U'é'}, {0x81, 0x81}};
    for (const auto& c : cases) {
        EXPECT_EQ(cp1252CodePoint(c.byte), c.code);
        EXPECT_EQ(cp1252ByteOf(c.code), c.byte);
    }
    EXPECT_EQ(cp1252ByteOf(U'€' + 1), -1);
}

TEST(Text, CaseOfLatinLetters)
{
    EXPECT_EQ(toUpperText("élève œuvre ÿ x"), "ÉLÈVE ŒUVRE Ÿ X");
    EXPECT_EQ(toLowerText("ÉCOLE À ÇA"), "école à ça");
    EXPECT_EQ(toUpperText("×÷"), "×÷");  // not letters
    EXPECT_EQ(compareNoCase("Été", "éTÉ"), 0);
}

TEST(Text, MalformedBytesCountAsOneCharacterEach)
{
    std::string bad = "a\xC3(\xE9z";
    EXPECT_EQ(utf8Length(bad), 5u);
    EXPECT_EQ(byteOffsetOfChar(bad, 3), 3u);
    EXPECT_EQ(toUpperText(bad), "A\xC3(\xE9Z");
    EXPECT_EQ(utf8Length("été"), 3u);
    EXPECT_EQ(byteOffsetOfChar("été", 2), 3u);
}

}  // namespace
}  // namespace qor::script
