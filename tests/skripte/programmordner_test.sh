#!/usr/bin/env bash
# A rebuild brings new files and new versions of files, and never touches what the user has changed.
set -eu
cmake=$1 quelle=$2
ordner=$(mktemp -d)
trap 'rm -rf "$ordner"' EXIT

kopieren() {
  "$cmake" "-DQUELLE=$ordner/data" "-DZIEL=$ordner/ziel" -P "$quelle/cmake/DatenKopieren.cmake"
}
pruefen() { # file expected what
  if [ "$(cat "$ordner/ziel/$1")" != "$2" ]; then
    echo "$3: $1 holds \"$(cat "$ordner/ziel/$1")\", expected \"$2\"" >&2
    exit 1
  fi
}

mkdir -p "$ordner/data/WISSEN/TIERE" "$ordner/data/KRANZ" "$ordner/data/CONFIG"
printf alt >"$ordner/data/WISSEN/TIERE/W_1 öä x.TXT"
printf alt >"$ordner/data/CONFIG/Feldkranz.INI"
printf alt >"$ordner/data/KRANZ/Beispiel.FKR"
touch "$ordner/data/KRANZ/.gitkeep"
chmod -R a-w "$ordner/data/CONFIG/Feldkranz.INI"
kopieren
pruefen 'WISSEN/TIERE/W_1 öä x.TXT' alt "first copy"
for unter in BITMAP CONFIG KRANZ REGEL SOUND TEST WISSEN; do
  [ -d "$ordner/ziel/$unter" ] || { echo "no folder $unter" >&2; exit 1; }
done
[ ! -e "$ordner/ziel/KRANZ/.gitkeep" ] || { echo ".gitkeep was delivered" >&2; exit 1; }
case $(stat -c %A "$ordner/ziel/CONFIG/Feldkranz.INI") in
  -rw*) ;;
  *) echo "a copy of a read-only file can't be written" >&2; exit 1 ;;
esac

# The user changes the settings, and adds a form and a catalogue file.
printf meins >"$ordner/ziel/CONFIG/Feldkranz.INI"
printf meins >"$ordner/ziel/KRANZ/Lager.FKR"
kopieren
pruefen CONFIG/Feldkranz.INI meins "rebuild without news"
pruefen KRANZ/Lager.FKR meins "rebuild without news"

# All three files come in a new version; only what the user left alone is replaced, also the second time.
chmod u+w "$ordner/data/CONFIG/Feldkranz.INI"
for lauf in neu neuer; do
  printf $lauf >"$ordner/data/WISSEN/TIERE/W_1 öä x.TXT"
  printf $lauf >"$ordner/data/CONFIG/Feldkranz.INI"
  printf $lauf >"$ordner/data/KRANZ/Beispiel.FKR"
  printf $lauf >"$ordner/data/KRANZ/Lager.FKR" # the user has one of that name
  kopieren
  pruefen 'WISSEN/TIERE/W_1 öä x.TXT' $lauf "new version"
  pruefen KRANZ/Beispiel.FKR $lauf "new version"
  pruefen CONFIG/Feldkranz.INI meins "new version"
  pruefen KRANZ/Lager.FKR meins "new version"
done

rm "$ordner/ziel/KRANZ/Beispiel.FKR"
kopieren
pruefen KRANZ/Beispiel.FKR neuer "file that was missing"
echo "all good"
