#!/usr/bin/env python3
"""Says what CHANGELOG.md says to those who ask in another form: the software centre and the package manager.
    neuigkeiten.py version                    version and day of the newest section
    neuigkeiten.py metainfo TEMPLATE HOMEPAGE the AppStream data, with release notes, on standard output
    neuigkeiten.py debian                     debian/changelog on standard output"""

import datetime
import pathlib
import re
import struct
import sys
from xml.sax.saxutils import escape

WURZEL = pathlib.Path(__file__).resolve().parent.parent
KOPF = re.compile(r"^## (\d+\.\d+\.\d+) \((\d{4}-\d{2}-\d{2})\)$", re.MULTILINE)
BILDER = ("feldkranz.png", "handbuch/frmVorschau.png")  # of docs/bilder, as the homepage shows them


def ausgaben(text):
    """Version, day, paragraphs and points of each section, the newest first."""
    stuecke = KOPF.split(text)[1:]
    for version, tag, inhalt in zip(stuecke[::3], stuecke[1::3], stuecke[2::3]):
        absaetze, punkte = [], []
        for block in re.split(r"\n\s*\n|\n(?=- )", inhalt.strip()):
            zeile = " ".join(block.split())
            (punkte if zeile.startswith("- ") else absaetze).append(zeile.removeprefix("- "))
        yield version, tag, absaetze, punkte


def schlicht(text):
    """Without the signs of the markup; what stands in backquotes is taken as it is."""
    teile = text.split("`")
    for nummer in range(0, len(teile), 2):
        teile[nummer] = re.sub(r"\[([^\]]+)\]\([^)]+\)", r"\1", teile[nummer])
        teile[nummer] = re.sub(r"(\*{1,2})(\S[^*]*)\1", r"\2", teile[nummer])
    return "".join(teile)


def groesse(bild):
    return struct.unpack(">II", (WURZEL / "docs" / "bilder" / bild).read_bytes()[16:24])


def ausgabe_xml(version, tag, absaetze, punkte):
    zeilen = [f'    <release version="{version}" date="{tag}">', "      <description>"]
    zeilen += [f"        <p>{escape(schlicht(absatz))}</p>" for absatz in absaetze]
    if punkte:
        zeilen += ["        <ul>"] + [f"          <li>{escape(schlicht(p))}</li>" for p in punkte] + ["        </ul>"]
    return "\n".join(zeilen + ["      </description>", "    </release>"])


def metainfo(vorlage, homepage, alle):
    text = pathlib.Path(vorlage).read_text(encoding="utf-8")
    werte = {"HOMEPAGE": escape(homepage), "RELEASES": "\n".join(ausgabe_xml(*a) for a in alle)}
    for nummer, bild in enumerate(BILDER, 1):
        breite, hoehe = groesse(bild)
        werte |= {f"BILD{nummer}": bild, f"BREITE{nummer}": str(breite), f"HOEHE{nummer}": str(hoehe)}
    return re.sub(r"@([A-Z]+\d?)@", lambda fund: werte[fund.group(1)], text)


def debian(alle):
    for version, tag, _, _ in alle:
        # At midnight: whatever is built on that day or later is no older than its own package.
        zeit = datetime.datetime.fromisoformat(tag).strftime("%a, %d %b %Y 00:00:00 +0000")
        yield (f"feldkranz ({version}) stable; urgency=medium\n\n"
               f"  * Version {version}; what is new stands in NEWS.md.gz.\n\n"
               f" -- Tarvo und Brennek <post@feldkranz.example>  {zeit}\n")


def main(argumente):
    alle = list(ausgaben((WURZEL / "CHANGELOG.md").read_text(encoding="utf-8")))
    if not alle:
        sys.exit('CHANGELOG.md: no section "## 1.2.3 (2026-01-31)"')
    if argumente == ["version"]:
        print(alle[0][0], alle[0][1])
    elif argumente == ["debian"]:
        print("\n".join(debian(alle)), end="")
    elif len(argumente) == 3 and argumente[0] == "metainfo":
        sys.stdout.reconfigure(encoding="utf-8")
        print(metainfo(argumente[1], argumente[2], alle), end="")
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
