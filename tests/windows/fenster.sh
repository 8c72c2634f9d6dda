#!/usr/bin/env bash
# Runs a window test for Windows under Wine on a virtual screen of its own.
# Usage: fenster.sh <program.exe> [argument...]
# FELDKRANZ_SKALA: the system's scale in per cent; the screen grows with it, so that as much fits on it.
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# The desktop of Wine's belongs to the screen that its first program had: one from elsewhere must be gone.
# The screen brings a home folder of its own, where no prefix is.
FELDKRANZ_WINEPREFIX=$("$hier/wine.sh" --ort)
export FELDKRANZ_WINEPREFIX
skala=${FELDKRANZ_SKALA:-100}
WINEPREFIX="$FELDKRANZ_WINEPREFIX" wineserver -w
DISPLAY='' "$hier/wine.sh" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $((96 * skala / 100)) /f >/dev/null
WINEPREFIX="$FELDKRANZ_WINEPREFIX" wineserver -w
# Without a console the program's report goes to the debugger: a file takes it.
bericht=$(mktemp "${TMPDIR:-/tmp}/fenster.XXXXXX")
trap 'cat "$bericht"; rm -f "$bericht"' EXIT
"$hier/../mit_bildschirm.sh" --breite $((16 * skala)) --hoehe $((12 * skala)) --frist 400 "$hier/wine.sh" "$@" -o "Z:$bericht,txt"
