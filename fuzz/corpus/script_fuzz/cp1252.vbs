MsgBox "Réglages à l'écran"
