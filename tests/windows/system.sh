#!/usr/bin/env bash
# What the system has a part in, in the program itself under Wine: a second start with a file, and the tray.
# Usage: system.sh <feldkranz.exe> <data folder>
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
programm=$1 daten=$2
if [ -z "${FELDKRANZ_WINEPREFIX:-}" ]; then
  # As in fenster.sh: a screen of its own, for which Wine's desktop of another one must have gone.
  FELDKRANZ_WINEPREFIX=$("$hier/wine.sh" --ort)
  export FELDKRANZ_WINEPREFIX
  WINEPREFIX="$FELDKRANZ_WINEPREFIX" wineserver -w
  DISPLAY='' "$hier/wine.sh" reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d 96 /f >/dev/null
  WINEPREFIX="$FELDKRANZ_WINEPREFIX" wineserver -w
  exec "$hier/../mit_bildschirm.sh" --breite 1600 --hoehe 1000 --frist 250 "$0" "$@"
fi

ordner=$(mktemp -d)
aufraeumen() {
  WINEPREFIX="$FELDKRANZ_WINEPREFIX" wineserver -k 2>/dev/null || true
  kill $(jobs -p) 2>/dev/null || true
  rm -rf "$ordner"
}
trap aufraeumen EXIT
. "$hier/../hilfe/fenster.sh"
cp "$programm" "$ordner/feldkranz.exe"
cp -r "$daten"/* "$ordner"
chmod -R u+w "$ordner"
# A form with a number that is too large: it opens, and before that a box tells of it.
sed '0,/^12\r$/s//99999\r\n12\r/' "$daten/KRANZ/Kurzabend.FKR" >"$ordner/Übung im Schnee.FKR"
kasten='Fehler beim Laden'

starten() { "$hier/wine.sh" "$ordner/feldkranz.exe" "$@"; }

cd "$ordner"
starten 'Übung im Schnee.FKR' &
warten 'Am Start' >/dev/null
weg 'Am Start' Return
warten "$kasten" >/dev/null
weg "$kasten" Return
# A second start hands its file over and ends.
timeout 40 "$hier/wine.sh" "$ordner/feldkranz.exe" 'Übung im Schnee.FKR' || klage "the second start ended with $?"
warten "$kasten" >/dev/null
weg "$kasten" Return
[ "$(xdotool search --onlyvisible --name 'Am Start' 2>/dev/null | wc -l)" = 0 ] || klage "a second start window came"

# A double click on the background puts the program into the tray, a click on its icon brings it back.
haupt='Feldkranz! 2008'
trayer --edge bottom --align right --widthtype request --height 32 &
warten '^panel$' >/dev/null
eval "$(xdotool getwindowgeometry --shell "$(warten "$haupt")")"
xdotool mousemove $((X + WIDTH - 40)) $((Y + HEIGHT / 3)) click --repeat 2 --delay 60 1
weg "$haupt"
for _ in $(seq 100); do # the tray makes room for the icon in its own time
  eval "$(xdotool getwindowgeometry --shell "$(warten '^panel$')")"
  xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 1
  sleep 0.3
  [ -z "$(fenster "$haupt")" ] || { echo "a second start, the tray: as meant"; exit 0; }
done
klage "the icon doesn't bring the program back"
