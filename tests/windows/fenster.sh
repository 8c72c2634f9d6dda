#!/usr/bin/env bash
# Runs a window test for Windows under Wine on a virtual screen of its own.
# Usage: fenster.sh <program.exe> [argument...]
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# The desktop of Wine's belongs to the screen that its first program had: one from elsewhere must be gone.
# The screen brings a home folder of its own, where no prefix is.
FELDKRANZ_WINEPREFIX=$("$hier/wine.sh" --ort)
export FELDKRANZ_WINEPREFIX
WINEPREFIX="$FELDKRANZ_WINEPREFIX" wineserver -w
# Without a console the program's report goes to the debugger: a file takes it.
bericht=$(mktemp "${TMPDIR:-/tmp}/fenster.XXXXXX")
trap 'cat "$bericht"; rm -f "$bericht"' EXIT
"$hier/../mit_bildschirm.sh" --breite 1600 --hoehe 1200 --frist 400 "$hier/wine.sh" "$@" -o "Z:$bericht,txt"
