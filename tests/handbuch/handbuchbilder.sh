#!/usr/bin/env bash
# Takes every picture that the handbook names: handbuchbilder.sh <checkout> <program>...
# Each program puts pictures and pages into BILDER_ORDNER; one of the same name by a later program counts.
set -eu
wurzel=$1
shift
arbeit=$(mktemp -d)
trap 'rm -rf "$arbeit"' EXIT
for programm in "$@"; do
  BILDER_ORDNER="$arbeit" "$wurzel/tests/mit_bildschirm.sh" --breite 1280 --hoehe 1024 --frist 280 "$programm"
done
for seite in "$arbeit"/*.pdf; do
  pdftoppm -r 80 -png -singlefile "$seite" "${seite%.pdf}"
done
ziel="$wurzel/docs/bilder/handbuch"
rm -rf "$ziel"
mkdir -p "$ziel"
grep -o 'bilder/handbuch/[^)]*' "$wurzel/docs/Handbuch.md" | sort -u | while read -r bild; do
  cp "$arbeit/$(basename "$bild")" "$ziel/"
done
