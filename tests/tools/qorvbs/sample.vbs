' A menu script as the assistant writes it, run outside the menu.
Fenetre.Caption = "Démo"
nom = InputBox("Votre nom ?", "Accueil", "Anonyme")
If MsgBox("Bonjour " & nom & vbCrLf & "Continuer ?", vbYesNo + vbQuestion, "Accueil") = vbYes Then
    Set exe_f = CreateObject("WScript.Shell")
    exe_f.Run(Chr(34) + "[LECT]:\index.html" + Chr(34))
End If
age = InputBox("Votre âge ?")
MsgBox "Dans 10 ans : " & (age + 10)
Action.Tag = "E"
Action.Text = "OuvrirCD"
x = 1 / 0
MsgBox "jamais"
