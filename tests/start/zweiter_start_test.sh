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
klage() { echo "$*" >&2; exit 1; }

cp "$programm" "$ordner/feldkranz"
cp -r "$daten"/* "$ordner"
chmod -R u+w "$ordner"
# A form with a number that is too large: it opens, and before that a box tells of it.
sed '0,/^12\r$/s//99999\r\n12\r/' "$daten/KRANZ/Kurzabend.FKR" >"$ordner/Übung im Schnee.FKR"
kasten='Fehler beim Laden'

fenster() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
warten() { # title: until a window of that title is there; prints its number
  local nummer
  for _ in $(seq 300); do
    nummer=$(fenster "$1") && [ -n "$nummer" ] && { echo "$nummer"; return; }
    sleep 0.1
  done
  klage "no window \"$1\" came"
}
weg() { # title: until no window of that title is there
  for _ in $(seq 300); do [ -n "$(fenster "$1")" ] || return 0; sleep 0.1; done
  klage "the window \"$1\" stays"
}
weiter() { # window, key. To the keyboard, not to the window: a key whose window has gone would stay down and repeat.
  xdotool windowactivate --sync "$1" key "$2"
}
laeuft() { kill -0 "$1" 2>/dev/null; }

# The first start has a file of its own, which waits for the main window: a box shows that it was opened.
cd "$ordner"
./feldkranz 'Übung im Schnee.FKR' &
erster=$!
weiter "$(warten 'Am Start')" Return
weiter "$(warten "$kasten")" Return
weg "$kasten"

# A second start with a file hands it over and ends; the first one opens it.
SECONDS=0
timeout 20 ./feldkranz 'Übung im Schnee.FKR' || klage "the second start ended with $?"
[ "$SECONDS" -le 5 ] || klage "the second start took $SECONDS s"
weiter "$(warten "$kasten")" Return
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
weiter "$(warten 'Am Start')" Return
weiter "$(warten "$kasten")" Return
timeout 20 ./feldkranz "$ordner/Übung im Schnee.FKR" || klage "the heir of a killed program receives nothing"
warten "$kasten" >/dev/null
echo "all good"
