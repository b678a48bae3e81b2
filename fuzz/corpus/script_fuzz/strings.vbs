s = "Bonjour à tous"
MsgBox Len(s) & Left(s, 3) & Right(s, 4) & Mid(s, 2, 3) & UCase(s) & LCase(s) & Trim("  a ") & InStr(s, "à") & InStrRev(s, "o") & Replace(s, "o", "0") & Join(Split(s, " "), "-") & Space(2) & String(3, "z") & StrReverse(s) & Asc("é") & Chr(233) & Hex(255) & Oct(8)
