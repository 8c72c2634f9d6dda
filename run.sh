#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. Without a display it prepares a typical evening's
# form in the real windows on a virtual screen instead, and says what came out of it.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/pakete.sh

pakete_sichern "${pakete_bau[@]}" "${pakete_lauf[@]}"

export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$(kerne)}"
cmake --preset release
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  cmake --build --preset release
  exec build/release/Feldkranz/feldkranz
fi

pakete_sichern "${pakete_schirm[@]}" xdotool
cmake --build --preset release
cmake --build --preset release --target abend
echo
echo "There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set), so the program can't show its"
echo "windows. Preparing a typical evening's form on a virtual screen instead:"
echo
rm -rf build/abend
mkdir -p build/abend
ABEND_ORDNER="$PWD/build/abend" tests/mit_bildschirm.sh --breite 1600 --hoehe 1200 --frist 300 \
  build/release/tests/abend
for pdf in build/abend/*.pdf; do
  [ -e "$pdf" ] && pdftoppm -r 80 -png "$pdf" "${pdf%.pdf}_Seite"
done
echo
echo "Made in build/abend/:"
(cd build/abend && find . -type f -printf '  %P  (%s bytes)\n' | sort)
