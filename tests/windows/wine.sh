#!/usr/bin/env bash
# Runs a program for Windows under Wine, in a prefix of the tests' own beside the toolkit, and passes its exit
# code on. The prefix is made at the first call.
# Usage: wine.sh <program.exe> [argument...]
#        wine.sh --ort   says where the prefix is
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$hier/packaging/windows/ort.sh"
export WINEPREFIX="${FELDKRANZ_WINEPREFIX:-$windows_cache/wine}" WINEDEBUG="${WINEDEBUG:--all}" WINEARCH=win64
if [ "${1:-}" = --ort ]; then
  echo "$WINEPREFIX"
  exit
fi
# Debian's own "wine" asks for its 32-bit half at each start.
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
# Neither of the two is looked for, asked for or installed.
export WINEDLLOVERRIDES="mscoree,mshtml=${WINEDLLOVERRIDES:+;$WINEDLLOVERRIDES}"

prefix_machen() {
  local neu="$WINEPREFIX.neu"
  rm -rf "$neu"
  mkdir -p "$(dirname "$WINEPREFIX")"
  WINEPREFIX="$neu" DISPLAY='' wineboot --init >/dev/null 2>&1
  # Letters are smoothed as on a real machine: without, some vanish at small sizes. Warnings of crashed
  # programs go to the terminal, not into a window.
  printf '%s\n' 'REGEDIT4' '' '[HKEY_CURRENT_USER\Control Panel\Desktop]' '"FontSmoothing"="2"' \
    '"FontSmoothingType"=dword:00000001' '"FontSmoothingGamma"=dword:00000578' \
    '"FontSmoothingOrientation"=dword:00000001' '' '[HKEY_CURRENT_USER\Software\Wine\WineDbg]' \
    '"ShowCrashDialog"=dword:00000000' >"$neu/glatt.reg"
  WINEPREFIX="$neu" DISPLAY='' "$wine" regedit 'Z:'"${neu//\//\\}"'\glatt.reg' >/dev/null 2>&1
  WINEPREFIX="$neu" wineserver -w
  mv "$neu" "$WINEPREFIX"
}

if [ ! -e "$WINEPREFIX/system.reg" ]; then
  # Several tests begin at once.
  mkdir -p "$windows_cache"
  exec 9>"$windows_cache/wine.sperre"
  flock 9
  [ -e "$WINEPREFIX/system.reg" ] || prefix_machen 9>&-
  exec 9>&-
fi
exec "$wine" "$@"
