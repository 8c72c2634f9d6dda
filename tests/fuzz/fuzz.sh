#!/usr/bin/env bash
# Runs every fuzzing program for that many seconds, or inputs with a leading x (x1000000), side by side. Inputs grow in
# build/fuzz/korpus; what fails is left in build/fuzz/funde and belongs, mended, into tests/fuzz/funde.
# FUZZ_LAENGE: the longest input in bytes.
# Usage: fuzz.sh [seconds | xinputs [jobs [subject...]]]
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
dauer=${1:-60}
jobs=${2:-2}
shift $(($# > 2 ? 2 : $#))
ziele=("$@")
[ ${#ziele[@]} -gt 0 ] ||
  ziele=(formular einstellungen katalog katalogtext wertgrammatik zeichen umbruch seite suche fragen blaetter pdf)

case $dauer in
  x*) grenze=-runs=${dauer#x} ;;
  *) grenze=-max_total_time=$dauer ;;
esac

einlauf() { # subject
  local korpus=build/fuzz/korpus/$1 funde=build/fuzz/funde/$1 saat=build/fuzz/saat/$1 datei
  mkdir -p "$korpus" "$funde" "$saat"
  # The delivered files are the beginning, as far as they are short enough to be changed in many places.
  find data \( -name '*.FKR' -o -name '*.INI' -o -name '*.TXT' \) -size -8k | while read -r datei; do
    cp -u "$datei" "$saat/$(echo "$datei" | tr / _)"
  done
  cp -u tests/fuzz/funde/"$1"/* "$saat/" 2>/dev/null || true
  build/fuzz/tests/fuzz/fuzz_"$1" "$grenze" -max_len="${FUZZ_LAENGE:-1024}" -timeout=10 -rss_limit_mb=1024 -print_final_stats=1 \
    -dict=tests/fuzz/woerter/"$1".dict -artifact_prefix="$funde/" "$korpus" "$saat" \
    >build/fuzz/"$1".log 2>&1 && wie=held || wie="DIDN'T HOLD, see build/fuzz/$1.log"
  printf '%-14s %12s inputs, %s\n' "$1" \
    "$(sed -n 's/^stat::number_of_executed_units: *//p' build/fuzz/"$1".log)" "$wie"
  [ "$wie" = held ]
}

ergebnis=0
laufend=0
for ziel in "${ziele[@]}"; do
  einlauf "$ziel" &
  laufend=$((laufend + 1))
  if [ "$laufend" -ge "$jobs" ]; then
    wait -n || ergebnis=1
    laufend=$((laufend - 1))
  fi
done
while [ "$laufend" -gt 0 ]; do
  wait -n || ergebnis=1
  laufend=$((laufend - 1))
done
exit $ergebnis
