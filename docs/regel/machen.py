#!/usr/bin/env python3
"""Makes data/REGEL/Feldkranz.pdf from the page, the style and the pictures beside this script, with WeasyPrint
(Debian: weasyprint, fonts-urw-base35, fonts-liberation). The document names its sources by their hash, so that a
test can tell when it is out of date.

Usage: machen.py [file]           (default: data/REGEL/Feldkranz.pdf of this checkout)
       machen.py --quelle         prints that hash"""

import hashlib
import os
import subprocess
import sys
from pathlib import Path

HIER = Path(__file__).resolve().parent
ZIEL = HIER.parents[1] / "data" / "REGEL" / "Feldkranz.pdf"


def quelle():
    summe = hashlib.sha256()
    for datei in [HIER / "regel.html", HIER / "regel.css", *sorted((HIER / "bilder").glob("*.svg"))]:
        summe.update(datei.name.encode() + b"\0" + datei.read_bytes() + b"\0")
    return "Quelle " + summe.hexdigest()[:16]


def main():
    if sys.argv[1:] == ["--quelle"]:
        print(quelle())
        return
    ziel = Path(sys.argv[1]) if len(sys.argv) > 1 else ZIEL
    seite = (HIER / "regel.html").read_text(encoding="utf-8").replace("@QUELLE@", quelle())
    # The fonts in the document carry a date: the one that the page names.
    umgebung = {**os.environ, "SOURCE_DATE_EPOCH": "1795132800"}
    befehl = ["weasyprint", "--quiet", "--pdf-variant", "pdf/ua-1", "--base-url", f"{HIER}/", "-", "-"]
    pdf = subprocess.run(befehl, input=seite.encode(), env=umgebung, stdout=subprocess.PIPE, check=True).stdout
    # The variant is taken for its tags; to claim the whole standard the pictures would need their texts.
    anspruch = b'pdfuaid:part="1"'
    ziel.write_bytes(pdf.replace(anspruch, b" " * len(anspruch)))


main()
