#!/usr/bin/env bash
# Installs what is missing, builds the benchmarks as the release is built, runs them and prints the figures in
# one table: ours, the bare thing beside it, the ratio and the limit. With names, only these ("start").
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")"
. tools/pakete.sh

pakete_sichern "${pakete_bau[@]}" "${pakete_lauf[@]}" "${pakete_schirm[@]}" "${pakete_bench[@]}"
export CMAKE_BUILD_PARALLEL_LEVEL="${CMAKE_BUILD_PARALLEL_LEVEL:-$(kerne)}"
zusatz=()
command -v ccache >/dev/null && zusatz+=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
mkdir -p build
cmake --preset bench "${zusatz[@]}" >build/bench.log 2>&1 || { cat build/bench.log; exit 1; }
cmake --build --preset bench

ausgabe=build/bench/ausgabe.txt
: >"$ausgabe"
versagt=0
while read -r name schirm; do
  [ $# -eq 0 ] || [[ " $* " == *" ${name#messung_} "* ]] || continue
  echo "Measuring: ${name#messung_}"
  case "$schirm" in
    nackt) befehl=(tests/mit_bildschirm.sh --nackt "build/bench/benchmarks/$name") ;;
    schirm) befehl=(tests/mit_bildschirm.sh "build/bench/benchmarks/$name") ;;
    *) befehl=("build/bench/benchmarks/$name") ;;
  esac
  if ! "${befehl[@]}" </dev/null >build/bench/lauf.txt; then
    echo "$name failed" >&2
    versagt=1
  fi
  grep -v '^KENNZAHL;' build/bench/lauf.txt || true
  cat build/bench/lauf.txt >>"$ausgabe"
done <build/bench/messungen.txt

awk -F'[;|]' -f tools/tabelle.awk tools/kennzahlen.txt "$ausgabe" || versagt=1
[ $versagt -eq 0 ]
