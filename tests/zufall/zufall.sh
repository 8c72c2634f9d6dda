#!/usr/bin/env bash
# Runs the random hands in a pen: every file system read-only but for one temporary folder, no network, no
# programs to start, no rights. Ends with 77 where the system doesn't let itself be shut like that.
# Usage, under mit_bildschirm.sh: zufall.sh program [--saat n] [--schritte n] [--liste file]
# When something is wrong, the steps stay in <folder of the program>/zufall_<process>.txt.
set -u

if [ "${1:-}" = --im-gehege ]; then
  programm=$2 heim=$3
  shift 3
  mount --bind "$heim" "$heim" || exit 77
  while read -r _ _ _ _ ort _; do
    ort=$(printf '%b' "$ort")
    [ "$ort" = "$heim" ] || mount -o remount,bind,ro "$ort" 2>/dev/null # the program tries whether it holds
  done </proc/self/mountinfo
  cd "$heim" || exit 77
  export HOME=$heim TMPDIR=$heim XDG_CONFIG_HOME=$heim XDG_DATA_HOME=$heim XDG_CACHE_HOME=$heim
  export XDG_RUNTIME_DIR=$heim CUPS_SERVER=127.0.0.1:1
  rechte=(--bounding-set=-all --inh-caps=-all --no-new-privs)
  [ -n "${GEHEGE_ROOT:-}" ] && rechte+=(--reuid=65534 --regid=65534 --clear-groups)
  setpriv=$(command -v setpriv)
  PATH=$heim exec "$setpriv" "${rechte[@]}" "$programm" "$@" --protokoll 3
fi

programm=$(realpath "$1")
shift
heim=$(mktemp -d "${TMPDIR:-/tmp}/zufall.XXXXXX") || exit 77
trap 'rm -rf "$heim"' EXIT
trap 'exit 143' HUP INT TERM
mkdir -m 700 "$heim/eigen"
raum=(unshare --mount --net --propagation private)
if [ "$(id -u)" -eq 0 ]; then
  export GEHEGE_ROOT=1
  chmod 711 "$heim"
  chown 65534:65534 "$heim/eigen"
else
  raum+=(--user --map-root-user)
fi
"${raum[@]}" true 2>/dev/null || { echo "zufall.sh: the system gives no room of its own" >&2; exit 77; }

"${raum[@]}" "${BASH_SOURCE[0]}" --im-gehege "$programm" "$heim/eigen" "$@" 3>"$heim/schritte.txt" &
prozess=$!
trap 'kill "$prozess" 2>/dev/null; exit 143' HUP INT TERM
wait "$prozess"
ergebnis=$?
grep '^# memory' "$heim/schritte.txt"
if [ "$ergebnis" -ne 0 ] && [ "$ergebnis" -ne 77 ]; then
  grep -q '^# MANGEL' "$heim/schritte.txt" || echo "# MANGEL: ended with $ergebnis" >>"$heim/schritte.txt"
  ablage=$(dirname "$programm")/zufall_$$.txt
  cp "$heim/schritte.txt" "$ablage"
  echo "zufall.sh: $(grep -vc '^#' "$ablage") steps, the last 20 of them:"
  grep -v '^# [^M]' "$ablage" | tail -21
  echo "Again: tests/mit_bildschirm.sh --breite 1920 --hoehe 1200 tests/zufall/zufall.sh $programm --liste $ablage"
  echo "Shorter: tests/zufall/kuerzen.py $programm $ablage"
fi
exit "$ergebnis"
