#!/usr/bin/env bash
# Every window on the usual screens, a sheet a screen, to be looked at: build/bilder/bogen/<screen>.png.
# Usage: groessenbogen.sh [<width>x<height>[@<scale>]...]. Needs the targets fensterbilder_programm and
# handbuchbilder_programm in build/debug, and imagemagick.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
ziel=build/bilder/bogen
[ $# -gt 0 ] || set -- 800x600 1366x768 1920x1080 3840x2160@2

for schirm in "$@"; do
  groesse=${schirm%@*} faktor=1
  [ "$groesse" = "$schirm" ] || faktor=${schirm#*@}
  ordner="$ziel/$schirm"
  rm -rf "$ordner"
  mkdir -p "$ordner/extras"
  for programm in bilder/fensterbilder handbuch/handbuchbilder; do
    bilder=$ordner
    [ "$programm" = bilder/fensterbilder ] || bilder=$ordner/extras
    BILDER_ORDNER="$PWD/$bilder" QT_SCALE_FACTOR=$faktor tests/mit_bildschirm.sh --breite "${groesse%x*}" \
      --hoehe "${groesse#*x}" --frist 250 "build/debug/tests/${programm}_programm" >"$ordner/$(basename "$programm").log" ||
      echo "$schirm: $programm left something out, see its log in $ordner"
  done
  rm -rf "$ordner/alle"
  mapfile -d '' bilder < <(find "$ordner" -name '*.png' -print0 | sort -z)
  montage -label '%f %wx%h' "${bilder[@]}" -tile 4x -geometry '900x700>+6+6' -background '#808080' "$ziel/$schirm.png"
  echo "$ziel/$schirm.png"
done
