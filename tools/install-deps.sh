#!/usr/bin/env bash
# Installs the Debian packages the build needs, and only those that are missing.
#   tools/install-deps.sh            build, run and test
#   tools/install-deps.sh fuzz       also clang with libFuzzer and the sanitizers
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config git ccache
  qt6-base-dev qt6-base-dev-tools libgl-dev libglx-dev
  libxcb1-dev
  qt6-multimedia-dev qt6-translations-l10n
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  lua5.4 liblua5.4-dev
  fonts-dejavu-core
  xorriso
  g++-mingw-w64-x86-64 g++-mingw-w64-i686 wine wine64
  xvfb xauth xdotool x11-utils openbox imagemagick
  # the wine checks read the pointer's picture through Xfixes
  libx11-dev libxfixes-dev
  # the web player: built with emscripten, checked in headless Chromium and Firefox
  emscripten chromium chromium-driver python3-selenium firefox-esr
  # wine only loads these X libraries when present; without them its windows
  # lose their cursors, transparency and screen geometry.
  libxrender1 libxcursor1 libxrandr2 libxi6 libxcomposite1 libxinerama1 libxfixes3
)
if [[ "${1:-}" == "fuzz" ]]; then
  packages+=(clang libclang-rt-14-dev)
fi

installed() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q "install ok installed"; }

missing=()
for p in "${packages[@]}"; do
  installed "$p" || missing+=("$p")
done
# The Windows player is a 32-bit program; wine runs one only with its 32-bit
# half, which comes from the i386 architecture.
need_wine32=0
installed wine32:i386 || need_wine32=1
[[ ${#missing[@]} -eq 0 && $need_wine32 -eq 0 ]] && exit 0

echo "Installing: ${missing[*]}${missing[*]:+ }$([[ $need_wine32 -eq 1 ]] && echo wine32:i386)"
sudo=()
if [[ $(id -u) -ne 0 ]]; then
  if command -v sudo >/dev/null; then sudo=(sudo); else
    echo "These packages are missing and this user cannot install them: ${missing[*]}" >&2
    exit 1
  fi
fi
export DEBIAN_FRONTEND=noninteractive
if [[ $need_wine32 -eq 1 ]] && ! dpkg --print-foreign-architectures | grep -qx i386; then
  "${sudo[@]}" dpkg --add-architecture i386
fi
# A mirror caught mid-sync fails one index; the others still serve.
"${sudo[@]}" apt-get update -qq -o DPkg::Lock::Timeout=600 || echo "apt-get update: some indexes were not refreshed" >&2
apt_install() { "${sudo[@]}" apt-get install -y -qq --no-install-recommends -o DPkg::Lock::Timeout=600 "$@"; }
[[ ${#missing[@]} -eq 0 ]] || apt_install "${missing[@]}"
# The build does not need it: without it only the 32-bit wine checks fail,
# and they say why.
if [[ $need_wine32 -eq 1 ]] && ! apt_install wine32:i386; then
  echo "wine32:i386 could not be installed: the 32-bit player's wine checks cannot run" >&2
fi
