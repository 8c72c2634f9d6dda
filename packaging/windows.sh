#!/usr/bin/env bash
# Makes build/windows/Feldkranz-<version>-windows.zip, the program's portable folder for 64-bit Windows, on
# Debian 12: installs what is missing, builds the toolkit once into a cache outside the checkout, then the
# program.
#   packaging/windows.sh            the zip
#   packaging/windows.sh quellen    beside it the sources that whoever hands the zip on hands on too
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pakete.sh
. packaging/windows/ort.sh

case "${1:-zip}" in
  zip | quellen) ;;
  *) sed -n '2,6p' "$0" | sed 's/^# \{0,1\}//' >&2; exit 2 ;;
esac

version=$(sed -n 's/^project(Feldkranz VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
name="Feldkranz-$version-windows"
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$(kerne)}"
export FELDKRANZ_WINDOWS_QT="$windows_qt"
melde() { printf '== %s (%d min %02d s)\n' "$1" $((SECONDS / 60)) $((SECONDS % 60)); }

pakete_sichern "${pakete_windows[@]}"
if ! windows_bereit "$PWD"; then
  melde "The toolkit for Windows, once, into $windows_cache"
  packaging/windows/werkzeugkasten.sh
fi

melde "The program"
mkdir -p build
zusatz=()
if command -v ccache >/dev/null; then zusatz=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache); fi
cmake --preset windows -DFELDKRANZ_TESTS=OFF "${zusatz[@]}" >build/windows.log 2>&1 || { cat build/windows.log >&2; exit 1; }
cmake --build --preset windows

melde "The folder"
ordner="build/windows/mitgabe/Feldkranz"
rm -rf build/windows/mitgabe
mkdir -p "$ordner/LIZENZEN"
cmake -DQUELLE="$PWD/data" -DZIEL="$PWD/$ordner" -P cmake/DatenKopieren.cmake
rm "$ordner/.ausgeliefert" # a list for builds
cp build/windows/Feldkranz/feldkranz.exe "$ordner/"
cp "$windows_qt/lizenzen/LGPL-3.0-only.txt" "$ordner/LIZENZEN/LGPL-3.0.txt"
cp "$windows_qt/lizenzen/GPL-3.0-only.txt" "$ordner/LIZENZEN/GPL-3.0.txt"
cp "$windows_qt/lizenzen/Teile.txt" "$ordner/LIZENZEN/Teile.txt"
for text in LIESMICH.txt LIZENZEN/Qt.txt; do
  sed "1s/^/\xEF\xBB\xBF/; s/@VERSION@/$version/g; s/\$/\r/" "packaging/windows/$(basename "$text")" >"$ordner/$text"
done
# The same sources make the same zip: names in order, the dates of the last change to the sources.
zeit=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}
python3 packaging/windows/packen.py build/windows/mitgabe "build/windows/$name.zip" "$zeit"
rm -rf build/windows/mitgabe

if [ "${1:-zip}" = quellen ]; then
  melde "The sources"
  quellen="build/windows/$name-quellen"
  rm -rf "$quellen" "$quellen.tar"
  mkdir -p "$quellen"
  git archive --prefix="feldkranz-$version/" -o "$quellen/feldkranz-$version.tar.gz" HEAD
  cp "$windows_cache"/qt6-base_*.orig.tar.xz "$windows_cache"/qt6-base_*.dsc "$quellen/"
  tar -C build/windows -cf "$quellen.tar" "$(basename "$quellen")"
  rm -rf "$quellen"
fi
melde "Made"
stat -c '   %n  %s bytes' build/windows/Feldkranz/feldkranz.exe build/windows/"$name"*.zip
