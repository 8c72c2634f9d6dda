#!/usr/bin/env python3
"""Checks the rule document as it is committed: that it was made from the sources beside it, four to eight pages
of A4, title, language, bookmarks, tags, and fonts that travel inside. Reads the file's plain objects itself.

Usage: regel_pdf.py <root of the checkout>"""

import re
import subprocess
import sys
from pathlib import Path

A4 = (595.28, 841.89)


def objekte(daten):
    """The dictionaries of the document by number, without what stands in streams."""
    ohne = re.sub(rb"stream\r?\n.*?endstream", b"", daten, flags=re.S)
    return {int(nummer): inhalt for nummer, inhalt in re.findall(rb"(\d+) 0 obj\s(.*?)endobj", ohne, flags=re.S)}


def eine(muster, inhalt, sonst=b""):
    treffer = re.search(muster, inhalt, flags=re.S)
    return treffer.group(1) if treffer else sonst


def maengel(daten, quelle):
    alle = objekte(daten)
    katalog = next((o for o in alle.values() if b"/Type /Catalog" in o), b"")
    kopf = next((o for o in alle.values() if b"/Producer" in o and b"/Author" in o), b"")
    seiten = [o for o in alle.values() if re.search(rb"/Type /Page\b(?!s)", o)]
    masse = [tuple(float(z) for z in eine(rb"/MediaBox \[\s*([\d. ]+?)\s*\]", o).split()[2:]) for o in seiten]
    umriss = alle.get(int(eine(rb"/Outlines (\d+) 0 R", katalog, b"0")), b"")
    schriften = [o for o in alle.values() if b"/Type /FontDescriptor" in o]
    return [text for text, gut in (
        ("is no PDF", daten.startswith(b"%PDF-") and daten.rstrip().endswith(b"%%EOF")),
        (f"has {len(seiten)} pages, not four to eight", 4 <= len(seiten) <= 8),
        (f"has pages that aren't A4: {masse}", all(abs(m[0] - A4[0]) < 1 and abs(m[1] - A4[1]) < 1 for m in masse)),
        ("has no title", eine(rb"/Title \((.*?)\)", kopf) == b"Feldkranz! Die Spielregel"),
        ("doesn't show its title", b"/DisplayDocTitle true" in katalog),
        ("isn't in German", eine(rb"/Lang \((.*?)\)", katalog) == b"de"),
        ("isn't tagged", b"/StructTreeRoot" in katalog and b"/Marked true" in katalog),
        ("has no bookmarks", int(eine(rb"/Count (\d+)", umriss, b"0")) >= len(seiten)),
        ("has fonts that are not inside", schriften and all(b"/FontFile" in o for o in schriften)),
        ("is older than its sources: cmake --build --preset debug --target regel",
         eine(rb"/Keywords \((.*?)\)", kopf) == quelle),
    ) if not gut]


def main():
    wurzel = Path(sys.argv[1])
    quelle = subprocess.run([sys.executable, wurzel / "docs/regel/machen.py", "--quelle"],
                            stdout=subprocess.PIPE, check=True).stdout.strip()
    gefunden = maengel((wurzel / "data/REGEL/Feldkranz.pdf").read_bytes(), quelle)
    for mangel in gefunden:
        print(f"data/REGEL/Feldkranz.pdf {mangel}", file=sys.stderr)
    return 1 if gefunden else 0


sys.exit(main())
