#!/usr/bin/env bash
# Prints a form of each kind and turns the pages into pictures: seitenbilder.sh <program> <folder>
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
arbeit=$(mktemp -d)
trap 'rm -rf "$arbeit"' EXIT
SEITEN_ORDNER="$arbeit" "$hier/../mit_bildschirm.sh" --breite 1280 --hoehe 1024 --frist 120 "$1"
for seite in seite-feldkranz seite-test; do
  pdftoppm -r 80 -png -singlefile "$arbeit/$seite.pdf" "$2/$seite"
done
