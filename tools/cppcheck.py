#!/usr/bin/env python3
"""Runs cppcheck over the sources named. It can't read umlauts in names nor reckon with literals of our own units, so it
gets copies without both."""

import os
import re
import shutil
import subprocess
import sys

from quellen import WURZEL, dateien

EINHEIT = re.compile(r"(?<=[0-9])_(tw|mm|pt|dp)\b")
UMSCHRIFT = str.maketrans({"ä": "ae", "ö": "oe", "ü": "ue", "Ä": "Ae", "Ö": "Oe", "Ü": "Ue", "ß": "ss"})


def main():
    jobs, *namen = sys.argv[1:]
    kopie = WURZEL / "build" / "cppcheck"
    shutil.rmtree(kopie, ignore_errors=True)
    for pfad in dateien(".cpp", ".h"):
        ziel = kopie / pfad
        os.makedirs(ziel.parent, exist_ok=True)
        text = (WURZEL / pfad).read_text(encoding="utf-8").translate(UMSCHRIFT)
        ziel.write_text(EINHEIT.sub("", text), encoding="utf-8")
    lauf = subprocess.run(
        ["cppcheck", "--quiet", "--std=c++20", "--language=c++", "--library=qt", "--library=googletest",
         "--inline-suppr", "-j", jobs, "--enable=warning,performance,portability", "--error-exitcode=1",
         f"--suppressions-list={WURZEL}/tools/cppcheck.txt", "-I", ".", *namen],
        cwd=kopie, check=False)
    return lauf.returncode


sys.exit(main())
