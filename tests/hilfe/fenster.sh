# What scripts share that work at the program's windows from outside. Sourced, on a screen of mit_bildschirm.sh.
klage() { echo "$*" >&2; exit 1; }
fenster() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
warten() { # title: until a window of that title is there; prints its number
  local nummer
  for _ in $(seq 300); do
    nummer=$(fenster "$1") && [ -n "$nummer" ] && { echo "$nummer"; return; }
    sleep 0.1
  done
  klage "no window \"$1\" came"
}
weg() { # title, key: until no window of that title is there, with that key if there is one. The keyboard is given
  # to a window in its own time, and a key before that is lost. It goes to the keyboard, not to the window: a key whose
  # window has gone would stay down and repeat.
  local nummer
  for _ in $(seq 60); do
    nummer=$(fenster "$1")
    [ -n "$nummer" ] || return 0
    if [ $# -gt 1 ]; then timeout 5 xdotool windowactivate --sync "$nummer" key "$2" 2>/dev/null || true; fi
    sleep 0.5
  done
  klage "the window \"$1\" stays"
}
