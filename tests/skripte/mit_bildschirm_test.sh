#!/usr/bin/env bash
# The wrapper gives each command a screen of its own, passes the exit code on and leaves nothing behind.
set -eu
schirm=$1
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT
export TMPDIR=$ordner
unset DISPLAY

versagt() { echo "$1" >&2; exit 1; }

code=0
"$schirm" sh -c 'exit 7' || code=$?
[ $code -eq 7 ] || versagt "exit code $code instead of 7"

code=0
"$schirm" --frist 1 sleep 20 2>"$ordner/fehler" || code=$?
[ $code -eq 124 ] || versagt "exit code $code after the time limit"
grep -q 'not done after 1 seconds: sleep 20' "$ordner/fehler" || versagt "the time limit wasn't reported"

for lauf in 1 2 3; do
  "$schirm" --breite 900 --hoehe 700 sh -c 'echo "$DISPLAY $HOME"; xdotool getdisplaygeometry; cat' \
    >"$ordner/aus$lauf" </dev/null &
done
wait
[ "$(sort -u "$ordner"/aus? | grep -c ^:)" -eq 3 ] || versagt "parallel runs shared a screen or a home"
[ "$(grep -lx '900 700' "$ordner"/aus? | wc -l)" -eq 3 ] || versagt "the screen has another size"
echo Eingabe | "$schirm" cat | grep -qx Eingabe || versagt "standard input didn't arrive"

rm "$ordner"/aus? "$ordner/fehler"
[ -z "$(ls -A "$ordner")" ] || versagt "left behind: $(ls -A "$ordner")"
echo "all good"
