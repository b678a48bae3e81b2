Do
  n = n + 1
  s = s & "x"
Loop
