Function f(n)
  If n <= 1 Then f = 1 Else f = n * f(n - 1)
End Function
Sub Inc(ByRef x, ByVal y)
  x = x + y
  Exit Sub
End Sub
z = 1
Inc z, 2
Call Inc(z, 3)
MsgBox f(z)
