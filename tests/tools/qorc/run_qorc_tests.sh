#!/usr/bin/env bash
# qorc end to end: builds, refusals, HTML launcher and CD image of a small
# project, in a program folder of its own with a stand-in player.
#   run_qorc_tests.sh QORC QORBAKE RESOURCES_PROGRAM_FOLDER
set -u
qorc_built=$1
qorbake_built=$2
resources=$3
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'chattr -R -i "$work" 2>/dev/null; rm -rf "$work"' EXIT

passed=0
failed=0
check() {  # check NAME COMMAND...
  local name=$1; shift
  if "$@"; then passed=$((passed + 1)); else failed=$((failed + 1)); echo "FAILED: $name"; fi
}

prog=$work/prog
mkdir -p "$prog" "$work/proj/videos"
cp "$qorc_built" "$prog/qorc"
cp "$qorbake_built" "$prog/qorbake"
cp "$resources/autorun.ico" "$resources/install.bat" "$prog/"
printf 'MZ stand-in player' > "$prog/compil.exe"
qorc=$prog/qorc
cp "$here/menu.qor" "$work/proj/menu.qor"
# A 4 x 2 Windows bitmap: red, green, blue, white, twice.
bmp() { printf 'BMN\0\0\0\0\0\0\0006\0\0\0(\0\0\0\004\0\0\0\002\0\0\0\001\0\030\0\0\0\0\0\030\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\377\0\377\0\377\0\0\377\377\377\0\0\377\0\377\0\377\0\0\377\377\377' > "$1"; }
for f in fond bouton bouton_s bouton_c; do bmp "$work/proj/$f.bmp"; done
printf 'MIDI' > "$work/proj/musique.mid"
printf 'RIFF' > "$work/proj/clic.wav"
printf 'AVI' > "$work/proj/videos/intro.avi"
project=$work/proj/menu.qor

# The menu's data line: the last line of the player copy.
data_line() { tail -c 4000 "$1" | iconv -f cp1252 -t utf-8 | tr -d '\r\n' | sed -n 's/.*\((debut)¬\)/\1/p'; }
ends_with_crlf() { [ "$(tail -c 2 "$1" | od -An -tx1 | tr -d ' ')" = "0d0a" ]; }

# --- a main menu, byte for byte where it is fixed
cd_dir=$work/cd; mkdir -p "$cd_dir"
"$qorc" build "$project" "$cd_dir" --name "Démo" --author "Jeanne" > "$work/out" 2> "$work/err"
check "build exits 0" [ $? -eq 0 ]
printf '[Autorun]\r\nopen=qor/autorun.exe\r\nIcon=qor/autorun.ico\r\n\r\nshell\\installer=&Installer QOR\r\nshell\\installer\\command=qor/install.bat\r\n\r\nshell\\qqc=&Qu'"'"'est-ce que QOR ?\r\nshell\\qqc\\command=qor/autorun.exe infos\r\n\r\nshell\\app=&A propos de QOR...\r\nshell\\app\\command=qor/autorun.exe auteur\r\n' > "$work/autorun.expected"
check "Autorun.inf byte for byte" cmp -s "$work/autorun.expected" "$cd_dir/Autorun.inf"
check "player bytes kept" [ "$(head -c 18 "$cd_dir/qor/autorun.exe")" = "MZ stand-in player" ]
check "data line appended once, ends with CR LF" ends_with_crlf "$cd_dir/qor/autorun.exe"
line=$(data_line "$cd_dir/qor/autorun.exe")
check "data line header and names" grep -q '^(debut)¬FICHIER DAT COMPATIBLE QOR V2.0¬\[Général\]¬fond.bmp¬ 9600 ¬ 7200 ¬ 1 ¬Démo¬Jeanne¬musique.mid¬\[ParamsPlus\]' <<< "$line"
check "transparent button named by its baked images" grep -q '¬\[Bouton\]¬ 300 ¬ 300 ¬bouton.bmp_transp.bmp¬bouton_s.bmp_transp.bmp¬bouton_c.bmp_transp.bmp¬code¬MsgBox "a"¤MsgBox "b"¬¬ 1 ¬ 255 ¬' <<< "$line"
check "text record top before left" grep -q '¬\[Texte\]¬Un texte¬.*¬ 600 ¬ 600 ¬ 2000 ¬ 300 ¬00¬para1¬para2¬para3¬para4¬(fin des données QOR)$' <<< "$line"
for f in autorun.ico install.bat fond.bmp bouton.bmp bouton_s.bmp bouton_c.bmp bouton.bmp_transp.bmp \
         bouton_s.bmp_transp.bmp bouton_c.bmp_transp.bmp musique.mid clic.wav; do
  check "qor/$f copied" [ -f "$cd_dir/qor/$f" ]
done
check "baked images are BMP" [ "$(head -c 2 "$cd_dir/qor/bouton.bmp_transp.bmp")" = "BM" ]
check "media of video buttons stay off qor/" [ ! -e "$cd_dir/qor/intro.avi" ]
check "steps on standard output" grep -q "Copie d'aurorun.exe..." "$work/out"
check "no message when all went well" [ ! -s "$work/err" ]
check "no intermediate file left" [ -z "$(find "${TMPDIR:-/tmp}" -maxdepth 1 -name 'qor-*.dat' -newer "$project" 2>/dev/null)" ]

# --- the replace question: refused without --yes, kept as it was
before=$(md5sum < "$cd_dir/qor/autorun.exe")
"$qorc" build "$project" "$cd_dir" > /dev/null 2> "$work/err"
check "replace refused without --yes" [ $? -eq 1 ]
check "replace question on stderr" grep -q "un projet QOR a déjà été compilé" "$work/err"
check "earlier compilation untouched" [ "$(md5sum < "$cd_dir/qor/autorun.exe")" = "$before" ]
"$qorc" build "$project" "$cd_dir" --yes > /dev/null 2>&1
check "replace with --yes" [ $? -eq 0 ]
check "dialog defaults without --name" grep -q '¬menu¬Jeanne Dupré (jeanne@example.org)¬' <<< "$(data_line "$cd_dir/qor/autorun.exe")"

# --- sub-menus
"$qorc" build "$project" "$cd_dir" --sub-menu Intro > /dev/null 2>&1
check "sub-menu built" [ $? -eq 0 ] && check "sub-menu player" [ -f "$cd_dir/qor/Intro.exe" ]
"$qorc" build "$project" "$cd_dir" --sub-menu Intro > /dev/null 2> "$work/err"
check "same sub-menu refused" [ $? -eq 1 ] && check "its message" grep -q "déja été créé" "$work/err"
"$qorc" build "$project" "$cd_dir" --sub-menu ../evil > /dev/null 2>&1
check "sub-menu name with a path refused" [ $? -eq 1 ] && check "nothing outside qor" [ ! -e "$cd_dir/evil.exe" ]
mkdir -p "$work/empty"
"$qorc" build "$project" "$work/empty" --sub-menu Intro > /dev/null 2> "$work/err"
check "sub-menu without main menu" grep -q "Aucun menu principal trouvé" "$work/err"

# --- bad input
"$qorc" build "$project" "$work/nowhere" > /dev/null 2> "$work/err"
check "missing target refused" [ $? -eq 1 ] && check "Répertoire incorrect" grep -q "Répertoire incorrect !" "$work/err"
for target in "" / "$work/../../../.."; do
  "$qorc" build "$project" "$target" > /dev/null 2> "$work/err"
  check "target '$target' refused" [ $? -eq 1 ] && check "as an incorrect folder" grep -q "Répertoire incorrect !" "$work/err"
done
"$qorc" build "$project" "$cd_dir" --sub-menu AUTORUN > /dev/null 2> "$work/err"
check "sub-menu named as the main menu in capitals refused" grep -q "déja été créé" "$work/err"
check "main menu kept" [ "$(md5sum < "$cd_dir/qor/autorun.exe")" != "" ] && check "no AUTORUN.exe" [ ! -e "$cd_dir/qor/AUTORUN.exe" ]

# Values the data line cannot carry, pictures the players cannot show, two
# files for one name: each named, exit 1, nothing written.
hostile() {  # hostile NAME EXPECTED_MESSAGE QOR_FILE [qorc options]
  local name=$1 expected=$2 qor=$3; shift 3
  rm -rf "$work/hostile"; mkdir -p "$work/hostile"
  "$qorc" build "$qor" "$work/hostile" "$@" > /dev/null 2> "$work/err"
  check "$name refused" [ $? -eq 1 ]
  check "$name named" grep -qF "$expected" "$work/err"
  check "$name wrote nothing" [ -z "$(ls -A "$work/hostile")" ]
}
variant() {  # variant FILE LINE TEXT: the project with one line changed (TEXT in Windows-1252)
  LC_ALL=C awk -v n="$2" -v t="$3" 'NR == n { $0 = t "\r" } 1' "$project" > "$1"
}
hostile "¬ in the project name" "Le nom du projet" "$project" --name $'D\xc2\xacmo'
hostile "line break in the author" "L'auteur du projet" "$project" --author $'a\nb'
cp "$work/proj/fond.bmp" "$work/proj/fo¬nd.bmp"
variant "$work/proj/sep.qor" 14 $'fo\xacnd.bmp'
hostile "¬ in the background's name" "L'image de fond (« fo¬nd.bmp »)" "$work/proj/sep.qor"
mkdir -p "$work/proj/archives"; cp "$work/proj/bouton_s.bmp" "$work/proj/archives/FOND.bmp"
variant "$work/proj/clash.qor" 64 "$work/proj/archives/FOND.bmp"
hostile "two files for qor/fond.bmp" "'$work/proj/archives/FOND.bmp'" "$work/proj/clash.qor"
printf 'pas une image' > "$work/proj/texte.bmp"
variant "$work/proj/text.qor" 14 texte.bmp
hostile "a text file named .bmp" "texte.bmp' (l'image de fond) est illisible" "$work/proj/text.qor"

"$qorc" build "$project" > /dev/null 2>&1
check "bad usage exits 2" [ $? -eq 2 ]
"$qorc" build "$project" "$cd_dir" --iso x > /dev/null 2>&1
check "unknown option exits 2" [ $? -eq 2 ]
"$qorc" --help | grep -q "qorc iso PROJET.qor IMAGE.iso"
check "--help names every command" [ $? -eq 0 ]

mkdir -p "$work/link_target"; echo keep > "$work/link_target/keep.txt"
mkdir -p "$work/linked"; ln -s "$work/link_target" "$work/linked/qor"
"$qorc" build "$project" "$work/linked" --yes > /dev/null 2> "$work/err"
check "qor as a link refused" [ $? -eq 1 ] && check "link's folder untouched" [ "$(ls "$work/link_target")" = "keep.txt" ]

mv "$prog/compil.exe" "$prog/compil.bak"
mkdir -p "$work/noplayer"
"$qorc" build "$project" "$work/noplayer" > /dev/null 2> "$work/err"
check "missing compil.exe fails" [ $? -eq 1 ] && check "its message" grep -q "Erreur durant la compilation ! (Fichier introuvable" "$work/err"
check "no player left" [ -z "$(ls "$work/noplayer/qor" | grep -i exe)" ]
mv "$prog/compil.bak" "$prog/compil.exe"

mkdir -p "$work/full"
( ulimit -f 8; "$qorc" build "$project" "$work/full" > /dev/null 2> "$work/err" )
check "a full disk fails" [ $? -eq 1 ] && check "Disque plein" grep -q "Disque plein" "$work/err"
check "no half-written player" [ ! -e "$work/full/qor/autorun.exe" ] && check "nor its working copy" [ ! -e "$work/full/qor/autorun.exe.part" ]

mkdir -p "$work/readonly"
if [ "$(id -u)" -ne 0 ]; then chmod a-w "$work/readonly"; ro=yes; elif chattr +i "$work/readonly" 2>/dev/null; then ro=yes; else ro=no; fi
if [ "$ro" = yes ]; then
  "$qorc" build "$project" "$work/readonly" > /dev/null 2> "$work/err"
  check "read-only target fails" [ $? -eq 1 ] && check "its message" grep -q "Erreur durant la compilation" "$work/err"
  chattr -i "$work/readonly" 2>/dev/null; chmod u+w "$work/readonly"
fi

# --- the baker: started from qorc's own folder, only for transparent buttons
check "qorc links no Qt" [ -z "$(ldd "$qorc" | grep -i libqt)" ]
LC_ALL=C awk 'NR==57 { $0 = " 0 \r" } 1' "$project" > "$work/proj/opaque.qor"
check "opaque copy differs only by the flag" [ "$(cmp -l "$project" "$work/proj/opaque.qor" | wc -l)" -eq 1 ]
mv "$prog/qorbake" "$prog/qorbake.bak"
mkdir -p "$work/opaque"
"$qorc" build "$work/proj/opaque.qor" "$work/opaque" > /dev/null 2> "$work/err"
check "opaque project builds without qorbake" [ $? -eq 0 ] && check "with no baked image" [ -z "$(ls "$work/opaque/qor" | grep _transp)" ]
mkdir -p "$work/path"; printf '#!/bin/sh\ntouch "%s/path/ran"\n' "$work" > "$work/path/qorbake"; chmod +x "$work/path/qorbake"
mkdir -p "$work/nobaker"
PATH="$work/path:$PATH" "$qorc" build "$project" "$work/nobaker" > /dev/null 2> "$work/err"
check "missing qorbake fails" [ $? -eq 1 ] && check "its message" grep -q "qorbake' qui calcule les images des boutons transparents n'a pas pu être lancé" "$work/err"
check "no qorbake taken from the PATH" [ ! -e "$work/path/ran" ]
check "nothing compiled without the baker" [ ! -e "$work/nobaker/qor" ] && check "nor Autorun.inf" [ ! -e "$work/nobaker/Autorun.inf" ]
printf '#!/bin/sh\nexit 3\n' > "$prog/qorbake"; chmod +x "$prog/qorbake"
mkdir -p "$work/badbaker"
"$qorc" build "$project" "$work/badbaker" > /dev/null 2> "$work/err"
check "failing qorbake fails" [ $? -eq 1 ] && check "its message" grep -q "a échoué, code 3" "$work/err"
check "nothing compiled after a failed bake" [ ! -e "$work/badbaker/qor" ]
mv "$prog/qorbake.bak" "$prog/qorbake"

# --- HTML launcher
mkdir -p "$work/web"
"$qorc" html "$project" "$work/web/" > /dev/null
check "html written" grep -q 'hauteur=480' "$work/web/index.htm"
check "html lines end with CR LF" [ "$(grep -c $'\r$' "$work/web/index.htm")" -eq 13 ]
"$qorc" html "$project" "$work/web" > /dev/null
check "the answer as typed" [ -f "$work/webindex.htm" ]
"$qorc" html "$project" "$work/nowhere/" > /dev/null 2>&1
check "unwritable html folder fails" [ $? -eq 1 ]

# --- CD image
"$qorc" iso "$project" "$work/menu.iso" --add "$work/proj/videos" --name "Démo d'été" > /dev/null 2> "$work/err"
check "iso exits 0" [ $? -eq 0 ]
listing=$(xorriso -indev "$work/menu.iso" -find / 2>/dev/null)
for p in /Autorun.inf /qor/autorun.exe /qor/install.bat /videos/intro.avi; do
  check "iso holds $p" grep -q "'$p'" <<< "$listing"
done
check "iso volume name" grep -q "DEMO_D_ETE" <<< "$(xorriso -indev "$work/menu.iso" -pvd_info 2>/dev/null)"
check "iso has Joliet and Rock Ridge names" grep -q "ISO offers *: Rock_Ridge Joliet" <<< "$(xorriso -indev "$work/menu.iso" -toc 2>&1)"

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]
