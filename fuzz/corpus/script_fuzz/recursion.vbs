Function f(n)
  f = f(n + 1)
End Function
x = f(1)
