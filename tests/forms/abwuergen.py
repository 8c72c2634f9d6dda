#!/usr/bin/env python3
"""Kills a random session at random moments and looks at what is left of its form.

What comes back, the journal or, where there is none, the saved file, must be byte for byte a form that the session
had, and the first change that is missing must not be older than two seconds (and what a busy machine takes on top).
Usage: abwuergen.py program [kills [seed [seconds allowed]]]
"""

import hashlib
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import time

SCHIRM = pathlib.Path(__file__).resolve().parent.parent / "mit_bildschirm.sh"


def protokoll(pfad):
    """Process, folder of the forms, and (milliseconds, checksum) of each state, as far as whole lines go."""
    zeilen = pfad.read_text(encoding="utf-8").split("\n")[:-1] if pfad.exists() else []
    if len(zeilen) < 2:
        return None
    pid, ordner = zeilen[0].split(" ", 1)
    return int(pid), pathlib.Path(ordner), [(int(z), s) for z, s in (zeile.split() for zeile in zeilen[1:])]


def zurueckgekommen(ordner, staende):
    """Name and checksum of what a user finds after the kill."""
    journale = sorted(ordner.glob("~*.BAK"))
    if len(journale) > 1:
        sys.exit(f"more than one journal: {journale}")
    for pfad in journale + [ordner / "SITZUNG.FKR"]:
        if pfad.exists():
            return pfad.name, hashlib.sha1(pfad.read_bytes()).hexdigest()
    return "nothing", staende[0][1]


def einmal(programm, saat, wuerfel):
    """Kills one session. Gives the age in seconds of the first change that was lost, 0 for none."""
    heim = pathlib.Path(tempfile.mkdtemp(prefix="abwuergen-"))
    log = heim / "protokoll.txt"
    umgebung = dict(os.environ, TMPDIR=str(heim))
    lauf = subprocess.Popen([SCHIRM, "--breite", "1280", "--hoehe", "1024", programm, log, str(saat)],
                            env=umgebung, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        ende = time.time() + 60
        while protokoll(log) is None:
            if time.time() > ende or lauf.poll() is not None:
                sys.exit("the session doesn't begin")
            time.sleep(0.02)
        time.sleep(wuerfel.uniform(0.05, 5))
        pid = protokoll(log)[0]
        os.kill(pid, signal.SIGKILL)
        tot = time.time() * 1000
        lauf.wait(60)
        _, ordner, staende = protokoll(log)
        name, summe = zurueckgekommen(ordner, staende)
        stellen = [i for i, (_, s) in enumerate(staende) if s == summe]
        if not stellen:
            sys.exit(f"seed {saat}: {name} is no form that the session had; look into {heim}")
        naechster = stellen[-1] + 1
        verloren = max(0.0, (tot - staende[naechster][0]) / 1000) if naechster < len(staende) else 0.0
    except BaseException:
        if lauf.poll() is None:
            lauf.terminate()
        raise
    shutil.rmtree(heim, ignore_errors=True)
    return name, verloren


def main():
    programm = str(pathlib.Path(sys.argv[1]).resolve())
    anzahl = int(sys.argv[2]) if len(sys.argv) > 2 else 10
    saat = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    erlaubt = float(sys.argv[4]) if len(sys.argv) > 4 else 5
    wuerfel = random.Random(saat)
    namen, aeltestes = {}, 0.0
    for i in range(anzahl):
        name, verloren = einmal(programm, saat + i, wuerfel)
        namen[name] = namen.get(name, 0) + 1
        aeltestes = max(aeltestes, verloren)
        if verloren > erlaubt:
            sys.exit(f"seed {saat + i}: what {name} lacks is {verloren:.2f} s old")
    print(f"{anzahl} kills; came back: {namen}; the oldest change that was lost: {aeltestes:.2f} s")


main()
