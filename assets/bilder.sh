#!/usr/bin/env bash
# Makes the background pictures in data/BITMAP from the drawings beside this script. The pictures are committed;
# run this only after a drawing was changed. Needs Debian's librsvg2-bin, imagemagick and fonts-urw-base35.
set -euo pipefail
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
ziel="$hier/../data/BITMAP"
mkdir -p "$ziel"
for zeichnung in "$hier"/FK_*.svg; do
  name=$(basename "$zeichnung" .svg)
  rsvg-convert "$zeichnung" | convert png:- -background white -alpha remove -alpha off "BMP3:$ziel/$name.bmp"
done
