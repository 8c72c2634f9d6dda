#!/usr/bin/env python3
"""Checks the layers and the folders' order: includes point downwards only in both, the model knows no toolkit, every
source is in a list, the linter is told every folder, and every header stands alone. With --bild PATH draws the
dependencies between the folders instead."""

import collections
import concurrent.futures
import os
import re
import subprocess
import sys

from quellen import SCHICHTEN, SUBSYSTEME, WURZEL, Schichtung, includes, text


def falsche_includes(schichtung):
    for pfad in schichtung.quellen:
        name = str(pfad)
        hoehe = SCHICHTEN.index(schichtung.schicht(name))
        for eigen, ziel in includes(name):
            if eigen and ziel.split("/")[0] not in SUBSYSTEME:
                if not ziel.endswith(".moc"):
                    yield f'{name}: "{ziel}" is no path from the root'
                continue
            unter = SCHICHTEN.index(schichtung.schicht(ziel)) if eigen else schichtung.mindestens(ziel)
            if unter > hoehe:
                yield f"{name} ({SCHICHTEN[hoehe]}) includes {ziel} ({SCHICHTEN[unter]})"


def gegen_die_ordnung(schichtung):
    """Folders stand in one order, and includes never go against it: so no two folders include each other."""
    for pfad in schichtung.quellen:
        for eigen, ziel in includes(str(pfad)):
            ordner = ziel.split("/")[0]
            if eigen and ordner in SUBSYSTEME and SUBSYSTEME.index(ordner) > SUBSYSTEME.index(pfad.parts[0]):
                yield f"{pfad} includes {ziel}: {ordner} stands above {pfad.parts[0]}"


def nicht_gelistete(schichtung):
    listen = "".join(
        p.read_text(encoding="utf-8")
        for p in [WURZEL / "CMakeLists.txt", *WURZEL.glob("*/quellen.cmake"), *WURZEL.glob("cmake/*.cmake")]
    )
    for pfad in schichtung.quellen:
        if pfad.suffix == ".cpp" and str(pfad) not in listen:
            yield f"{pfad}: in no quellen.cmake"


def ungelintete():
    """The linter looks only into the headers of folders that it is told."""
    muster = re.search(r"^HeaderFilterRegex: '/\(([a-z|]+)\)/", text(".clang-tidy"), re.MULTILINE)
    genannt = muster.group(1).split("|") if muster else []
    for ordner in SUBSYSTEME:
        if ordner not in genannt:
            yield f".clang-tidy: HeaderFilterRegex doesn't name {ordner}"


def eigener_kopf_zuerst(schichtung):
    """A source includes its own header first: compiling it without precompiled headers proves that the header
    stands alone."""
    for pfad in schichtung.quellen:
        kopf = re.sub(r"\.cpp$", ".h", str(pfad))
        if pfad.suffix == ".cpp" and (WURZEL / kopf).exists():
            erster = next(includes(pfad), (True, "nothing"))
            if erster != (True, kopf):
                yield f"{pfad}: includes {erster[1]} before {kopf}"


def uebersetzt_allein(schichtung, name):
    pakete = {"modell": [], "rand": ["Core", "Gui", "PrintSupport"]}
    teile = pakete.get(schichtung.schicht(name), ["Core", "Gui", "PrintSupport", "Widgets"])
    qt = subprocess.run(["qmake6", "-query", "QT_INSTALL_HEADERS"], capture_output=True, text=True).stdout.strip()
    pfade = [f"-I{WURZEL}", f"-I{WURZEL}/build/lint/erzeugt"]
    if teile:
        pfade += ["-isystem", qt] + [f"-isystem{qt}/Qt{teil}" for teil in teile]
    befehl = ["clang++", "-std=c++20", "-fsyntax-only", "-fPIC", "-DQT_NO_KEYWORDS", "-xc++", *pfade, "-"]
    lauf = subprocess.run(befehl, input=f'#include "{name}"\n', capture_output=True, text=True)
    return "" if lauf.returncode == 0 else f"{name} doesn't compile alone:\n{lauf.stderr}"


def koepfe_ohne_quelle(schichtung):
    namen = [
        str(p) for p in schichtung.quellen
        if p.suffix == ".h" and not (WURZEL / str(p).replace(".h", ".cpp")).exists()
    ]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as gruppe:
        for klage in gruppe.map(lambda name: uebersetzt_allein(schichtung, name), namen):
            if klage:
                yield klage


def bild(schichtung, ziel):
    """One box a folder, those that include it above it. A line that only shortens a way over others is left out, so
    that one can read the picture; the number tells the includes that the line itself stands for."""
    kanten = collections.Counter()
    for pfad in schichtung.quellen:
        for eigen, name in includes(str(pfad)):
            nach = name.split("/")[0]
            if eigen and nach in SUBSYSTEME and nach != pfad.parts[0]:
                kanten[pfad.parts[0], nach] += 1
    direkt = {von: {n for v, n in kanten if v == von} for von in SUBSYSTEME}
    erreichbar = {}
    for ordner in SUBSYSTEME:  # from the bottom up, so that what lies below is known
        erreichbar[ordner] = set(direkt[ordner]).union(*(erreichbar[n] for n in direkt[ordner]))
    zeilen = ["digraph {", "rankdir=TB; nodesep=0.35; ranksep=0.35;",
              'node [shape=box style="filled,rounded" fillcolor="#dbe9f6" fontname="sans-serif" fontsize=13];',
              'edge [color="#555555" arrowsize=0.7 fontname="sans-serif" fontsize=9 fontcolor="#555555"];']
    zeilen += [f'"{ordner}" [label="{ordner}/"];' for ordner in SUBSYSTEME]
    for (von, nach), zahl in sorted(kanten.items()):
        if not any(nach in erreichbar[ueber] for ueber in direkt[von] - {nach}):
            zeilen.append(f'"{von}" -> "{nach}" [label=" {zahl}"];')
    zeilen.append("}")
    subprocess.run(["dot", "-Tsvg", "-o", ziel], input="\n".join(zeilen), text=True, check=True)


def main():
    schichtung = Schichtung()
    if sys.argv[1:2] == ["--bild"]:
        bild(schichtung, sys.argv[2])
        return 0
    klagen = [*falsche_includes(schichtung), *gegen_die_ordnung(schichtung), *nicht_gelistete(schichtung),
              *eigener_kopf_zuerst(schichtung), *ungelintete()]
    if "--schnell" not in sys.argv:
        subprocess.run(["cmake", "--preset", "lint"], cwd=WURZEL, stdout=subprocess.DEVNULL, check=True)
        klagen += koepfe_ohne_quelle(schichtung)
    for klage in klagen:
        print(klage, file=sys.stderr)
    anzahl = collections.Counter(schichtung.schicht(str(p)) for p in schichtung.quellen)
    print(", ".join(f"{schicht}: {anzahl[schicht]} files" for schicht in SCHICHTEN), f"- {len(klagen)} complaints")
    return 1 if klagen else 0


sys.exit(main())
