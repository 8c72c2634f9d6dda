#!/usr/bin/env python3
"""Checks what no compiler looks at: UTF-8, line feeds, no tabs, no blanks at the end of a line, the length of
sources (a hint above 250 lines, a failure above 500), and that no two types have one name: the linker would take the
routines of one for the other's."""

import collections
import re
import sys

from quellen import WURZEL, dateien

ENDUNGEN = (".cpp", ".h", ".in", ".cmake", ".sh", ".py", ".md", ".json", ".xml", ".supp", ".txt")
HINWEIS, GRENZE = 250, 500


def klagen(pfad):
    bytes_ = (WURZEL / pfad).read_bytes()
    try:
        inhalt = bytes_.decode("utf-8")
    except UnicodeDecodeError as fehler:
        yield f"{pfad}: not UTF-8 at byte {fehler.start}"
        return
    if inhalt.startswith("\ufeff"):
        yield f"{pfad}: begins with a byte order mark"
    if "\r" in inhalt:
        yield f"{pfad}: holds a carriage return"
    if inhalt and not inhalt.endswith("\n"):
        yield f"{pfad}: the last line has no end"
    for nummer, zeile in enumerate(inhalt.split("\n"), 1):
        if "\t" in zeile:
            yield f"{pfad}:{nummer}: tab"
        if zeile != zeile.rstrip() and pfad.suffix != ".md":
            yield f"{pfad}:{nummer}: blank at the end of the line"


NAMENSRAUM = re.compile(r"^(?:inline )?namespace\b[^{;]*\{", re.MULTILINE)
TYP = re.compile(r"^(?:struct|class|enum class) (\w+)[^;]*?\{", re.MULTILINE)


def ohne_namensraeume(inhalt):
    """What stands in no namespace."""
    aussen = []
    while fund := NAMENSRAUM.search(inhalt):
        aussen.append(inhalt[: fund.start()])
        tiefe, stelle = 1, fund.end()
        while tiefe and stelle < len(inhalt):
            tiefe += {"{": 1, "}": -1}.get(inhalt[stelle], 0)
            stelle += 1
        inhalt = inhalt[stelle:]
    return "".join(aussen) + inhalt


def gleichnamige_typen(quellen):
    orte = collections.defaultdict(set)
    for pfad in quellen:
        inhalt = (WURZEL / pfad).read_text(encoding="utf-8", errors="replace")
        for name in TYP.findall(ohne_namensraeume(inhalt)):
            orte[name].add(pfad.with_suffix(""))  # a header and its own source are one place
    for name, wo in sorted(orte.items()):
        if len(wo) > 1:
            yield f"{name}: a type in " + " and in ".join(sorted(map(str, wo)))


def main():
    alle = [
        pfad for pfad in dateien(*ENDUNGEN)
        if pfad.parts[0] != "data" and (pfad.suffix != ".txt" or pfad.name == "CMakeLists.txt")
    ]
    gefunden = [klage for pfad in alle for klage in klagen(pfad)]
    gefunden += gleichnamige_typen([pfad for pfad in alle if pfad.suffix in (".cpp", ".h")])
    for pfad in alle:
        if pfad.suffix in (".cpp", ".h"):
            laenge = (WURZEL / pfad).read_bytes().count(b"\n")
            if laenge > GRENZE:
                gefunden.append(f"{pfad}: {laenge} lines, more than {GRENZE}")
            elif laenge > HINWEIS:
                print(f"hint: {pfad} has {laenge} lines")
    for klage in gefunden:
        print(klage, file=sys.stderr)
    print(f"{len(alle)} files - {len(gefunden)} complaints")
    return 1 if gefunden else 0


sys.exit(main())
