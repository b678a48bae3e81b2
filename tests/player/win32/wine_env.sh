#!/usr/bin/env bash
# Runs the Windows player's checks under wine, in the build's own prefix.
#   wine_env.sh PREFIX init          make the prefix once (wine's first start is slow)
#   wine_env.sh PREFIX wine EXE ...  a Windows program
#   wine_env.sh PREFIX exec CMD ...  a Linux program that starts Windows ones itself
# A check that cannot run because wine cannot start fails and says why; a
# 32-bit check on a wine without its 32-bit half is skipped (status 77) and says why.
set -uo pipefail
prefix=$1; what=$2; shift 2
export WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=-all
# No Mono or Gecko: the player needs neither, and their install prompts would block.
export WINEDLLOVERRIDES="mscoree,mshtml="

fail() { echo "wine cannot start: $*" >&2; exit 1; }
# A wine server outlives its programs by a few seconds, and keeps the display
# (or the lack of one) it was started with: a check that shows windows after
# one that showed none would find them on no screen. Each check starts its
# own server; the checks of one prefix never run side by side.
fresh_server() { wineserver -k 2>/dev/null; wineserver -w 2>/dev/null; true; }
command -v wine >/dev/null || fail "no wine on this machine (tools/install-deps.sh installs it)"
# A 32-bit program needs wine's 32-bit half, which Debian packages apart.
is_pe32() {
  local at
  at=$(od -An -tu4 -j60 -N4 "$1" 2>/dev/null | tr -d ' ') || return 1
  [[ -n $at && $(od -An -tx2 -j$((at + 4)) -N2 "$1" 2>/dev/null | tr -d ' ') == 014c ]]
}
# Without that half the check is skipped, not failed: the machine cannot run
# it at all (tools/install-deps.sh tries to install wine32:i386, which a
# mirror out of step with the amd64 packages refuses); the 64-bit build runs
# the same checks on the same code.
need_wine32() {
  if is_pe32 "$1" && [[ ! -x /usr/lib/wine/wine ]]; then
    echo "skipped: $1 is a 32-bit program and this wine has no 32-bit half (wine32:i386 is not installed)" >&2
    exit 77
  fi
  true
}

case $what in
init)
  if [[ -f $prefix/system.reg ]]; then
    echo "wine prefix ready: $prefix"
    exit 0
  fi
  mkdir -p "$prefix"
  start=$(date +%s%N)
  wine wineboot --init >"$prefix.log" 2>&1 || { cat "$prefix.log" >&2; fail "wineboot failed in $prefix"; }
  wineserver -w
  [[ -f $prefix/system.reg ]] || fail "wineboot made no prefix in $prefix"
  echo "wine prefix made in $(( ($(date +%s%N) - start) / 1000000 )) ms: $prefix"
  ;;
wine)
  [[ -f $prefix/system.reg ]] || fail "no wine prefix in $prefix"
  need_wine32 "$1"
  fresh_server
  exec wine "$@"
  ;;
exec)
  [[ -f $prefix/system.reg ]] || fail "no wine prefix in $prefix"
  [[ -z ${QOR_COMPIL_EXE:-} ]] || need_wine32 "$QOR_COMPIL_EXE"
  fresh_server
  exec "$@"
  ;;
*) echo "unknown step: $what" >&2; exit 2 ;;
esac
