Set fso = CreateObject("Scripting.FileSystemObject")
Set fich = fso.opentextfile("c:\1.txt", 1)
Texte1.Text=fich.ReadAll
fich.Close
