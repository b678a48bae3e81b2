If x Then
  MsgBox "a"
Else If
For i = 1 To
