#!/usr/bin/env bash
# Runs a program under Wine with a small disk for its tests of a full one, where the system lets one be mounted;
# elsewhere those tests are skipped.
# Usage: platte.sh <program.exe> [argument...]
set -eu
hier=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
platte=$(mktemp -d "${TMPDIR:-/tmp}/platte.XXXXXX")
trap 'umount "$platte" 2>/dev/null; rmdir "$platte"' EXIT
if mount -t tmpfs -o size=64k none "$platte" 2>/dev/null; then
  export FELDKRANZ_KLEINE_PLATTE="Z:$platte"
fi
"$hier/wine.sh" "$@"
