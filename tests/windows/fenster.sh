#!/usr/bin/env bash
# Runs a window test for Windows under Wine on a virtual screen of its own.
# Usage: fenster.sh <program.exe> [argument...]
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# The desktop of Wine's belongs to the screen that its first program had: one from elsewhere must be gone.
WINEPREFIX="$("$hier/wine.sh" --ort)" wineserver -w
"$hier/../mit_bildschirm.sh" --breite 1600 --hoehe 1200 --frist 400 "$hier/wine.sh" "$@" -o -,txt
