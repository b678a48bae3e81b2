x = 7
Select Case x
  Case 1, 2: MsgBox "a"
  Case 5 To 9: MsgBox "b"
  Case Is > 10: MsgBox "c"
  Case Else: MsgBox "d"
End Select
