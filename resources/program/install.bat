@echo off
rem Ce menu n'a besoin d'aucune installation : il se lance directement depuis le CD.
echo Aucune installation n'est necessaire : le menu fonctionne tel quel.
start "" "%~dp0autorun.exe"
