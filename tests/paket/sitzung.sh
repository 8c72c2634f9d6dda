#!/usr/bin/env bash
# One step of a leader at her desktop, in the system where the packages are tried: sitzung.sh <step> [argument...]
set -eu
klage() { echo "sitzung.sh: $*" >&2; exit 1; }

fenster() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
warten() { # seconds, command...: until it comes about
  local ende=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$ende" ] || return 1
    sleep 0.2
  done
}
da() { [ -n "$(fenster "$1")" ]; }
fort() { ! da "$1"; }
taste() { # title of the window, key
  xdotool windowactivate --sync "$(fenster "$1")" key "$2" 2>/dev/null || true # it may go before the key is up
}
gespeichert() { # file: saved by the key now
  taste 'Feldkranz! 2008' ctrl+s
  sleep 0.3
  xdotool key Return # the message that it is
  [ "$1" -nt /tmp/vorher ]
}
gedruckt() { find "$HOME/PDF" /var/spool/cups-pdf -name '*.pdf' -size +5k 2>/dev/null | grep -q .; }

bildschirm() {
  Xvfb "$DISPLAY" -screen 0 1920x1200x24 -nolisten tcp >/tmp/xvfb.log 2>&1 &
  warten 30 xdotool getdisplaygeometry >/dev/null 2>&1 || klage "no screen"
  openbox >/tmp/openbox.log 2>&1 &
}

art() { # file: its kind, by its name and by its first line, and whose it is
  local kind
  cp "$1" "$HOME/ohne Namen"
  for kind in "$1" "$HOME/ohne Namen"; do
    [ "$(xdg-mime query filetype "$kind")" = application/x-feldkranz ] ||
      klage "$kind is $(xdg-mime query filetype "$kind")"
  done
  [ "$(xdg-mime query default application/x-feldkranz)" = feldkranz.desktop ] || klage "nobody opens forms"
}

# The start window, with its bar at the first start, until its button goes on to the main window.
durchs_startfenster() {
  warten 60 da 'Am Start' || klage "no start window"
  local ende=$((SECONDS + 120))
  while da 'Am Start' && [ "$SECONDS" -lt "$ende" ]; do
    taste 'Am Start' Return # does nothing as long as the folder is being made
    sleep 0.5
  done
  warten 30 da 'Feldkranz! 2008' || klage "no main window"
}

oeffnen() { # file, as a file manager opens it
  xdg-open "$1" >/tmp/feldkranz.log 2>&1 &
  durchs_startfenster
}

starten() {
  feldkranz >/tmp/feldkranz.log 2>&1 &
  durchs_startfenster
}

speichern() { # file that is open
  touch -d '2 hours ago' "$1" /tmp/vorher
  # The form opens as soon as the main window is there and nobody is asked anything; before, the keys do nothing.
  warten 30 gespeichert "$1" || klage "$1 wasn't saved"
  head -n 1 "$1" | grep -q '^"Feldkranz"' || klage "$1 is no form any more"
  [ "$(wc -c <"$1")" -gt 1000 ] || klage "$1 is empty"
}

drucken() {
  taste 'Feldkranz! 2008' ctrl+p
  warten 30 da 'Formular drucken' || klage "it doesn't ask before it prints"
  taste 'Formular drucken' Return
  warten 60 gedruckt || klage "nothing came out of the printer: $(lpstat -W all -o 2>&1)"
}

beenden() {
  pkill -x -U "$(id -u)" feldkranz || klage "the program has ended by itself"
  warten 30 fort 'Feldkranz! 2008' || klage "it doesn't end"
}

"$@"
