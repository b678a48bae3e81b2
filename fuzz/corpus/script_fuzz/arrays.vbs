Dim m(2, 3)
m(1, 2) = 5
ReDim d(2)
ReDim Preserve d(4)
a = Array(1, "x", True)
b = a
b(0) = 2
MsgBox UBound(m, 2) & LBound(a) & UBound(d)
Erase d
