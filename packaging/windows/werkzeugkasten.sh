#!/usr/bin/env bash
# Builds the toolkit for Windows from the source in Debian's archive, once, into a folder outside the checkout
# (packaging/windows/ort.sh says where). What is left there is under 1 GB; what it takes meanwhile is 3.5 GB.
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
. "$hier/packaging/windows/ort.sh"
. "$hier/tools/pakete.sh"

bau="$windows_cache/bau"
melde() { printf '== %s (%d min %02d s)\n' "$1" $((SECONDS / 60)) $((SECONDS % 60)); }

# The original archive, checked against the archive's signatures by apt itself. The list of sources is this
# script's own, so the machine's stays as it is.
quelle_holen() {
  local apt=(apt-get -q -o Dir::Etc::SourceList="$windows_cache/quellen.list" -o Dir::Etc::SourceParts=/dev/null
    -o Dir::State::Lists="$windows_cache/listen" -o APT::Sandbox::User=root
    -o pkgCacheFile= -o Dir::Cache="$windows_cache/listen")
  ls "$windows_cache"/qt6-base_6.4.*.orig.tar.xz >/dev/null 2>&1 && return 0
  mkdir -p "$windows_cache/listen/partial"
  echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]" \
    "${FELDKRANZ_DEBIAN:-http://deb.debian.org/debian} bookworm main" >"$windows_cache/quellen.list"
  "${apt[@]}" update
  (cd "$windows_cache" && "${apt[@]}" source --download-only qt6-base)
  rm -rf "$windows_cache/listen" "$windows_cache/quellen.list"
}

aus=(
  # Drawn in software: no driver is asked for, and none can be missing.
  opengl vulkan
  # The program speaks to a second start of itself by local sockets; it needs no more of the network.
  ssl openssl schannel dtls ocsp http udpsocket networkproxy socks5 networkdiskcache networklistmanager dnslookup
  sspi gssapi topleveldomain brotli libproxy
  sql xml dbus concurrent icu glib zstd
  # Its header isn't in Debian's archive.
  tabletevent
  # Not direct2d itself: DirectWrite, which draws the texts, is linked by it.
  direct2d1_1
  # Everything that is linked comes from the toolkit's own source.
  system_zlib system_pcre2 system_freetype system_harfbuzz system_png system_jpeg system_doubleconversion
  pkg_config
)

einrichten() {
  local schalter=() merkmal
  for merkmal in "${aus[@]}"; do schalter+=("-DFEATURE_$merkmal=OFF"); done
  cmake -S "$bau"/qtbase-everywhere-src-* -B "$bau/b" -G Ninja \
    -DCMAKE_TOOLCHAIN_FILE="$hier/cmake/WindowsWerkzeug.cmake" -DCMAKE_BUILD_TYPE=MinSizeRel \
    -DCMAKE_INSTALL_PREFIX="$windows_qt" -DBUILD_SHARED_LIBS=OFF -DBUILD_WITH_PCH=ON \
    -DCMAKE_C_FLAGS="-ffunction-sections -fdata-sections" -DCMAKE_CXX_FLAGS="-ffunction-sections -fdata-sections" \
    -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR=/usr/lib/x86_64-linux-gnu/cmake \
    -DQT_QMAKE_TARGET_MKSPEC=win32-g++ -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF \
    -DINPUT_opengl=no -DFEATURE_testlib=ON -DFEATURE_network=ON -DFEATURE_localserver=ON "${schalter[@]}"
}

melde "The toolkit's source from Debian's archive"
mkdir -p "$windows_cache"
quelle_holen
rm -rf "$bau" "$windows_qt"
mkdir -p "$bau"
tar -C "$bau" -xf "$windows_cache"/qt6-base_6.4.*.orig.tar.xz
melde "Its configuration"
einrichten >"$windows_cache/einrichten.log" 2>&1 || { tail -40 "$windows_cache/einrichten.log" >&2; exit 1; }
melde "Its build"
nice -n 10 cmake --build "$bau/b" -j "${CMAKE_BUILD_PARALLEL_LEVEL:-$(kerne)}" >"$windows_cache/bau.log" 2>&1 ||
  { tail -40 "$windows_cache/bau.log" >&2; exit 1; }
groesse=$(du -sm "$bau" | cut -f1)
cmake --install "$bau/b" >>"$windows_cache/bau.log" 2>&1
python3 "$hier/packaging/windows/lizenzen.py" "$bau"/qtbase-everywhere-src-* "$windows_qt/lizenzen"
rm -rf "$bau"
windows_rezept "$hier" >"$windows_qt/fertig"
melde "Done: $(du -sm "$windows_qt" | cut -f1) MB, while building $groesse MB"
