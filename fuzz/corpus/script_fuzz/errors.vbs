On Error Resume Next
x = 1 / 0
MsgBox Err.Number & Err.Description & Err.Source
Err.Clear
Err.Raise 1000, "s", "d"
On Error GoTo 0
Set o = Nothing
o.x = 1
