#!/usr/bin/env bash
# What the program prints, and its exit code, with no display anywhere near.
set -eu
programm=$1 version=$2
unset DISPLAY WAYLAND_DISPLAY XDG_RUNTIME_DIR
export HOME=/nonexistent

rufen() { # exit code, then arguments; leaves what was printed in $aus and $err
  local soll=$1 ist=0
  shift
  aus=$("$programm" "$@" 2>"$fehler") || ist=$?
  err=$(cat "$fehler")
  [ "$ist" -eq "$soll" ] || { echo "feldkranz $*: exit code $ist, expected $soll" >&2; exit 1; }
}
fehler=$(mktemp)
trap 'rm -f "$fehler"' EXIT

rufen 0 --version
[ "$aus" = "feldkranz $version" ] && [ -z "$err" ] || { echo "--version: $aus $err" >&2; exit 1; }
rufen 0 --help
[[ $aus == "Aufruf: feldkranz ["* && $aus == *"--version"* && -z $err ]] || { echo "--help: $aus $err" >&2; exit 1; }
for falsch in "-x" "--bogus" "" "--" "A.FKR B.FKR" "--help A.FKR" "-platform offscreen"; do
  if [ -z "$falsch" ]; then rufen 2 ""; else read -ra worte <<<"$falsch"; rufen 2 "${worte[@]}"; fi
  [[ -z $aus && $err == *"Aufruf: feldkranz ["* && $(wc -l <<<"$err") -le 2 ]] ||
    { echo "\"$falsch\": $aus $err" >&2; exit 1; }
done
[ "$("$programm" --version >/dev/full 2>/dev/null; echo $?)" = 1 ] || { echo "a full disk is no success" >&2; exit 1; }
echo "all good"
