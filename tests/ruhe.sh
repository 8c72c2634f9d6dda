#!/usr/bin/env bash
# Runs all tests again and again while busy loops hold the machine: a test that depends on a quiet one fails here.
# Usage: ruhe.sh [rounds [loops [arguments of ctest...]]], five rounds and four loops by themselves. Needs the debug
# build.
set -u
cd "$(dirname "${BASH_SOURCE[0]}")/.."
runden=${1:-5} schleifen=${2:-4}
shift $(($# > 2 ? 2 : $#))

last=()
beenden() { [ ${#last[@]} -gt 0 ] && kill "${last[@]}" 2>/dev/null; }
trap beenden EXIT
for _ in $(seq "$schleifen"); do
  (while :; do :; done) &
  last+=($!)
done

ergebnis=0
for runde in $(seq "$runden"); do
  anfang=$SECONDS
  # As many side by side as in test.sh.
  ctest --preset debug -j $((3 * $(nproc))) --output-on-failure --no-tests=error "$@" \
    >"build/ruhe-$runde.log" 2>&1 || ergebnis=1
  echo "round $runde, $((SECONDS - anfang)) s: $(grep 'tests passed' "build/ruhe-$runde.log")"
  sed -n '/The following tests FAILED/,$p' "build/ruhe-$runde.log"
done
exit $ergebnis
