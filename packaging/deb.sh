#!/usr/bin/env bash
# Builds the Debian packages: installs what is missing, compiles in a copy of the sources, checks with lintian.
# The same sources give the same bytes, wherever and whenever they are built.
# Usage: packaging/deb.sh [folder]        (build/deb)
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/pakete.sh
pakete_sichern "${pakete_bau[@]}" "${pakete_deb[@]}"

mkdir -p "${1:-build/deb}"
ziel=$(cd "${1:-build/deb}" && pwd)
read -r version tag < <(python3 packaging/neuigkeiten.py version)
quelle=$ziel/feldkranz-$version
rm -rf "$quelle" "$ziel"/feldkranz*_"$version"_*
mkdir "$quelle"
tar -c --exclude=./build --exclude=./.git --exclude='*~' --exclude=__pycache__ . | tar -x -C "$quelle"
cp -r packaging/debian "$quelle/debian"
cp CHANGELOG.md "$quelle/NEWS.md"
python3 packaging/neuigkeiten.py debian >"$quelle/debian/changelog"
# No file is younger than the release, whenever it was checked out.
find "$quelle" -print0 | xargs -0 touch -h -d "$tag 00:00:00 UTC"

cd "$quelle"
export LC_ALL=C.UTF-8 TZ=UTC
export DEB_BUILD_OPTIONS="noautodbgsym nocheck parallel=${CMAKE_BUILD_PARALLEL_LEVEL:-$(kerne)}"
umask 022
dpkg-buildpackage -b -uc -us
lintian --fail-on error,warning "../feldkranz_${version}_$(dpkg --print-architecture).changes"
cd "$ziel"
rm -rf "$quelle"
ls -l "$ziel"/*.deb
