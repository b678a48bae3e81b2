MsgBox "a" & _
  "b" & _
  "c" : Rem done
x = 1 : y = 2 ' comment
