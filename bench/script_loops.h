#pragma once

// The engine's benchmark loops, shared by the Lua comparison and by the
// plain timer that runs them natively and under wine. Each loop comes twice:
// inside a Function with its variables declared, and at a script's top
// level with module variables, as a menu's startup, timer and button
// scripts are written.

namespace qor::bench {

inline constexpr int kTurns = 1000000;

inline constexpr const char* kVbs = R"(
Function NumLoop(n)
    Dim i, s
    s = 0
    For i = 1 To n
        s = s + i
        If s > 1000000 Then s = s - 1000000
    Next
    NumLoop = s
End Function

Function BigLoop(n)
    Dim i, s, d
    s = 0
    d = 0.5
    For i = 1 To n
        s = s + i
        If d < s Then d = d + 1.5
    Next
    BigLoop = s
End Function

Function StrLoop(n)
    Dim i, a, b, s, t
    a = "menu"
    b = "QOR"
    t = 0
    For i = 1 To n
        s = a & b
        t = t + Len(s) + Len(Mid(s, 2, 3)) + InStr(s, "QOR")
    Next
    StrLoop = t
End Function

Function Inc(x)
    Inc = x + 1
End Function

Function CallLoop(n)
    Dim i, s
    s = 0
    For i = 1 To n
        s = Inc(s)
    Next
    CallLoop = s
End Function
)";

// The same loops at the top level; `result` names the module variable that
// holds what the Function would return. The top-level call loop calls a
// Function of its own text, so that the text runs on its own (qorvbs).
struct TopLoop {
    const char* name;
    const char* code;
    const char* result;
};

inline constexpr TopLoop kTopLoops[] = {
    {"TopNum", R"(
s = 0
For i = 1 To 1000000
    s = s + i
    If s > 1000000 Then s = s - 1000000
Next
)", "s"},
    {"TopBig", R"(
s = 0
d = 0.5
For i = 1 To 1000000
    s = s + i
    If d < s Then d = d + 1.5
Next
)", "s"},
    {"TopStr", R"(
a = "menu"
b = "QOR"
t = 0
For i = 1 To 1000000
    s = a & b
    t = t + Len(s) + Len(Mid(s, 2, 3)) + InStr(s, "QOR")
Next
)", "t"},
    {"TopCall", R"(
Function Inc(x)
    Inc = x + 1
End Function
s = 0
For i = 1 To 1000000
    s = Inc(s)
Next
)", "s"},
};

// What each loop returns for kTurns turns: a run that disagrees measures nothing.
inline constexpr double kNumResult = 500000;
inline constexpr double kBigResult = 500000500000.0;
inline constexpr double kStrResult = 15.0 * kTurns;
inline constexpr double kCallResult = kTurns;
// kTopLoops in their order: the same figures.
inline constexpr double kTopResults[] = {kNumResult, kBigResult, kStrResult, kCallResult};

}  // namespace qor::bench
