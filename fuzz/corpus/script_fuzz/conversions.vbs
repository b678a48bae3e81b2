MsgBox CStr(1.5) & CInt("3") & CLng(2.5) & CDbl("1e3") & CBool("true") & Int(-1.5) & Fix(-1.5) & Abs(-2) & Sgn(-3) & Round(2.5) & Sqr(4) & IsNumeric("x") & IsEmpty(e) & IsNull(Null) & IsArray(Array()) & IsObject(Nothing) & TypeName(1) & VarType("s")
Randomize
r = Rnd
MsgBox Year(Now) & Month(Date) & Day(Date) & Hour(Time) & Minute(Now) & Second(Now) & Timer
