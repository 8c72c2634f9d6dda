"""The program's icon: the board in a wreath of oak leaves. The small sizes have a plainer drawing."""

import math

from gross import eichenlaub, felder
from stil import eck, gruppe, kreis, svg, vieleck

GROESSEN = (16, 22, 24, 32, 48, 64, 128, 256)
NEUN = ["gelb", "weiss", "blau", "rot", "gelb", "gruen", "weiss", "blau", "orange"]


def _ring(mitte, r, anzahl, knopf):
    """A wreath of round leaves, for the sizes in which an oak leaf is a smudge."""
    return "".join(
        kreis(mitte + r * math.cos(w), mitte
            + r * math.sin(w), knopf, "gruen" if i % 2 else "laub", s="dunkelgruen", w=0.7)
        for i, w in ((i, 2 * math.pi * i / anzahl + 0.2) for i in range(anzahl)))


def _brett(x, seite, rand):
    """The board on whole pixels: cells a pixel apart on a dark ground."""
    breite = 3 * seite + 2 + 2 * rand
    return (eck(x, x, breite, breite, "tinte", s="none", rx=1)
            + "".join(eck(x + rand + i % 3 * (seite + 1), x + rand + i // 3 * (seite + 1), seite, seite, f, s="none")
                      for i, f in enumerate(NEUN)))


def winzig():
    return _ring(8, 5.9, 12, 1.75) + _brett(3, 2, 1)


def klein():
    return _ring(10.5, 8.1, 14, 2) + _brett(4, 3, 1)


def klein24():
    return _ring(11.5, 9, 14, 2.2) + _brett(5, 3, 1)


def gross(groesse):
    """The wreath with its ribbon; finer lines on the larger sizes."""
    w = 0.8 if groesse <= 48 else 0.6
    blaetter = {32: 9, 48: 11}.get(groesse, 13)
    teile = kreis(16, 16, 11.6, s="leder", w=1.6)
    for i in range(blaetter):
        winkel = 2 * math.pi * i / blaetter + math.pi / blaetter - math.pi / 2
        for versatz, drehung in ((1.1, 190), (-1.1, 245)):
            x, y = 16 + (11.6 + versatz) * math.cos(winkel), 16 + (11.6 + versatz) * math.sin(winkel)
            teile += eichenlaub(x, y, math.degrees(winkel) + drehung, 0.52, w / 0.52)
    brett = eck(8.2, 8.2, 15.6, 15.6, "holz", rx=1.8, w=w) + felder(9.55, 9.55, 4.3, NEUN, w=w)
    schleife = "".join(vieleck(punkte, "rot", w=w) for punkte in ("15,27.6 9.8,25.2 10.4,31",
            "17,27.6 22.2,25.2 21.6,31"))
    return teile + brett + schleife + eck(14.2, 26, 3.6, 3.6, "rot", rx=1, w=w)


def zeichnung(groesse):
    if groesse == 16:
        return svg(16, 16, 0.9, winzig())
    if groesse == 22:
        return svg(22, 22, 1, klein())
    if groesse == 24:
        return svg(24, 24, 1, klein24())
    return svg(groesse, groesse, 1, gruppe(gross(groesse), mass=groesse / 32))
