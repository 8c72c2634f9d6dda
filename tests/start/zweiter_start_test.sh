#!/usr/bin/env bash
# Two starts of the program itself: a file of the second goes to the first one, which may hang or be killed.
# Usage: zweiter_start_test.sh <program> <data folder>
set -eu
programm=$1 daten=$2
ordner=$(mktemp -d)
erster='' zweiter=''
aufraeumen() {
  for prozess in $erster $zweiter; do kill -9 "$prozess" 2>/dev/null || true; done
  rm -rf "$ordner"
}
trap aufraeumen EXIT
. "$(dirname "${BASH_SOURCE[0]}")/../hilfe/fenster.sh"

cp "$programm" "$ordner/feldkranz"
cp -r "$daten"/* "$ordner"
chmod -R u+w "$ordner"
# A form with a number that is too large: it opens, and before that a box tells of it.
sed '0,/^12\r$/s//99999\r\n12\r/' "$daten/KRANZ/Kurzabend.FKR" >"$ordner/Übung im Schnee.FKR"
kasten='Fehler beim Laden'

laeuft() { kill -0 "$1" 2>/dev/null; }

# The first start has a file of its own, which waits for the main window: a box shows that it was opened.
cd "$ordner"
./feldkranz 'Übung im Schnee.FKR' &
erster=$!
warten 'Am Start' >/dev/null
weg 'Am Start' Return
warten "$kasten" >/dev/null
weg "$kasten" Return

# A second start with a file hands it over and ends; the first one opens it.
SECONDS=0
timeout 20 ./feldkranz 'Übung im Schnee.FKR' || klage "the second start ended with $?"
[ "$SECONDS" -le 5 ] || klage "the second start took $SECONDS s"
warten "$kasten" >/dev/null
weg "$kasten" Return
laeuft "$erster" || klage "the first one ended"
[ "$(xdotool search --onlyvisible --name 'Am Start' 2>/dev/null | wc -l)" = 0 ] || klage "a second start window came"

# One that hangs isn't waited for: the second start becomes a program of its own.
kill -STOP "$erster"
./feldkranz 'KRANZ/Kurzabend.FKR' &
zweiter=$!
warten 'Am Start' >/dev/null
laeuft "$zweiter" || klage "the second start waits for a hanging program"
kill -9 "$zweiter" "$erster"
wait 2>/dev/null || true
weg 'Am Start'

# Neither is a killed one in the way.
./feldkranz 'Übung im Schnee.FKR' &
erster=$!
warten 'Am Start' >/dev/null
weg 'Am Start' Return
warten "$kasten" >/dev/null
weg "$kasten" Return
timeout 20 ./feldkranz "$ordner/Übung im Schnee.FKR" || klage "the heir of a killed program receives nothing"
warten "$kasten" >/dev/null
echo "all good"
