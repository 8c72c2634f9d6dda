# The Debian packages that the scripts need, in one place, and a routine that installs what is missing. Sourced.

pakete_bau=(g++ cmake ninja-build qt6-base-dev qt6-translations-l10n qt6-pdf-dev qt6-webengine-dev)
# What a running program wants beside the libraries it links: a display plug-in, picture formats, fonts that
# measure like Arial.
pakete_lauf=(libqt6gui6 qt6-qpa-plugins fonts-liberation fonts-dejavu-core)
# A virtual screen, and what turns a printed page into a picture.
pakete_schirm=(xvfb openbox x11-xkb-utils xkb-data poppler-utils)
pakete_test=(googletest libgtest-dev xdotool x11-utils trayer strace cups cups-client printer-driver-cups-pdf
  dbus at-spi2-core python3-pyatspi)
pakete_stil=(clang-format python3)
pakete_lint=(clang clang-tidy cppcheck python3)
# What makes Debian packages, and what tries them out in a system of their own.
pakete_deb=(debhelper dpkg-dev fakeroot lintian python3)
pakete_paket=(debootstrap zstd xvfb xdotool appstream desktop-file-utils shared-mime-info faketime)
pakete_bench=(libbenchmark-dev libxcb1-dev pkgconf)
pakete_bild=(graphviz python3 librsvg2-bin imagemagick fonts-liberation fonts-urw-base35)
# The compiler for Windows, and what of the toolkit runs here when it is built for there.
pakete_windows=(g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev cmake ninja-build qt6-base-dev
  qt6-base-dev-tools qt6-translations-l10n python3 xz-utils)
# What runs programs for Windows.
pakete_wine=(wine wine64 fonts-liberation googletest poppler-utils python3)

# pakete_sichern <package>...: installs those that aren't there; asks nothing, and touches nothing when all are.
pakete_sichern() {
  local fehlen=() paket als_root=()
  if ! command -v dpkg-query >/dev/null; then
    echo "No Debian packages here: taking it that these are installed in some other way: $*" >&2
    return 0
  fi
  for paket in "$@"; do
    dpkg-query -W -f '${db:Status-Status}\n' "$paket" 2>/dev/null | grep -qx installed || fehlen+=("$paket")
  done
  [ ${#fehlen[@]} -eq 0 ] && return 0
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && { [ -t 0 ] || sudo -n true 2>/dev/null; }; then
      als_root=(sudo)
    else
      echo "These packages are missing, and installing them takes root:" >&2
      echo "  apt-get install --no-install-recommends ${fehlen[*]}" >&2
      echo "Run that as root, or this script as root or with sudo." >&2
      return 1
    fi
  fi
  echo "Installing: ${fehlen[*]}"
  "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -o DPkg::Lock::Timeout=300 update &&
    "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 \
      install --no-install-recommends "${fehlen[@]}" && return 0
  echo "The packages could not be installed: ${fehlen[*]}" >&2
  return 1
}

# How many jobs to run side by side: the cores, but no more than two for every 3 GiB of memory.
kerne() {
  local k speicher
  k=$(nproc 2>/dev/null || echo 2)
  speicher=$(awk '/MemAvailable/ { print int($2 / 1572864) }' /proc/meminfo 2>/dev/null || echo 2)
  [ "$speicher" -lt 1 ] && speicher=1
  [ "$k" -gt "$speicher" ] && k=$speicher
  echo "$k"
}
