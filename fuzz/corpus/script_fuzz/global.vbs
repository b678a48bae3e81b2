'Les procédures et constantes définies ici seront accessibles par les
'autres scripts du projet (boutons, minuteur, démarrage...)

Const pi = 3.14159265358979
Option Explicit
Dim r
r = InputBox("Rayon ?", "Cercle", "2")
MsgBox pi * r ^ 2, vbOKOnly + vbInformation, "Aire"
