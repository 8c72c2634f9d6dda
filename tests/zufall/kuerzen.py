#!/usr/bin/env python3
"""Shortens a list of steps that ends in something wrong: drops ever smaller parts of it as long as the same
thing goes wrong, and writes what is left to <list>.kurz. Usage: kuerzen.py program list"""

import pathlib
import re
import subprocess
import sys
import tempfile

HIER = pathlib.Path(__file__).resolve().parent
BEFEHL = [HIER.parent / "mit_bildschirm.sh", "--breite", "1920", "--hoehe", "1200", "--frist", "600", HIER / "zufall.sh"]


def mangel(programm, schritte):
    """What goes wrong with these steps, without its place; nothing if all is well."""
    with tempfile.NamedTemporaryFile("w", suffix=".txt", encoding="utf-8") as datei:
        datei.write("".join(schritte))
        datei.flush()
        pathlib.Path(datei.name).chmod(0o644)
        lauf = subprocess.run([*BEFEHL, programm, "--liste", datei.name], capture_output=True, text=True, check=False)
    gefunden = re.search(r"# MANGEL(?: after step \d+ of seed \d+)?: ([^:\n]*)", lauf.stdout + lauf.stderr)
    abgelegt = re.search(r"--liste (\S+)$", lauf.stdout, re.MULTILINE)
    if abgelegt:
        pathlib.Path(abgelegt[1]).unlink(missing_ok=True)
    return re.sub(r"\d+(\.\d+)?", "N", gefunden[1]) if gefunden else ""


def kuerzen(programm, schritte, soll):
    teil = len(schritte) // 2
    while teil > 0:
        anfang = 0
        while anfang < len(schritte):
            rest = schritte[:anfang] + schritte[anfang + teil:]
            if mangel(programm, rest) == soll:
                schritte = rest
                print(f"{len(schritte)} steps", flush=True)
            else:
                anfang += teil
        teil //= 2
    return schritte


def main():
    programm, liste = sys.argv[1], pathlib.Path(sys.argv[2])
    zeilen = liste.read_text(encoding="utf-8").splitlines(keepends=True)
    schritte = [zeile for zeile in zeilen if zeile.strip() and not zeile.startswith("#")]
    soll = mangel(programm, schritte)
    if not soll:
        sys.exit("The steps end well.")
    print(f"{len(schritte)} steps: {soll}", flush=True)
    schritte = kuerzen(programm, schritte, soll)
    liste.with_suffix(".kurz").write_text("".join(schritte), encoding="utf-8")
    print("".join(schritte), end="")


main()
