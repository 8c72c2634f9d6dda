#!/usr/bin/env python3
"""How much of the sources the tests have run: lines and branches by layer and folder, from what a build with the
preset coverage has left behind. With --offen, the lines that no test has run.

Usage: abdeckung.py [--offen] [build folder]
"""
import collections
import concurrent.futures
import gzip
import json
import os
import pathlib
import subprocess
import sys
import tempfile

WURZEL = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(WURZEL / "tools"))
import quellen  # noqa: E402


def gelesen(gcda):
    """The files that one object was made of, each with its lines, as gcov tells them."""
    with tempfile.TemporaryDirectory() as ordner:
        subprocess.run(["gcov", "--json-format", "--branch-probabilities", str(gcda)], cwd=ordner, check=True,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        dateien = []
        for ergebnis in pathlib.Path(ordner).glob("*.gcov.json.gz"):
            with gzip.open(ergebnis) as strom:
                bericht = json.load(strom)
            for datei in bericht["files"]:
                pfad = (pathlib.Path(bericht["current_working_directory"]) / datei["file"]).resolve()
                dateien.append((pfad, [(z["line_number"], z["count"],
                                        [zweig["count"] for zweig in z["branches"] if not zweig["throw"]])
                                       for z in datei["lines"]]))
        return dateien


def gesammelt(bau):
    """For each source of ours its lines: how often run, and which of the branches."""
    zeilen = collections.defaultdict(dict)
    gcda = sorted(bau.rglob("*.gcda"))
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as helfer:
        for dateien in helfer.map(gelesen, gcda):
            for pfad, stand in dateien:
                if not pfad.is_relative_to(WURZEL) or pfad.is_relative_to(bau):
                    continue
                name = pfad.relative_to(WURZEL).as_posix()
                if name.startswith(("tests/", "benchmarks/")):
                    continue
                for nummer, anzahl, zweige in stand:
                    alt, alte = zeilen[name].get(nummer, (0, []))
                    # The same line in several objects, or in several instances of a template: any run counts.
                    laenge = max(len(alte), len(zweige))
                    summe = [(alte[i] if i < len(alte) else 0) + (zweige[i] if i < len(zweige) else 0)
                             for i in range(laenge)]
                    zeilen[name][nummer] = (alt + anzahl, summe)
    return zeilen


def anteil(teil, ganzes):
    return f"{100 * teil / ganzes:6.1f} %" if ganzes else "      - "


def zeigen(titel, gruppen):
    print(f"\n{titel:<16} {'lines':>8} {'run':>9} {'branches':>9} {'taken':>9}")
    for name, (z, zr, v, vr) in gruppen:
        print(f"{name:<16} {z:>8} {anteil(zr, z):>9} {v:>9} {anteil(vr, v):>9}")


def summen(zeilen, gruppe):
    summe = collections.OrderedDict()
    for name in sorted(zeilen):
        wert = summe.setdefault(gruppe(name), [0, 0, 0, 0])
        for anzahl, zweige in zeilen[name].values():
            wert[0] += 1
            wert[1] += anzahl > 0
            wert[2] += len(zweige)
            wert[3] += sum(1 for zweig in zweige if zweig > 0)
    return summe.items()


def schichten():
    """The layer of each source that a quellen.cmake names; a header belongs to the source beside it."""
    return {os.path.splitext(name)[0]: schicht for name, schicht in quellen.gelistet().items()}


def main():
    argumente = [a for a in sys.argv[1:] if a != "--offen"]
    bau = pathlib.Path(argumente[0] if argumente else WURZEL / "build" / "coverage").resolve()
    zeilen = gesammelt(bau)
    if not zeilen:
        sys.exit("Nothing has run there: ./test.sh coverage")
    zu = schichten()
    zeigen("layer", summen(zeilen, lambda name: zu.get(os.path.splitext(name)[0], "headers alone")))
    zeigen("folder", summen(zeilen, lambda name: name.split("/")[0]))
    if "--offen" in sys.argv:
        print()
        for name in sorted(zeilen):
            offen = [str(n) for n, (anzahl, _) in sorted(zeilen[name].items()) if anzahl == 0]
            if offen:
                print(f"{name}: {' '.join(offen)}")


if __name__ == "__main__":
    main()
