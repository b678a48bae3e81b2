x = ((((((((((((((((((((1))))))))))))))))))))
If 1 Then If 2 Then If 3 Then MsgBox 4 Else MsgBox 5
