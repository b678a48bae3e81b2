MsgBox 2 + 3 * 4 & " " & -2 ^ 2 & (5 And 3) & (Not 0) & 7 \ 2 & 7 Mod 3 & "a" + "b"
x = &HFF + &O17 + 1.5E3
If x > 10 And Not x = 3 Or x Xor 1 Then y = x Eqv 1 Imp 0
