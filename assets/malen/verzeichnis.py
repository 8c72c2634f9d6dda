"""Every drawing of the program: name "<folder>/<picture>" and SVG text."""

import figuren
import gross
import grund
import klein
import programm
from stil import svg

PROGRAMMGROESSEN = programm.GROESSEN


def zeichnungen():
    for ordner, bilder in klein.BILDER.items():
        for name, bild in bilder.items():
            yield f"{ordner}/{name}", svg(klein.KANTE, klein.KANTE, klein.STRICH, bild())
    for name, bild in gross.BILDER.items():
        yield f"dialog/{name}", svg(gross.KANTE, gross.KANTE, gross.STRICH, bild())
    for ordner, (strich, bilder) in figuren.FIGUREN.items():
        for name, (groesse, bild) in bilder.items():
            yield f"{ordner}/{name}", svg(*groesse, strich, bild())
    for groesse in programm.GROESSEN:
        yield f"programm/{groesse}", programm.zeichnung(groesse)
    for name, bild in grund.BILDER.items():
        yield f"grund/{name}", bild()
