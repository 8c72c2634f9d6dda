#!/usr/bin/env bash
# Plays the same evening in the program of this system and in the one for Windows, under Wine, and compares what
# came out of it.
# Usage: abend.sh <abend of this system> <abend.exe> <folder for the results>
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
eines=$1 anderes=$2 ziel=$3
rm -rf "$ziel"
mkdir -p "$ziel/linux" "$ziel/windows"
ABEND_ORDNER="$ziel/linux" "$hier/../mit_bildschirm.sh" --breite 1600 --hoehe 1200 --frist 280 "$eines" -silent
ABEND_ORDNER="Z:$ziel/windows" "$hier/fenster.sh" "$anderes"
python3 "$hier/vergleich.py" "$ziel/linux" "$ziel/windows"
