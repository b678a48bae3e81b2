#include <gtest/gtest.h>

#include <string>

#include "core/scripting/script_formatter.h"

namespace qor {
namespace {

struct Rewrite {
    std::string typed;
    std::string formatted;
};

void expectFormatted(std::initializer_list<Rewrite> cases)
{
    for (const auto& c : cases)
        EXPECT_EQ(formattedScript(c.typed), c.formatted) << c.typed;
}

TEST(ScriptFormatter, RewritesEachLine)
{
    expectFormatted({
        {"if a=b then msgbox fenetre.caption", "if a = b then MsgBox fenetre.Caption"},
        // Each operator alone, looking at the unchanged line.
        {"x=-1", "x =  - 1"},
        {"a+b-c*d/e\\f&g<h>i", "a + b - c * d / e \\ f & g < h > i"},
        {"a = b", "a = b"},
        {"a =b", "a  = b"},
        // First and last characters are never padded.
        {"=a", "=a"},
        {"a=", "a="},
        // "<>", "<=" and ">=" come back together.
        {"if a<>b or c<=d or e>=f then", "if a <> b or c <= d or e >= f then"},
        {"if a <> b then", "if a  <>  b then"},
        // Strings and comments are copied; the apostrophe starts a comment
        // even inside a string.
        {"x=\"a=b\"", "x = \"a=b\""},
        {"x = \"a\"\"b\"=c", "x = \"a\"\"b\" = c"},
        {"' a=b", "' a=b"},
        {"s=\"l'x\"&a=b", "s = \"l'x\"&a=b"},
        {"a=b ' c=d", "a = b ' c=d"},
        // Upper case after a dot, accented letters too.
        {"a.b.c=d", "a.B.C = d"},
        {"Texte1.texte = fenetre.état", "Texte1.Texte = fenetre.État"},
        {"\"a.b\".c", "\"a.b\".C"},
        // Trimmed at both ends, spaces only.
        {"   x   ", "x"},
        {"\tx\t", "\tx\t"},
        {"a\t=b", "a\t = b"},
        // The letter-case corrections reach strings, comments and longer words.
        {"dim dimension", "Dim Dimension"},
        {"' msgbox a=b", "' MsgBox a=b"},
        {"x = \"inputbox msgbox\"", "x = \"InputBox MsgBox\""},
        {"set o = createobject(\"x\")", "set o = CreateObject(\"x\")"},
        {"[lect]:\\[chemin][Joindre]", "[LECT]: \\ [CHEMIN][JOINDRE]"},
        {"x = inoutbox(\"?\")", "x = InputBox(\"?\")"},
        {"if a then b endif", "if a then b End If"},
        {"ENDIFENDIF", "End IfEnd If"},
    });
}

TEST(ScriptFormatter, LinesAreBrokenAtCrLfOnly)
{
    expectFormatted({
        {"a=b\r\n  c=d  \r\n", "a = b\r\nc = d\r\n"},
        {"\r\n\r\n", "\r\n\r\n"},
        // A lone LF or CR is one more character of its line.
        {"a=b\nc=d", "a = b\nc = d"},
        {"a=\rb", "a = \rb"},
        {"x \r\n", "x\r\n"},
        {"", ""},
    });
}

TEST(ScriptFormatter, BytesThatAreNoTextPassThrough)
{
    expectFormatted({
        {std::string("a\0=b", 4), std::string("a\0 = b", 6)},
        {"x.\xff=1", "x.\xff = 1"},
        {"\xc3=\xa9", "\xc3 = \xa9"},
        {"o.\xc3", "o.\xc3"},
        {"o.\xe2\x82", "o.\xe2\x82"},
        {"\"unbalanced = a.b", "\"unbalanced = a.b"},
    });
}

TEST(ScriptFormatter, CaretMovesByTheChangeOfLengthPlusTwo)
{
    struct Case {
        std::string typed;
        std::size_t caret;
        std::string formatted;
        std::size_t caretAfter;
    } cases[] = {
        // Enter at the end: the caret would pass the end and stays there.
        {"a=b\r\n", 5, "a = b\r\n", 7},
        // Enter inside the text: two characters into the next line.
        {"a=b\r\nxyz", 5, "a = b\r\nxyz", 9},
        // Characters, not bytes: "é" is one, CR LF two.
        {"é=b\r\nxyz", 5, "é = b\r\nxyz", 9},
        // Shrinking before a caret at 0 would put it before the text.
        {"   x", 0, "x", 0},
        {"a<>b\r\n", 6, "a <> b\r\n", 8},
        // A caret beyond the text counts as its end.
        {"a=b", 99, "a = b", 5},
    };
    for (const auto& c : cases) {
        const auto result = formatScript(c.typed, c.caret);
        ASSERT_TRUE(result) << c.typed;
        EXPECT_EQ(*result, (FormattedScript{c.formatted, c.caretAfter})) << c.typed;
    }
}

TEST(ScriptFormatter, LeavesTooLongOrTidyTextsAlone)
{
    EXPECT_FALSE(formatScript("a = b\r\nMsgBox x", 3));
    EXPECT_FALSE(formatScript("", 0));

    // 50 000 characters are formatted, one more is too many; "é" is one
    // character though it takes two bytes.
    const std::string tail = "a=b";
    const std::string fits = std::string(kMaxFormattedLength - tail.size(), 'x') + tail;
    EXPECT_TRUE(formatScript(fits, 0));
    EXPECT_FALSE(formatScript("x" + fits, 0));
    std::string wide;
    for (std::size_t i = 0; i < kMaxFormattedLength - tail.size(); ++i)
        wide += "é";
    EXPECT_TRUE(formatScript(wide + tail, 0));
    EXPECT_FALSE(formatScript(wide + "é" + tail, 0));
}

TEST(ScriptFormatter, OneLineOfAHundredThousandCharacters)
{
    std::string line;
    for (int i = 0; i < 25000; ++i)
        line += "a=b;";
    const std::string formatted = formattedScript(line);
    EXPECT_EQ(formatted.size(), line.size() + 2 * 25000);
    EXPECT_EQ(formatted.substr(0, 12), "a = b;a = b;");
    // Too long for the editor's formatter.
    EXPECT_FALSE(formatScript(line, line.size()));
}

}  // namespace
}  // namespace qor
