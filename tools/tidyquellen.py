#!/usr/bin/env python3
"""Lists our sources out of the compile database of the lint preset, those that take longest first."""

import json

from quellen import WURZEL

eintraege = json.loads((WURZEL / "build/lint/compile_commands.json").read_text(encoding="utf-8"))
namen = {eintrag["file"] for eintrag in eintraege}
namen = {name for name in namen if not name.startswith(f"{WURZEL}/build/") and name.startswith(f"{WURZEL}/")}


def dauer(name):
    inhalt = open(name, encoding="utf-8").read()
    return (("QTEST" in inhalt) + ("#include <Q" in inhalt), len(inhalt))


for name in sorted(namen, key=dauer, reverse=True):
    print(name[len(str(WURZEL)) + 1:])
