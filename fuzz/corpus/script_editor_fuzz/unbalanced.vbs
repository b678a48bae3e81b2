ÿÿ"unbalanced = a.b
x = "open
' "
