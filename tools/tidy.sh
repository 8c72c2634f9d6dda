#!/usr/bin/env bash
# clang-tidy and cppcheck over all sources of ours, every hit an error.
# Usage: tidy.sh [jobs [source...]]
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
jobs=${1:-$(nproc)}
[ $# -gt 0 ] && shift

mkdir -p build
cmake --preset lint >build/lint.log 2>&1 || { cat build/lint.log; exit 1; }
# Only what the toolkit's generator makes is needed, no object file. Its commands are run by themselves: asked for
# by name, the build would first make the libraries that the programs link.
mapfile -t erzeugt < <(ninja -C build/lint -t targets all | grep -oE '^[^/: ][^: ]*(_autogen/timestamp|\.moc):' |
  tr -d : | sort -u)
printf '%s\n' "${erzeugt[@]}" | xargs -P "$jobs" -I{} sh -c 'mkdir -p "build/lint/$(dirname "$1")"; ninja -C build/lint -t commands -s "$1" | grep -v "^ninja:" |
  sh >/dev/null' sh {} 2>build/lint.log || { cat build/lint.log; exit 1; }

if [ $# -gt 0 ]; then
  quellen=("$@")
else
  mapfile -t quellen < <(python3 tools/tidyquellen.py)
fi
echo "clang-tidy over ${#quellen[@]} files"
ergebnis=0
printf '%s\0' "${quellen[@]}" |
  xargs -0 -n 1 -P "$jobs" sh -c 'clang-tidy -p build/lint --quiet "$1" 2>build/lint-stderr.$$ ||
    { grep -v " warnings\{0,1\}\( and .* errors\{0,1\}\)\{0,1\} generated" build/lint-stderr.$$ >&2
      rm -f build/lint-stderr.$$; exit 1; }; rm -f build/lint-stderr.$$' sh || ergebnis=1

echo "cppcheck"
python3 tools/cppcheck.py "$jobs" "${quellen[@]}" || ergebnis=1
exit $ergebnis
