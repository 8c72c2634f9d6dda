#!/usr/bin/env python3
"""Checks the handbook's links: every picture and document that it names is there, and every link within the text
has its heading.

Usage: handbuch_links.py <root of the checkout>"""

import re
import sys
from pathlib import Path


def anker(ueberschrift):
    """The name that a heading gets: small letters, blanks to hyphens, nothing else but letters and digits."""
    rein = re.sub(r"[^\w\- ]", "", ueberschrift.replace("`", "")).strip().lower()
    return rein.replace(" ", "-")


def maengel(wurzel):
    handbuch = wurzel / "docs" / "Handbuch.md"
    text = handbuch.read_text(encoding="utf-8")
    ziele = re.findall(r"\]\(([^)\s]+)\)", text)
    koepfe = {anker(kopf) for kopf in re.findall(r"^#+ (.+)$", text, flags=re.M)}
    for ziel in ziele:
        if ziel.startswith("#"):
            if ziel[1:] not in koepfe:
                yield f"no heading for {ziel}"
        elif "://" not in ziel and not (handbuch.parent / ziel).is_file():
            yield f"names {ziel}, which isn't there"


def main():
    gefunden = list(maengel(Path(sys.argv[1])))
    for mangel in gefunden:
        print(f"docs/Handbuch.md {mangel}", file=sys.stderr)
    return 1 if gefunden else 0


sys.exit(main())
