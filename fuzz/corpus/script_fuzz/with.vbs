With Fenetre
  .Caption = "T"
  .Left = .Left + 10
End With
Set a = Fenetre
If a Is Fenetre Then MsgBox "same"
For Each x In Form2
  MsgBox x
Next
