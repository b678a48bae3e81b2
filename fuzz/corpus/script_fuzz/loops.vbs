Dim a(3), s
For i = 0 To 3 Step 1
  a(i) = i * 2
Next
For Each v In a
  s = s & v
Next
Do While i > 0
  i = i - 1
  If i = 1 Then Exit Do
Loop
Do
  i = i + 1
Loop Until i > 5
While i > 0: i = i - 1: Wend
