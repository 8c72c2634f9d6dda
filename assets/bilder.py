#!/usr/bin/env python3
"""Makes every picture of the program: drawings (assets/svg) out of assets/malen, and out of the drawings the
bitmaps that are compiled in (assets/png), the backgrounds in data/BITMAP and the icons in packaging. All of
them are committed, so that building the program takes none of the tools that this needs: rsvg-convert,
ImageMagick's convert, and the fonts of fonts-liberation and fonts-urw-base35.

  bilder.py              draws what has changed
  bilder.py --pruefen    writes nothing; fails if a drawing or a bitmap isn't the one that would be made
"""

import concurrent.futures
import hashlib
import pathlib
import subprocess
import sys

HIER = pathlib.Path(__file__).resolve().parent
WURZEL = HIER.parent
sys.path.insert(0, str(HIER / "malen"))
sys.dont_write_bytecode = True

import verzeichnis  # noqa: E402
from ico import ico  # noqa: E402

HERKUNFT = HIER / "png" / "herkunft.txt"  # of each bitmap: hash of the drawing it was made from, and its own


def laufen(*befehl):
    subprocess.run([str(teil) for teil in befehl], check=True)


def zerlegen(ziel, mass, zeichnung):
    """Makes one bitmap; its ending says which kind."""
    ziel.parent.mkdir(parents=True, exist_ok=True)
    if ziel.suffix == ".png":
        laufen("rsvg-convert", "-z", mass, "-o", ziel, zeichnung)
        laufen("convert", ziel, "-strip", "-define", "png:exclude-chunks=all", f"PNG32:{ziel}")
    elif ziel.suffix == ".bmp":
        zwischen = ziel.with_suffix(".tmp.png")
        laufen("rsvg-convert", "-z", mass, "-o", zwischen, zeichnung)
        laufen("convert", zwischen, "-background", "white", "-alpha", "remove", "-alpha", "off", f"BMP3:{ziel}")
        zwischen.unlink()


def bitmaps():
    """(target, factor, drawing) for all that is made out of a drawing."""
    for name, _ in verzeichnis.zeichnungen():
        zeichnung = HIER / "svg" / f"{name}.svg"
        if name.startswith("grund/"):
            for zusatz, mass in (("", 1), ("@2x", 2)):
                yield WURZEL / "data/BITMAP" / f"{zeichnung.stem}{zusatz}.bmp", mass, zeichnung
        elif name.startswith("programm/"):
            yield HIER / "png" / f"{name}.png", 1, zeichnung
        else:
            yield HIER / "png" / f"{name}.png", 1, zeichnung
            yield HIER / "png" / f"{name}@2x.png", 2, zeichnung


def pruefsumme(inhalt):
    return hashlib.sha256(inhalt).hexdigest()[:16]


def herkunft(ziel, text):
    """What the list says of a bitmap that was made from a drawing of that text."""
    return f"{pruefsumme(text.encode('utf-8'))} {pruefsumme(ziel.read_bytes()) if ziel.exists() else '-'}"


def herkunft_lesen():
    if not HERKUNFT.exists():
        return {}
    return dict(zeile.split("  ", 1)[::-1] for zeile in HERKUNFT.read_text(encoding="utf-8").splitlines())


def pakete():
    """(target, bytes) of the icons for packages: one .ico, the usual sizes and the drawing itself."""
    png = {g: (HIER / "png/programm" / f"{g}.png").read_bytes() for g in verzeichnis.PROGRAMMGROESSEN}
    yield WURZEL / "packaging/feldkranz.ico", ico(png)
    for groesse, inhalt in png.items():
        yield WURZEL / f"packaging/icons/hicolor/{groesse}x{groesse}/apps/feldkranz.png", inhalt
    yield (WURZEL / "packaging/icons/hicolor/scalable/apps/feldkranz.svg",
           (HIER / "svg/programm/256.svg").read_bytes())


def text_von(zeichnung, soll):
    return soll[f"{zeichnung.parent.name}/{zeichnung.stem}"]


def klagen(soll, alt):
    for name, text in soll.items():
        datei = HIER / "svg" / f"{name}.svg"
        if not datei.exists() or datei.read_text(encoding="utf-8") != text:
            yield f"{datei.relative_to(WURZEL)} isn't what assets/malen draws"
    uebrig = set((HIER / "png").glob("*/*.png"))
    for ziel, _, zeichnung in bitmaps():
        uebrig.discard(ziel)
        pfad = str(ziel.relative_to(WURZEL))
        if not ziel.exists() or alt.get(pfad) != herkunft(ziel, text_von(zeichnung, soll)):
            yield f"{pfad} isn't made from its drawing"
    for rest in sorted(uebrig):
        yield f"{rest.relative_to(WURZEL)} belongs to no drawing"
    for ziel, inhalt in pakete():
        if not ziel.exists() or ziel.read_bytes() != inhalt:
            yield f"{ziel.relative_to(WURZEL)} isn't made from its pictures"


def malen(soll, alt):
    for datei in (HIER / "svg").glob("*/*.svg"):
        if f"{datei.parent.name}/{datei.stem}" not in soll:
            datei.unlink()
    for name, text in soll.items():
        datei = HIER / "svg" / f"{name}.svg"
        datei.parent.mkdir(parents=True, exist_ok=True)
        datei.write_text(text, encoding="utf-8")
    alle = list(bitmaps())
    faellig = [auftrag for auftrag in alle
               if alt.get(str(auftrag[0].relative_to(WURZEL))) != herkunft(auftrag[0], text_von(auftrag[2], soll))]
    with concurrent.futures.ThreadPoolExecutor(2) as pool:
        list(pool.map(lambda auftrag: zerlegen(*auftrag), faellig))
    for datei in set((HIER / "png").glob("*/*.png")) - {ziel for ziel, _, _ in alle}:
        datei.unlink()
    zeilen = sorted(f"{ziel.relative_to(WURZEL)}" for ziel, _, _ in alle)
    neu = {str(ziel.relative_to(WURZEL)): herkunft(ziel, text_von(zeichnung, soll)) for ziel, _, zeichnung in alle}
    HERKUNFT.write_text("".join(f"{neu[pfad]}  {pfad}\n" for pfad in zeilen), encoding="utf-8")
    for ziel, inhalt in pakete():
        ziel.parent.mkdir(parents=True, exist_ok=True)
        ziel.write_bytes(inhalt)
    print(f"{len(soll)} drawings, {len(alle)} bitmaps, {len(faellig)} of them made anew")


def main():
    soll = dict(verzeichnis.zeichnungen())
    alt = herkunft_lesen()
    if "--pruefen" not in sys.argv:
        malen(soll, alt)
        return 0
    gefunden = list(klagen(soll, alt))
    for klage in gefunden:
        print(klage, file=sys.stderr)
    print(f"{len(soll)} drawings - {len(gefunden)} complaints")
    return 1 if gefunden else 0


sys.exit(main())
