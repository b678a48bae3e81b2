// Snippets of the language with what they must show (the MsgBox prompts,
// joined by "|") and the error they must stop with, if any.
#include <gtest/gtest.h>

#include "fake_script_host.h"

namespace qor::script::test {
namespace {

struct Case {
    const char* code;
    const char* output;
    int error = 0;
    int line = 0;
};

void PrintTo(const Case& c, std::ostream* os) { *os << c.code; }

class Conformance : public ::testing::TestWithParam<Case> {};

TEST_P(Conformance, ShowsWhatTheLanguageShows)
{
    const Case& c = GetParam();
    Outcome out = runScript(c.code);
    EXPECT_EQ(out.output, c.output);
    EXPECT_EQ(out.error, c.error) << out.description;
    if (c.error) {
        EXPECT_EQ(out.line, c.line) << out.description;
    }
}

// Operators, precedence and the types their results take.
INSTANTIATE_TEST_SUITE_P(Operators, Conformance, ::testing::Values(
    Case{"MsgBox 2 + 3 * 4", "14"},
    Case{"MsgBox (2 + 3) * 4", "20"},
    Case{"MsgBox 2 ^ 3 ^ 2", "64"},
    Case{"MsgBox -2 ^ 2", "-4"},
    Case{"MsgBox 2 ^ -1", "0.5"},
    Case{"MsgBox 10 \\ 3 & \" \" & 10 Mod 3 & \" \" & -7 Mod 3", "3 1 -1"},
    Case{"MsgBox 7.5 \\ 2 & \" \" & 6.5 \\ 1", "4 6"},
    Case{"MsgBox 5 / 2 & \" \" & 1 / 3", "2.5 0.333333333333333"},
    Case{"MsgBox 1 + 2 & 3", "33"},
    Case{"MsgBox \"a\" + \"b\" & 1 + 1", "ab2"},
    Case{"MsgBox \"1\" + 2", "3"},
    Case{"MsgBox \"1\" & 2", "12"},
    Case{"MsgBox True + True", "-2"},
    Case{"MsgBox TypeName(32767 + 1) & \" \" & TypeName(32766 + 1)", "Long Integer"},
    Case{"MsgBox TypeName(2147483647 + 1) & \" \" & (2147483647 + 1)", "Double 2147483648"},
    Case{"MsgBox TypeName(-32767) & \" \" & TypeName(-32768) & \" \" & TypeName(-(-32767))", "Integer Long Integer"},
    Case{"MsgBox TypeName(2 * 3) & TypeName(2 * 3.0) & TypeName(4 / 2)", "IntegerDoubleDouble"},
    Case{"MsgBox (Not True) & \" \" & (Not 0) & \" \" & (Not 1 = 2) & \" \" & (1 + Not 0)", "False -1 True 0"},
    Case{"MsgBox (5 And 3) & (5 Or 3) & (5 Xor 3)", "176"},
    Case{"MsgBox (True Eqv False) & \" \" & (False Imp True) & \" \" & (True Imp False)", "False True False"},
    Case{"MsgBox 1 + 1 = 2", "True"},
    Case{"MsgBox 1 = 1.0 And \"abc\" < \"abd\" And Not (\"A\" = \"a\")", "True"},
    Case{"MsgBox IsNull(Null + 1) & IsNull(Null & Null) & (Null & \"x\")", "TrueTruex"},
    Case{"MsgBox (Null And False) & \" \" & IsNull(Null And True) & \" \" & (Null Or True)", "False True True"},
    Case{"MsgBox 1 + Empty & \"|\" & (\"\" & Empty) & \"|\" & (Empty = 0) & (Empty = \"\")", "1||TrueTrue"},
    Case{"x = \"10\"\nMsgBox (x > 9) & \" \" & (x = 10) & \" \" & (x > \"9\")", "True True False"},
    Case{"a = 10: b = \"9\"\nMsgBox a < b", "True"},
    // Sums and comparisons of variables, in a procedure and at the top level,
    // across the Integer, Long and Double limits and with a string.
    Case{"Function F(a, b)\n Dim x, y, s, d, c\n x = a: y = b\n s = x + y: d = x - y\n"
         " If x < y Then c = \"<\" Else c = \">=\"\n F = TypeName(s) & s & \" \" & TypeName(d) & d & c\nEnd Function\n"
         "x = 2147483647: y = 1: s = x + y: d = y - x: If y < x Then c = \"<\"\n"
         "MsgBox F(32767, 1) & \"|\" & F(2147483647, 1) & \"|\" & F(1.5, 2) & \"|\" & F(-32768, 1) & \"|\" & F(\"10\", 9)"
         " & \"|\" & TypeName(s) & s & TypeName(d) & d & c",
         "Long32768 Integer32766>=|Double2147483648 Long2147483646>=|Double3.5 Double-0.5<|Long-32767 Long-32769<|"
         "Double19 Double1>=|Double2147483648Long-2147483646<"},
    Case{"Set a = Fenetre: Set b = Fenetre\nMsgBox (a Is b) & \" \" & (a Is Nothing) & \" \" & (Nothing Is Nothing)", "True False True"},
    Case{"MsgBox &HFF & \" \" & &HFFFF & \" \" & &O17 & \" \" & &H10000 & \" \" & TypeName(&HFFFF)", "255 -1 15 65536 Integer"},
    Case{"MsgBox 1.5E3 & \" \" & .5 & \" \" & 1E+20 & \" \" & 0.00001 & \" \" & 0.0001", "1500 0.5 1E+20 1E-05 0.0001"},
    Case{"MsgBox 123456789012345 & \" \" & 1234567890123456", "123456789012345 1.23456789012346E+15"},
    Case{"MsgBox 0.1 + 0.2 & \" \" & 3 * 1.1", "0.3 3.3"},
    Case{"MsgBox \"say \"\"hi\"\"\"", "say \"hi\""},
    Case{"MsgBox 1 / 0", "", 11, 1},
    Case{"x = 0\nMsgBox 0 / x", "", 6, 2},
    Case{"MsgBox 5 Mod 0", "", 11, 1},
    Case{"MsgBox 40000 * 40000 & \" \" & TypeName(200 * 200)", "1600000000 Long"},
    Case{"MsgBox \"abc\" * 2", "", 13, 1},
    Case{"MsgBox (-1) ^ 0.5", "", 5, 1}
));

// Statements: declarations, assignment, control flow, procedures.
INSTANTIATE_TEST_SUITE_P(Statements, Conformance, ::testing::Values(
    Case{"Dim a, b\na = 1 : b = a + 1 : MsgBox b", "2"},
    Case{"DIM X: x = 4: MSGBOX X", "4"},
    Case{"Let x = 3\nMsgBox x", "3"},
    Case{"MsgBox \"a\" & _\n   \"b\" & _\n   \"c\"", "abc"},
    Case{"' comment\nRem another one\nMsgBox 1 ' trailing\n: : MsgBox 2 : Rem done", "1|2"},
    Case{"x = 5\nIf x > 3 Then MsgBox \"big\" Else MsgBox \"small\"", "big"},
    Case{"x = 1\nIf x > 3 Then MsgBox \"big\": MsgBox \"really\" Else MsgBox \"small\": MsgBox \"indeed\"", "small|indeed"},
    Case{"x = 2\nIf x = 1 Then\n MsgBox 1\nElseIf x = 2 Then\n MsgBox 2\nElse\n MsgBox 3\nEnd If", "2"},
    Case{"x = 9\nIf x = 1 Then\n MsgBox 1\nElseIf x = 2 Then\n MsgBox 2\nElse\n MsgBox 3\nEnd If", "3"},
    Case{"x = Null\nIf x Then MsgBox \"yes\" Else MsgBox \"no\"", "no"},
    Case{"If \"True\" Then MsgBox \"t\"\nIf \"0\" Then MsgBox \"z\" Else MsgBox \"nz\"", "t|nz"},
    // Joins written back into their own target (a local, a module
    // variable, on either side, twice itself) beside one still shared.
    Case{"Function F(x)\n Dim s, t, u, i\n s = x: t = s\n For i = 1 To 3\n  s = s & i\n  s = \"<\" & s\n Next\n"
         " u = s: s = s & s: s = s & s\n F = s & \" \" & t & \" \" & u & \" \" & Len(s) & \" \" & i\nEnd Function\n"
         "g = \"\xc3\xa9\": g = g & \"\xc3\xa9\": g = g & g\nMsgBox F(\"a\") & \"|\" & g & Len(g)",
         "<<<a123<<<a123<<<a123<<<a123 a <<<a123 28 4|\xc3\xa9\xc3\xa9\xc3\xa9\xc3\xa9" "4"},
    Case{"For i = 3 To 1 Step -1: s = s & i: Next: MsgBox s", "321"},
    Case{"For i = 1 To 2 Step 0.5: s = s & i & \",\": Next: MsgBox s", "1,1.5,2,"},
    Case{"For i = 1 To 0: MsgBox \"never\": Next: MsgBox i", "1"},
    Case{"For i = 1 To 10\n If i = 4 Then Exit For\nNext\nMsgBox i", "4"},
    Case{"For i = 1 To 10: i = i + 1: s = s & i: Next: MsgBox s", "246810"},
    Case{"n = 3\nFor i = 1 To n: n = 10: s = s & i: Next: MsgBox s", "123"},
    // A procedure's own counter runs on the engine's fast path: the same rules hold there.
    Case{"Function F()\n For i = 1 To 3: s = s & i: Next\n F = s & \" \" & i & \" \" & TypeName(i)\nEnd Function\nMsgBox F()",
         "123 4 Integer"},
    Case{"Function F()\n For i = 10 To 1 Step -3: s = s & i: Next\n For j = 1 To 10: j = j + 1: If j > 6 Then Exit For\n Next\n"
         " F = s & \" \" & j\nEnd Function\nMsgBox F()",
         "10741 8"},
    Case{"Function F()\n For i = 32766 To 32767: Next\n For j = CLng(1) To 2: Next\n"
         " For k = 1 To 3: s = s & k: k = CStr(k): Next\n"
         " F = i & TypeName(i) & \" \" & TypeName(j) & \" \" & s & \" \" & TypeName(k)\nEnd Function\nMsgBox F()",
         "32768Long Long 123 Double"},
    Case{"For Each v In Array(1, \"a\", True): s = s & v: Next: MsgBox s", "1aTrue"},
    Case{"i = 0\nDo While i < 3\n i = i + 1\nLoop\nMsgBox i", "3"},
    Case{"i = 0\nDo Until i >= 3\n i = i + 1\nLoop\nMsgBox i", "3"},
    Case{"i = 10\nDo\n i = i + 1\nLoop While i < 3\nMsgBox i", "11"},
    Case{"i = 0\nDo\n i = i + 1\nLoop Until i = 5\nMsgBox i", "5"},
    Case{"i = 0\nDo\n i = i + 1\n If i = 7 Then Exit Do\nLoop\nMsgBox i", "7"},
    Case{"i = 0\nWhile i < 4\n i = i + 2\nWend\nMsgBox i", "4"},
    Case{"x = 7\nSelect Case x\n Case 1, 2: MsgBox \"small\"\n Case 5 To 9: MsgBox \"range\"\n Case Else: MsgBox \"other\"\nEnd Select", "range"},
    Case{"x = 20\nSelect Case x\n Case 1, 2\n  MsgBox \"small\"\n Case Is >= 10\n  MsgBox \"big\"\n Case Else\n  MsgBox \"other\"\nEnd Select", "big"},
    Case{"x = \"b\"\nSelect Case x\n Case \"a\": MsgBox 1\n Case \"B\": MsgBox 2\n Case \"b\": MsgBox 3\nEnd Select", "3"},
    Case{"Select Case 4\n Case 1: MsgBox 1\nEnd Select\nMsgBox \"after\"", "after"},
    Case{"Sub Show(t)\n MsgBox \"[\" & t & \"]\"\nEnd Sub\nShow \"a\"\nCall Show(\"b\")\nShow(\"c\")", "[a]|[b]|[c]"},
    Case{"Function Twice(x)\n Twice = x * 2\nEnd Function\nMsgBox Twice(21)", "42"},
    Case{"MsgBox Fact(10)\nFunction Fact(n)\n If n <= 1 Then Fact = 1 Else Fact = n * Fact(n - 1)\nEnd Function", "3628800"},
    Case{"Function Nothing1()\nEnd Function\nMsgBox IsEmpty(Nothing1())", "True"},
    Case{"Sub Inc(x)\n x = x + 1\nEnd Sub\na = 1\nInc a\nMsgBox a\nCall Inc(a)\nMsgBox a\nInc (a)\nMsgBox a", "2|3|3"},
    Case{"Sub Inc(ByVal x)\n x = x + 1\nEnd Sub\na = 1\nInc a\nMsgBox a", "1"},
    Case{"Sub Swap(ByRef a, ByRef b)\n t = a: a = b: b = t\nEnd Sub\nx = 1: y = 2\nSwap x, y\nMsgBox x & y", "21"},
    Case{"Private Sub P()\n MsgBox \"p\"\n Exit Sub\n MsgBox \"never\"\nEnd Sub\nPublic Function F()\n F = 1\n Exit Function\n F = 2\nEnd Function\nP\nMsgBox F()", "p|1"},
    Case{"Sub S()\n n = 5\nEnd Sub\nn = 1\nS\nMsgBox n", "5"},
    Case{"Sub S()\n m = 5\nEnd Sub\nS\nMsgBox IsEmpty(m)", "True"},
    Case{"Function Count()\n c = c + 1\n Count = c\nEnd Function\nMsgBox Count() & Count()", "11"},
    Case{"Function F(a, b)\n F = a - b\nEnd Function\nMsgBox F(5, 3)\nMsgBox F(5)", "2", 450, 5},
    Case{"Const pi = 3.14159, name = \"QOR\"\nMsgBox pi & \" \" & name", "3.14159 QOR"},
    Case{"Const x = -1\nMsgBox x\nx = 2", "-1", 501, 3},
    Case{"With Fenetre\n .Caption = \"T\"\n MsgBox .Caption\nEnd With", "T"},
    Case{"Option Explicit\nDim a\na = 1\nMsgBox a\nb = 2", "1", 500, 5},
    Case{"MsgBox \"a\", vbInformation, \"t\"\nMsgBox(\"b\")\nr = MsgBox(\"c\", vbYesNo)\nMsgBox r", "a|b|c|1"},
    Case{"MsgBox (\"a\"), 1\nMsgBox (\"b\") & \"c\"\nMsgBox (1) + 2", "a|bc|3"},
    Case{"Sub Two(a, b)\n MsgBox a & b\nEnd Sub\nTwo (1), 2\nTwo 3, (4)\nCall Two(5, 6)", "12|34|56"},
    Case{"MsgBox \"x\", , \"title only\"\nMsgBox InStr(, \"abc\", \"b\")", "x", 5, 2},
    Case{"MsgBox InStr(1, \"abc\", ) & Mid(\"abc\", 2, )", "1bc"},
    Case{"x = 1\nMsgBox \"a\" & _\n  \"b\"\ny = 1 / 0", "ab", 11, 4},
    Case{"If 1 Then If 0 Then MsgBox \"a\" Else MsgBox \"b\"", "b"},
    Case{"With Fenetre\n .Caption = \"outer\"\n With Bouton1\n  .Caption = \"inner\"\n End With\n MsgBox .Caption & Bouton1.Caption\nEnd With", "outerinner"},
    Case{"Function Pick(i)\n Select Case i\n  Case 1: Pick = \"one\"\n  Case Else: Pick = \"many\"\n End Select\nEnd Function\nMsgBox Pick(1) & Pick(2)", "onemany"},
    Case{"Sub AddOne(ByRef n)\n n = n + 1\nEnd Sub\nSub Twice(ByRef n)\n AddOne n\n AddOne n\nEnd Sub\nk = 5\nTwice k\nMsgBox k", "7"},
    Case{"Sub Change(x)\n x = \"changed\"\nEnd Sub\nDim a(1)\na(0) = \"kept\"\nChange a(0)\nChange Fenetre.Caption\nMsgBox a(0) & IsEmpty(Fenetre.Caption)", "keptTrue"},
    Case{"Function Echo(ByVal s)\n s = s & \"!\"\n Echo = s\nEnd Function\nt = \"hi\"\nMsgBox Echo(t) & t", "hi!hi"},
    Case{"Dim t(2)\nSub Fill(arr)\n arr(1) = \"set\"\nEnd Sub\nFill t\nMsgBox t(1)", "set"},
    Case{"Function MakeArray()\n MakeArray = Array(\"p\", \"q\")\nEnd Function\nMsgBox MakeArray()(1) & UBound(MakeArray())", "q1"},
    Case{"Do While True\n n = n + 1\n If n > 2 Then Exit Do\nLoop: MsgBox n", "3"},
    Case{"For i = 1 To 3\n For j = 1 To 3\n  If j = 2 Then Exit For\n  s = s & i & j & \" \"\n Next\nNext\nMsgBox s", "11 21 31 "}
));

// Arrays.
INSTANTIATE_TEST_SUITE_P(Arrays, Conformance, ::testing::Values(
    Case{"Dim a(3)\na(0) = \"x\": a(3) = \"y\"\nMsgBox a(0) & a(3) & UBound(a) & LBound(a)", "xy30"},
    Case{"Dim a(2)\na(3) = 1", "", 9, 2},
    Case{"Dim m(2, 3)\nm(1, 2) = 5\nMsgBox m(1, 2) & UBound(m, 1) & UBound(m, 2)", "523"},
    Case{"a = Array(1, 2, 3)\nMsgBox UBound(a) & a(2) & IsArray(a) & TypeName(a)", "23TrueVariant()"},
    Case{"a = Array(1, 2)\nb = a\nb(0) = 9\nMsgBox a(0) & b(0)", "19"},
    Case{"Dim a()\nReDim a(2)\na(2) = \"z\"\nReDim Preserve a(4)\nMsgBox a(2) & UBound(a)", "z4"},
    Case{"ReDim a(1)\na(0) = 1\nReDim a(3)\nMsgBox IsEmpty(a(0)) & UBound(a)", "True3"},
    Case{"Dim a(2)\nReDim a(5)", "", 10, 2},
    Case{"MsgBox UBound(Array()) & \" \" & UBound(Split(\"\"))", "-1 -1"},
    Case{"Dim a(1)\na(0) = 5\nErase a\nMsgBox IsEmpty(a(0)) & UBound(a)", "True1"},
    Case{"x = 5\nMsgBox x(1)", "", 13, 2},
    Case{"MsgBox Undefined1(3)", "", 13, 1}
));

// Built-in functions.
INSTANTIATE_TEST_SUITE_P(Functions, Conformance, ::testing::Values(
    Case{"MsgBox Len(\"été\") & Len(\"\") & Len(123)", "303"},
    Case{"MsgBox Asc(\"A\") & \" \" & Asc(\"é\") & \" \" & Chr(65) & Chr(233) & \" \" & Asc(Chr(128))", "65 233 Aé 128"},
    Case{"MsgBox Chr(128) = \"€\"", "True"},
    Case{"MsgBox Asc(\"\")", "", 5, 1},
    Case{"MsgBox Chr(256)", "", 5, 1},
    Case{"MsgBox Left(\"Bonjour\", 3) & \"|\" & Right(\"Bonjour\", 4) & \"|\" & Mid(\"Bonjour\", 4) & \"|\" & Mid(\"Bonjour\", 4, 2)", "Bon|jour|jour|jo"},
    Case{"MsgBox Left(\"abc\", 10) & Mid(\"abc\", 10) & \"|\" & Right(\"été\", 2) & Mid(\"éléphant\", 2, 3)", "abc|télép"},
    Case{"MsgBox Mid(\"abc\", 0)", "", 5, 1},
    Case{"MsgBox UCase(\"été ok\") & \" \" & LCase(\"ÉCOLE\")", "ÉTÉ OK école"},
    Case{"MsgBox \"[\" & Trim(\"  a b  \") & \"][\" & LTrim(\"  a \") & \"][\" & RTrim(\" a  \") & \"]\"", "[a b][a ][ a]"},
    Case{"MsgBox InStr(\"abcabc\", \"c\") & InStr(4, \"abcabc\", \"c\") & InStr(\"abc\", \"\") & InStr(\"\", \"a\") & InStr(\"abc\", \"z\")", "36100"},
    Case{"MsgBox InStr(1, \"ABC\", \"b\", 1) & InStr(1, \"ABC\", \"b\", 0) & InStr(\"été\", \"t\")", "202"},
    Case{"MsgBox InStrRev(\"abcabc\", \"b\") & InStrRev(\"abcabc\", \"b\", 4) & InStrRev(\"abc\", \"z\")", "520"},
    Case{"MsgBox Replace(\"aXbXc\", \"X\", \"-\") & \" \" & Replace(\"abc\", \"B\", \"x\", 1, -1, 1) & \" \" & Replace(\"aaaa\", \"a\", \"b\", 2, 2)", "a-b-c axc bba"},
    Case{"MsgBox Join(Split(\"a,b,c\", \",\"), \";\") & \" \" & UBound(Split(\"a b c\")) & \" \" & Join(Split(\"a,b,c\", \",\", 2), \"/\")", "a;b;c 2 a/b,c"},
    Case{"MsgBox \"[\" & Space(3) & \"]\" & String(3, \"ab\") & String(2, 65) & StrReverse(\"été!\")", "[   ]aaaAA!été"},
    Case{"MsgBox CStr(12) & CStr(True) & CInt(2.5) & CInt(3.5) & CLng(-2.5) & CDbl(\"1.5\") & CBool(\"true\") & CBool(0)", "12True24-21.5TrueFalse"},
    Case{"MsgBox CInt(40000)", "", 6, 1},
    Case{"MsgBox CInt(\"abc\")", "", 13, 1},
    Case{"MsgBox CStr(Null)", "", 94, 1},
    Case{"MsgBox Int(-2.5) & Fix(-2.5) & Int(2.7) & Abs(-3) & Sgn(-7) & Sgn(0) & Sqr(16)", "-3-223-104"},
    Case{"MsgBox Round(2.5) & Round(3.5) & \" \" & Round(3.14159, 2) & \" \" & Round(-1.5)", "24 3.14 -2"},
    Case{"MsgBox IsNumeric(\"12\") & IsNumeric(\" 1.5 \") & IsNumeric(\"abc\") & IsNumeric(\"\") & IsNumeric(Empty)", "TrueTrueFalseFalseTrue"},
    Case{"Dim o: Set o = Nothing\nMsgBox IsEmpty(x) & IsNull(Null) & IsObject(o) & IsObject(1) & TypeName(o)", "TrueTrueTrueFalseNothing"},
    Case{"MsgBox TypeName(Empty) & TypeName(Null) & TypeName(True) & TypeName(\"\") & TypeName(Fenetre)", "EmptyNullBooleanStringFenetre"},
    Case{"MsgBox VarType(\"a\") & VarType(1) & VarType(70000) & VarType(1.5) & VarType(True) & VarType(Array())", "8235118204"},
    Case{"MsgBox Hex(255) & \" \" & Hex(-1) & \" \" & Hex(65536) & \" \" & Oct(8) & \" \" & Oct(-1)", "FF FFFF 10000 10 177777"},
    Case{"MsgBox Year(\"23/11/2026\") & Month(\"23/11/2026\") & Day(\"23/11/2026\") & \" \" & Hour(\"14:05:09\") & Minute(\"14:05:09\") & Second(\"14:05:09\")", "20261123 1459"},
    Case{"MsgBox Year(Now) > 2000 And Month(Date) >= 1 And Timer >= 0 And Len(Time) > 0", "True"},
    Case{"Randomize 1\nr = Rnd\nMsgBox r >= 0 And r < 1", "True"},
    Case{"MsgBox StrComp(\"a\", \"B\") & StrComp(\"a\", \"A\", 1) & StrComp(\"b\", \"a\")", "101"},
    Case{"MsgBox vbCrLf = Chr(13) & Chr(10)", "True"},
    Case{"MsgBox Len(vbCr & vbLf & vbTab & vbNewLine & vbNullString)", "5"},
    Case{"MsgBox vbOKOnly & vbOKCancel & vbYesNoCancel & vbYesNo & vbCritical & vbQuestion & vbExclamation & vbInformation", "013416324864"},
    Case{"MsgBox vbOK & vbCancel & vbYes & vbNo & vbAbort & vbRetry & vbIgnore", "1267345"},
    Case{"MsgBox Len()", "", 450, 1},
    Case{"MsgBox Chr(140) & Chr(156) & Chr(146) & Asc(\"Œ\") & Asc(\"’\") & AscW(\"€\") & ChrW(8364)", "Œœ’1401468364€"},
    Case{"MsgBox Join(Split(\"aXbxc\", \"x\", -1, 1), \"-\") & \" \" & Join(Split(\"aXbxc\", \"x\"), \"-\") & \" \" & UBound(Split(\"a,,b\", \",\"))", "a-b-c aXb-c 2"},
    Case{"MsgBox Replace(\"abcabc\", \"b\", \"\") & \" \" & Replace(\"abc\", \"\", \"x\") & \" \" & Replace(\"abcabc\", \"a\", \"A\", 3) & \" \" & Replace(\"aaa\", \"a\", \"b\", 1, 1)", "acac abc cAbc baa"},
    Case{"MsgBox CStr(CDate(\"23/11/2026\")) & \" \" & TypeName(CDate(\"1/2/2003 10:20:30\")) & \" \" & CDate(\"1/2/2003 10:20:30\")", "23/11/2026 Date 01/02/2003 10:20:30"},
    Case{"d = CDate(\"28/02/2024\") + 1\nMsgBox d & \" \" & Day(d) & \" \" & TypeName(d) & \" \" & (CDate(\"2/3/2024\") - CDate(\"1/3/2024\"))", "29/02/2024 29 Date 1"},
    Case{"MsgBox Hex(-2147483648) & \" \" & Hex(-70000) & \" \" & Hex(2.5) & \" \" & Oct(\"64\")", "80000000 FFFEEE90 2 100"},
    Case{"MsgBox Mid(\"abc\", 2, 0) & \"|\" & Left(\"\", 3) & \"|\" & Right(\"abc\", 0) & \"|\" & InStrRev(\"abc\", \"c\", 2)", "|||0"},
    Case{"MsgBox Left(\"abc\", -1)", "", 5, 1},
    Case{"MsgBox RGB(255, 0, 0) & \" \" & RGB(0, 255, 0) & \" \" & RGB(1, 2, 300) & \" \" & TypeName(RGB(0, 0, 0))", "255 65280 16712193 Long"},
    Case{"x = RGB(-1, 0, 0)", "", 5, 1},
    Case{"Function F()\n Dim s, d, i\n s = 2147483000 : d = 0.5\n For i = 1 To 1000\n  s = s + i\n  If d < s Then d = d - 0.25\n Next\n F = TypeName(s) & \" \" & s & \" \" & d & \" \" & (d < 1) & \" \" & (1.5 >= 2)\nEnd Function\nMsgBox F()", "Double 2147983500 -249.5 True False"},
    Case{"Function G()\n Dim d, n\n n = 3 : d = 1.5\n d = n - d\n G = TypeName(d) & d & TypeName(n + 0.5) & (n + 0.5)\nEnd Function\nMsgBox G()", "Double1.5Double3.5"},
    Case{"Function H()\n Dim d\n d = 1E+308\n d = d + 1E+308\nEnd Function\nx = H()", "", 6, 4},
    Case{"MsgBox UCase(Null) & LCase(Empty) & Len(Null) & Trim(Null)", ""},
    Case{"MsgBox IsNull(UCase(Null)) & IsNull(Len(Null)) & IsNull(Mid(Null, 1))", "TrueTrueTrue"}
));

// Errors: Err, On Error, Raise, and the line a run-time error stops at.
INSTANTIATE_TEST_SUITE_P(Errors, Conformance, ::testing::Values(
    Case{"On Error Resume Next\nx = 1 / 0\nMsgBox Err.Number & \" \" & Err.Description\nErr.Clear\nMsgBox Err.Number", "11 Division par zéro|0"},
    Case{"On Error Resume Next\nErr.Raise 1000, \"src\", \"own\"\nMsgBox Err.Number & Err.Source & Err.Description", "1000srcown"},
    Case{"On Error Resume Next\nErr.Raise 13\nMsgBox Err.Description\nOn Error GoTo 0\nMsgBox Err.Number\nErr.Raise 9", "Type incompatible|0", 9, 6},
    Case{"On Error Resume Next\nx = 1 / 0\nIf Err Then MsgBox \"err \" & Err", "err 11"},
    Case{"Sub Bad()\n MsgBox \"in\"\n x = 1 / 0\n MsgBox \"not shown\"\nEnd Sub\nOn Error Resume Next\nBad\nMsgBox \"after \" & Err.Number", "in|after 11"},
    Case{"Sub Bad()\n On Error Resume Next\n x = 1 / 0\n MsgBox \"inside \" & Err.Number\nEnd Sub\nBad\nx = 1 / 0", "inside 11", 11, 7},
    Case{"MsgBox 1\nMsgBox 2\ny = Undefined.Prop\nMsgBox 3", "1|2", 424, 3},
    Case{"Sub Deep()\n MsgBox \"deep\"\n Err.Raise 5\nEnd Sub\nMsgBox \"top\"\nDeep", "top|deep", 5, 3},
    Case{"x = Nothing", "", 91, 1},
    Case{"Set x = 5", "", 424, 1},
    Case{"Set f = Nothing\nf.Run", "", 91, 2},
    Case{"Fenetre.Caption = \"a\"\nx = Fenetre\nMsgBox \"never\"", "", 438, 2},
    Case{"Function F(n)\n F = F(n + 1)\nEnd Function\nx = F(1)", "", 28, 2},
    Case{"x = CreateObject(\"Nope.Object\")", "", 429, 1},
    Case{"Bouton1.Picture = LoadPicture(\"absent.bmp\")", "", 481, 1},
    Case{"On Error Resume Next\nMsgBox 1 / 0\nMsgBox \"next\"", "next"},
    Case{"Err.Number = 5\nMsgBox Err.Number & \" \" & Err\nErr.Raise vbObjectError + 1", "5 5", -2147221503, 3},
    Case{"On Error Resume Next\nErr.Raise 9\nMsgBox Err.Description\nErr.Raise 0\nMsgBox Err.Number", "Indice en dehors de la plage|5"},
    Case{"Function Safe()\n On Error Resume Next\n Safe = 1 / 0\n Exit Function\nEnd Function\nx = Safe()\nMsgBox Err.Number & IsEmpty(x)", "0True"},
    Case{"Sub S()\n Option Explicit\nEnd Sub", "", 1002, 2},
    Case{"Option Explicit\nSub S()\n Dim a\n a = 1\n b = 2\nEnd Sub\nS", "", 500, 5},
    Case{"On Error Resume Next\nIf 1 / 0 = 1 Then\n MsgBox \"then \" & Err.Number\nElse\n MsgBox \"else\"\nEnd If", "then 11"}
));

// Syntax errors stop the whole text before its first statement.
INSTANTIATE_TEST_SUITE_P(Syntax, Conformance, ::testing::Values(
    Case{"MsgBox \"before\"\nIf x Then\n y = 1\n", "", 1014, 4},
    Case{"MsgBox \"before\"\nFor i = 1 To\nNext", "", 1023, 2},
    Case{"MsgBox \"before\"\nx = ", "", 1023, 2},
    Case{"MsgBox \"before\"\nMsgBox \"abc", "", 1033, 2},
    Case{"MsgBox \"before\"\nx = 1 2", "", 1025, 2},
    Case{"MsgBox \"before\"\nMsgBox(\"a\", 1)", "", 1044, 2},
    Case{"MsgBox \"before\"\nExit For", "", 1039, 2},
    Case{"MsgBox \"before\"\nDim a(n)", "", 1026, 2},
    Case{"MsgBox \"before\"\ny = 5 $", "", 1032, 2},
    Case{"MsgBox \"before\"\nNext", "", 1055, 2},
    Case{"MsgBox \"before\"\nLoop", "", 1038, 2},
    Case{"MsgBox \"before\"\nDo\nx = 1\n", "", 1019, 4},
    Case{"MsgBox \"before\"\nWhile x\n", "", 1018, 3},
    Case{"MsgBox \"before\"\nIf x Then y = 1\nEnd If", "", 1002, 3},
    Case{"MsgBox \"before\"\nSelect Case x\nCase 1\n", "", 1014, 4},
    Case{"MsgBox \"before\"\nSub A()\nEnd Function", "", 1016, 3},
    Case{"MsgBox \"before\"\nSub A()\nEnd Sub\nSub A()\nEnd Sub", "", 1041, 4},
    Case{"MsgBox \"before\"\nIf x y = 1", "", 1017, 2},
    Case{"MsgBox \"before\"\nFor i = 1 5", "", 1013, 2},
    Case{"MsgBox \"before\"\nx = (1 + 2", "", 1006, 2}
));

}  // namespace
}  // namespace qor::script::test
