'Tapez ici le code VBS

'########################Boite de dialogue#######################
MsgBox "Bonjour"+chr(10)+chr(13)+"à tous", vbinformation, "Info"
'######################Fin boite de dialogue#####################
Set exe_f = CreateObject("WScript.Shell")
exe_f.Run(Chr(34) + "http://www.example.org" + Chr(34))
Action.Tag = "E"
Action.Text = "OuvrirCD"
Fenetre.WindowState = 2
Bouton3.Picture = LoadPicture("a.bmp")
Texte2.Text = "a" + chr(13) + chr(10) + "b"
