#!/usr/bin/env bash
# Formats all C++ sources, or with --pruefen only says which aren't formatted.
set -eu
cd "$(dirname "${BASH_SOURCE[0]}")/.."
modus=(-i)
[ "${1:-}" = --pruefen ] && modus=(--dry-run -Werror)
find . \( -name build -o -name .git \) -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
  xargs -0 -r -n 40 -P "$(nproc)" clang-format --style=file "${modus[@]}"
