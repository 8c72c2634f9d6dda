#!/usr/bin/env bash
# Runs a command on a virtual screen of its own, with a small window manager, and passes its exit code on.
# Several may run side by side; no display, session bus or user configuration of the caller is touched.
# Usage: mit_bildschirm.sh [--breite 1280] [--hoehe 1024] [--frist seconds] [--nackt] command [argument...]
#   --frist  ends the command after that time with exit code 124; 0 waits for ever
#   --nackt  no window manager
set -u

breite=1280 hoehe=1024 frist=0 nackt=
while [ $# -gt 0 ]; do
  case "$1" in
    --breite) breite=$2; shift 2 ;;
    --hoehe) hoehe=$2; shift 2 ;;
    --frist) frist=$2; shift 2 ;;
    --nackt) nackt=1; shift ;;
    --) shift; break ;;
    *) break ;;
  esac
done
[ $# -gt 0 ] || { echo "mit_bildschirm.sh: no command given" >&2; exit 2; }

hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
heim=$(mktemp -d "${TMPDIR:-/tmp}/bildschirm.XXXXXX") || exit 1
xserver='' fenster='' befehl=''

aufraeumen() {
  trap - EXIT
  for prozess in $befehl $fenster $xserver; do
    kill "$prozess" 2>/dev/null && wait "$prozess" 2>/dev/null
  done
  rm -rf "$heim"
}
trap aufraeumen EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# The server picks a free display itself and says which through a pipe: no race between parallel runs.
mkfifo "$heim/nummer" "$heim/bereit" && exec 7<>"$heim/nummer" 8<>"$heim/bereit" || exit 1
nummer=''
for _ in 1 2 3; do
  Xvfb -displayfd 7 -screen 0 "${breite}x${hoehe}x24" -dpi 96 -nolisten tcp -noreset \
    >"$heim/xvfb.log" 2>&1 8>&- &
  xserver=$!
  read -r -t 20 -u 7 nummer && break
  kill "$xserver" 2>/dev/null
  wait "$xserver" 2>/dev/null
  xserver=''
done
if [ -z "$nummer" ]; then
  echo "mit_bildschirm.sh: the virtual screen didn't start" >&2
  cat "$heim/xvfb.log" >&2
  exit 1
fi

mkdir -m 700 "$heim/laufzeit" "$heim/config" "$heim/daten" "$heim/cache"
unset WAYLAND_DISPLAY SESSION_MANAGER XDG_CURRENT_DESKTOP DESKTOP_SESSION XAUTHORITY
unset QT_STYLE_OVERRIDE QT_QPA_PLATFORMTHEME QT_IM_MODULE XMODIFIERS LC_ALL LANGUAGE
export DISPLAY=":$nummer" LANG=C.UTF-8 QT_QPA_PLATFORM=xcb HOME="$heim"
export XDG_RUNTIME_DIR="$heim/laufzeit" XDG_CONFIG_HOME="$heim/config" XDG_DATA_HOME="$heim/daten"
export XDG_CACHE_HOME="$heim/cache" DBUS_SESSION_BUS_ADDRESS='disabled:' NO_AT_BRIDGE=1
# A German keyboard, so that umlauts are keys and not keymaps changed in passing.
setxkbmap de >"$heim/xkb.log" 2>&1
# Plain windows need no 3D driver, and loading one takes longer than most tests.
export QT_XCB_GL_INTEGRATION="${QT_XCB_GL_INTEGRATION-none}"

if [ -z "$nackt" ]; then
  openbox --sm-disable --config-file "$hier/bildschirm/openbox.xml" \
    --startup "sh -c 'echo da >$heim/bereit'" >"$heim/openbox.log" 2>&1 7>&- 8>&- &
  fenster=$!
  if ! read -r -t 20 -u 8 _; then
    echo "mit_bildschirm.sh: the window manager didn't start" >&2
    cat "$heim/openbox.log" >&2
    exit 1
  fi
fi

# In the background, so that a signal to this script ends the command too.
if [ "$frist" -gt 0 ]; then
  timeout --kill-after=5 "$frist" "$@" 7>&- 8>&- <&0 &
else
  "$@" 7>&- 8>&- <&0 &
fi
befehl=$!
wait "$befehl"
ergebnis=$?
befehl=''
if [ "$frist" -gt 0 ] && [ "$ergebnis" -eq 124 ]; then
  echo "mit_bildschirm.sh: not done after $frist seconds: $*" >&2
fi
exit "$ergebnis"
