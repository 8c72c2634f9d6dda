#!/usr/bin/env bash
# Installs what is missing and checks everything that a change can break: file style, one build, all tests.
# Else the parts named:
#   ./test.sh alles     that, then the linters over everything and the tests again under the sanitizers
#   ./test.sh stil      format, layers, file style
#   ./test.sh debug     tests with the standard library's checks (arguments behind it go to ctest)
#   ./test.sh tidy      clang-tidy and cppcheck
#   ./test.sh lint      stil and tidy
#   ./test.sh asan      tests under the address and undefined-behaviour sanitizers
#   ./test.sh fuzz 60   every reader, writer and layout of the model against made-up inputs, 60 seconds each
#   ./test.sh coverage  tests with the share of lines and branches that they run
#   ./test.sh windows   the program for Windows under Wine, where packaging/windows.sh has built its toolkit
#   ./test.sh paket     the Debian packages: built twice, and installed and used in a system of their own (root)
#   ./test.sh release   the program as it is shipped, and the tests that the sanitizers can't run with it
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/pakete.sh

case "${1:-schnell}" in
  schnell | alles | stil | tidy | lint | release | debug | asan | coverage | fuzz | windows | paket) ;;
  *) sed -n '2,14p' "$0" | sed 's/^# \{0,1\}//' >&2; exit 2 ;;
esac

pakete=("${pakete_bau[@]}" "${pakete_lauf[@]}" "${pakete_schirm[@]}" "${pakete_test[@]}" "${pakete_stil[@]}")
case "${1:-schnell}" in
  alles | tidy | lint | fuzz) pakete+=("${pakete_lint[@]}") ;;
esac
[ "${1:-}" != paket ] || pakete=("${pakete_bau[@]}" "${pakete_deb[@]}" "${pakete_paket[@]}")
pakete_sichern "${pakete[@]}"

kerne=$(kerne)
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$kerne}"
zusatz=(-DFELDKRANZ_WARNINGS_AS_ERRORS=ON)
if command -v ccache >/dev/null; then
  # Precompiled headers can be cached too, as long as their times aren't looked at.
  export CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
  zusatz+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi

ueberschrift() {
  printf '\n== %s (%d min %02d s)\n' "$1" $((SECONDS / 60)) $((SECONDS % 60))
}

stil() {
  ueberschrift "Format, layers, file style"
  tools/format.sh --pruefen
  python3 tools/schichten.py
  python3 tools/dateistil.py
  python3 assets/bilder.py --pruefen
}

bauen() { # preset
  ueberschrift "Building $1"
  # Another Feldkranz checkout's preset may have left settings of its own: these two are ours to say.
  cmake --preset "$1" "${zusatz[@]}" >"build/$1.log" 2>&1 || { cat "build/$1.log"; return 1; }
  cmake --build --preset "$1"
}

tests() { # preset, arguments of ctest
  bauen "$1"
  ueberschrift "Testing $1"
  ctest --preset "$1" -j $((3 * kerne)) "${@:2}" # most wait for a window while others work
}

# Tests that trace a process's system calls, or start the web library's own processes.
unsaniert=(test_core_absturz test_katalogabsturz test_frmHomepage test_netzschutz)

release() {
  bauen release
  cmake --preset release "${zusatz[@]}" -DFELDKRANZ_TESTS=ON >build/release.log 2>&1 || { cat build/release.log; return 1; }
  cmake --build --preset release --target "${unsaniert[@]}"
  ueberschrift "Testing release"
  ctest --test-dir build/release -j "$kerne" --output-on-failure --no-tests=error --timeout 600 \
    -R "^($(IFS='|'; echo "${unsaniert[*]}"))(\\.|\$)"
}

# Two builds in two folders, weeks apart, give the same bytes; those are installed and used.
paket() {
  ueberschrift "Building the packages"
  packaging/deb.sh build/deb >build/deb.log 2>&1 || { tail -n 40 build/deb.log; return 1; }
  ueberschrift "Building them in another folder on another day"
  local anderswo
  anderswo=$(mktemp -d "${TMPDIR:-/var/tmp}/feldkranz-andernorts.XXXXXX")
  TZ=Asia/Tokyo faketime -f '+40d' packaging/deb.sh "$anderswo" >build/deb2.log 2>&1 ||
    { tail -n 40 build/deb2.log; return 1; }
  for deb in build/deb/*.deb; do cmp "$deb" "$anderswo/${deb##*/}"; done
  rm -rf "$anderswo"
  ueberschrift "Installing and using them"
  tests/paket/paket_test.sh build/deb
}

tidy() {
  ueberschrift "clang-tidy and cppcheck"
  tools/tidy.sh "$kerne"
}

fuzz() { # seconds
  ueberschrift "Building fuzz"
  cmake --preset fuzz "${zusatz[@]}" >build/fuzz.log 2>&1 || { cat build/fuzz.log; return 1; }
  cmake --build --preset fuzz --target fuzz_alle
  ueberschrift "How time grows with the input"
  build/fuzz/tests/fuzz/fuzz_dauer
  ueberschrift "Fuzzing, ${1:-60} s each"
  tests/fuzz/fuzz.sh "${1:-60}" "$kerne"
}

# The model's tests, those of what only Windows has, and the evening in the real windows, compared with ours.
windows() {
  . packaging/windows/ort.sh
  if ! windows_bereit "$PWD"; then
    echo "The toolkit for Windows isn't there. packaging/windows.sh builds it, once, into $windows_cache," >&2
    echo "and the program with it; that takes half an hour. Then ./test.sh windows runs." >&2
    return 1
  fi
  pakete_sichern "${pakete_windows[@]}" "${pakete_wine[@]}"
  ueberschrift "Building the evening for this system"
  cmake --preset debug "${zusatz[@]}" >build/debug.log 2>&1 || { cat build/debug.log; return 1; }
  cmake --build --preset debug --target abend
  ueberschrift "Building windows"
  export FELDKRANZ_WINDOWS_QT="$windows_qt"
  cmake --preset windows "${zusatz[@]}" -DFELDKRANZ_TESTS=ON >build/windows.log 2>&1 ||
    { cat build/windows.log; return 1; }
  cmake --build --preset windows --target windows_tests
  ueberschrift "Testing windows"
  ctest --test-dir build/windows -L windows -j "$kerne" --output-on-failure --no-tests=error "$@"
}

mkdir -p build
case "${1:-schnell}" in
  schnell) stil; tests debug ;;
  alles) stil; tests debug; tidy; tests asan ;;
  stil) stil ;;
  tidy) tidy ;;
  lint) stil; tidy ;;
  release) release ;;
  windows) windows "${@:2}" ;;
  paket) paket ;;
  fuzz) fuzz "${2:-60}" ;;
  debug | asan) tests "$@" ;;
  coverage)
    find build/coverage -name '*.gcda' -delete 2>/dev/null || true # what earlier runs left
    tests "$@"
    python3 tools/abdeckung.py
    ;;
esac
ueberschrift "All right"
