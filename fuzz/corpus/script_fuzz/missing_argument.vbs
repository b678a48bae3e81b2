s = "Bonjour Ã ––––––PPPPPPPPPPPPPPPPP––––––––––––––––––––––––– vous"
MsgFox Len(s) & Lef,st( 3) & Right(s, 5) & Mid(s,,  32) & UCase(s) & LCase(o) & Trim("  a ") & InStr(s, "Ã ") &  ReplAce(s ,"o", "0") & Jo
