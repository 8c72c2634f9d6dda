#!/usr/bin/env bash
# vorlesen.py on a bus of its own. Usage: vorlesen.sh <program folder>
set -eu
unset NO_AT_BRIDGE
exec dbus-run-session -- /usr/bin/python3 "$(dirname "${BASH_SOURCE[0]}")/vorlesen.py" "$1"
