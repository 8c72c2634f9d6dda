#!/usr/bin/env python3
"""Checks the layers: includes point downwards only, the model knows no toolkit, every source is in a list, and
every header stands alone. With --bild PATH draws the dependencies between the subsystems instead."""

import collections
import concurrent.futures
import os
import re
import subprocess
import sys

from quellen import SCHICHTEN, SUBSYSTEME, WURZEL, Schichtung, includes


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


def nicht_gelistete(schichtung):
    listen = "".join(
        p.read_text(encoding="utf-8")
        for p in [WURZEL / "CMakeLists.txt", *WURZEL.glob("*/quellen.cmake"), *WURZEL.glob("cmake/*.cmake")]
    )
    for pfad in schichtung.quellen:
        if pfad.suffix == ".cpp" and str(pfad) not in listen:
            yield f"{pfad}: in no quellen.cmake"


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
    """One box a subsystem and layer; the strength of a line tells how many files stand behind it."""
    kanten = collections.Counter()
    knoten = set()
    for pfad in schichtung.quellen:
        von = (schichtung.schicht(str(pfad)), pfad.parts[0])
        knoten.add(von)
        ziele = {
            (schichtung.schicht(name), name.split("/")[0])
            for eigen, name in includes(pfad) if eigen and name.split("/")[0] in SUBSYSTEME
        }
        kanten.update((von, nach) for nach in ziele if nach != von)
    farben = {"fenster": "#dbe9f6", "rand": "#e5f2df", "modell": "#fbeed5"}
    namen = {"fenster": "Windows", "rand": "Edge", "modell": "Model"}
    zeilen = ["digraph {", "rankdir=TB; newrank=true; nodesep=0.25; ranksep=0.5; splines=true;",
              'fontname="sans-serif"; node [shape=box style="filled,rounded" fontname="sans-serif" fontsize=11];',
              'edge [color="#55555570" arrowsize=0.6];']
    for schicht in reversed(SCHICHTEN):
        zeilen.append(f'subgraph cluster_{schicht} {{ label="{namen[schicht]} ({schicht})"; style=rounded;')
        for k in sorted(k for k in knoten if k[0] == schicht):
            zeilen.append(f'"{k[0]}_{k[1]}" [label="{k[1]}/" fillcolor="{farben[schicht]}"];')
        zeilen.append("}")
    # Invisible lines keep the layers one below the other.
    for ober, unter in (("fenster", "rand"), ("rand", "modell")):
        zeilen.append(f'grenze_{unter} [style=invis shape=point];')
        zeilen += [f'"{k[0]}_{k[1]}" -> grenze_{unter} [style=invis];' for k in sorted(knoten) if k[0] == ober]
        zeilen += [f'grenze_{unter} -> "{k[0]}_{k[1]}" [style=invis];' for k in sorted(knoten) if k[0] == unter]
    for (von, nach), zahl in sorted(kanten.items()):
        dicke = min(4.0, 0.6 + 0.25 * zahl)
        zeilen.append(f'"{von[0]}_{von[1]}" -> "{nach[0]}_{nach[1]}" [penwidth={dicke:.2f}];')
    zeilen.append("}")
    subprocess.run(["dot", "-Tsvg", "-o", ziel], input="\n".join(zeilen), text=True, check=True)


def main():
    schichtung = Schichtung()
    if sys.argv[1:2] == ["--bild"]:
        bild(schichtung, sys.argv[2])
        return 0
    klagen = [*falsche_includes(schichtung), *nicht_gelistete(schichtung), *eigener_kopf_zuerst(schichtung)]
    if "--schnell" not in sys.argv:
        subprocess.run(["cmake", "--preset", "lint"], cwd=WURZEL, stdout=subprocess.DEVNULL, check=True)
        klagen += koepfe_ohne_quelle(schichtung)
    for klage in klagen:
        print(klage, file=sys.stderr)
    anzahl = collections.Counter(schichtung.schicht(str(p)) for p in schichtung.quellen)
    print(", ".join(f"{schicht}: {anzahl[schicht]} files" for schicht in SCHICHTEN), f"- {len(klagen)} complaints")
    return 1 if klagen else 0


sys.exit(main())
