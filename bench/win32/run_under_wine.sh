#!/usr/bin/env bash
# The Windows player's targets under wine, side by side in one run:
#  - process start to window shown: compil.exe with a 99-button menu beside
#    an empty Win32 window program, both started the same way (wine on a
#    running wineserver, the window found by its title), RUNS times each,
#    alternately; the best of each and their ratio (the best is what the
#    program costs; the rest is the shared machine's noise), then the medians;
#  - the engine's loops: the same source natively and cross-compiled under wine.
#   bench/win32/run_under_wine.sh [BUILD_DIR] [RUNS]
# QOR_BENCH_DISPLAY=:N gives the virtual screen's display (people sharing a
# machine keep to their own numbers); a free-looking one otherwise.
set -euo pipefail
build=$(cd "${1:-build}" && pwd)
runs=${2:-9}
here=$(cd "$(dirname "$0")" && pwd)
wine_env=$here/../../tests/player/win32/wine_env.sh
prefix=$build/wine
"$wine_env" "$prefix" init >/dev/null
export WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="

work=$(mktemp -d)
disp=${QOR_BENCH_DISPLAY:-:$((300 + RANDOM % 400))}
Xvfb $disp -screen 0 1280x1024x24 >/dev/null 2>&1 & xvfb=$!
trap 'wineserver -k 2>/dev/null; kill $xvfb 2>/dev/null; rm -rf "$work"' EXIT
export DISPLAY=$disp
sleep 1
wineserver -p   # one server for every start: the first start's set-up is not measured
# The 32-bit player that CDs carry; the same code's 64-bit build where wine
# has no 32-bit half to run it.
tree=$build/win32; player=$build/program/compil.exe
if [[ ! -x /usr/lib/wine/wine ]]; then
  tree=$build/win64; player=$tree/src/player/win32/compil.exe
  echo "wine has no 32-bit half here: measuring the 64-bit build of the player"
fi
menu=$(QOR_COMPIL_EXE=$player "$build/bench/win32_menu99" "$work")
empty=$tree/empty_window.exe

now_ms() { echo $(( $(date +%s%N) / 1000000 )); }
# Milliseconds from start until a visible window has the title.
start_time() {  # start_time TITLE PROGRAM [ARGS]
  local title=$1; shift
  local t0; t0=$(now_ms)
  wine "$@" >/dev/null 2>&1 &
  local pid=$!
  until xdotool search --onlyvisible --name "^$title\$" >/dev/null 2>&1; do
    kill -0 $pid 2>/dev/null || { echo "program ended before its window showed: $*" >&2; exit 1; }
    sleep 0.005
  done
  echo $(( $(now_ms) - t0 ))
  kill $pid 2>/dev/null; wait $pid 2>/dev/null || true
  # The Windows process itself, not only its wine loader.
  wine taskkill /f /im "$(basename "$1")" >/dev/null 2>&1 || true
}
median() { sort -n | awk '{a[NR]=$1} END {print a[int((NR+1)/2)]}'; }
best() { sort -n | head -1; }

start_time "Fenetre vide" "$empty" >/dev/null   # warm the file cache once each
start_time "Menu99" "$menu" >/dev/null
: > "$work/empty"; : > "$work/menu"
for ((i = 0; i < runs; i++)); do
  start_time "Fenetre vide" "$empty" >> "$work/empty"
  start_time "Menu99" "$menu" >> "$work/menu"
done
echo "  runs (ms), sorted: empty $(sort -n "$work/empty" | tr '\n' ' ')| menu $(sort -n "$work/menu" | tr '\n' ' ')"
for what in best median; do
  e=$($what < "$work/empty"); m=$($what < "$work/menu")
  echo "start to window, $what of $runs: empty Win32 window $e ms, compil.exe with 99 buttons $m ms, ratio $(awk "BEGIN {printf \"%.2f\", $m / $e}")"
done

echo "engine loops, best of 5 (ms): native | under wine"
paste <("$build/bench/script_loops" 5) <(wine "$tree/script_loops.exe" 5 | tr -d '\r') |
  awk '{printf "  %-8s %8.2f | %8.2f  (%.2fx)\n", $1, $2, $4, $4 / $2}'
