#!/usr/bin/env python3
"""Compares what two systems made of the same evening: the form file byte for byte, the printed page's words and
lines to 0.3 mm.

Usage: vergleich.py <folder of one system> <folder of the other>
"""

import os
import re
import subprocess
import sys
import zlib

GRENZE = 0.3  # mm
MM = 25.4 / 72


def bytes_von(ordner, name):
    with open(os.path.join(ordner, name), "rb") as datei:
        return datei.read()


def worte(pdf):
    """Text and place of each word, in reading order: (text, left, top, right, bottom) in mm."""
    html = subprocess.run(["pdftotext", "-bbox", pdf, "-"], check=True, capture_output=True).stdout.decode()
    muster = r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="([\d.]+)">(.*?)</word>'
    return [(wort, *(float(zahl) * MM for zahl in zahlen)) for *zahlen, wort in re.findall(muster, html)]


def inhalte(pdf):
    """The unpacked content streams of a file's pages: those that draw."""
    for strom in re.findall(rb"stream\r?\n(.*?)\r?\nendstream", pdf, re.S):
        try:
            text = zlib.decompress(strom)
        except zlib.error:
            continue
        if re.search(rb"^(?:.* )?(?:cm|re)\s*$", text, re.M) and b"begincmap" not in text:
            yield text.decode("latin-1")


def mal(a, b):
    """Matrix a, then b."""
    return (a[0] * b[0] + a[1] * b[2], a[0] * b[1] + a[1] * b[3],
            a[2] * b[0] + a[3] * b[2], a[2] * b[1] + a[3] * b[3],
            a[4] * b[0] + a[5] * b[2] + b[4], a[4] * b[1] + a[5] * b[3] + b[5])


class Zeichner:
    """Follows the drawing of a page and keeps the points of its paths, in mm."""

    def __init__(self):
        self.matrix, self.stapel = (1, 0, 0, 1, 0, 0), []
        self.pfad, self.pfade = [], []

    def punkt(self, x, y):
        m = self.matrix
        self.pfad.append(((x * m[0] + y * m[2] + m[4]) * MM, (x * m[1] + y * m[3] + m[5]) * MM))

    def tun(self, befehl, zahlen):
        if befehl == "q":
            self.stapel.append(self.matrix)
        elif befehl == "Q":
            self.matrix = self.stapel.pop()
        elif befehl == "cm":
            self.matrix = mal(zahlen, self.matrix)
        elif befehl == "re":
            x, y, breite, hoehe = zahlen
            self.punkt(x, y)
            self.punkt(x + breite, y + hoehe)
        elif befehl in ("m", "l", "c"):
            for i in range(0, len(zahlen), 2):
                self.punkt(zahlen[i], zahlen[i + 1])
        elif befehl in ("S", "s", "f", "f*", "B", "B*", "b", "b*", "n"):
            if befehl != "n" and self.pfad:
                self.pfade.append((befehl, self.pfad))
            self.pfad = []


def pfade(pdf):
    zeichner = Zeichner()
    for inhalt in inhalte(pdf):
        inhalt = re.sub(r"\((?:\\.|[^\\)])*\)|<[0-9A-Fa-f\s]*>", " ", inhalt)  # texts are compared as words
        zahlen = []
        for teil in inhalt.split():
            try:
                zahlen.append(float(teil))
            except ValueError:
                if teil[0].isalpha():
                    zeichner.tun(teil, zahlen)
                    zahlen = []
    return zeichner.pfade


def worte_vergleichen(eine, andere):
    a, b = worte(eine), worte(andere)
    if [w[0] for w in a] != [w[0] for w in b]:
        yield f"other words: {sorted(set(w[0] for w in a) ^ set(w[0] for w in b))} ({len(a)}, {len(b)})"
        return
    groesste = 0.0
    for x, y in zip(a, b):
        abstand = max(abs(p - q) for p, q in zip(x[1:], y[1:]))
        groesste = max(groesste, abstand)
        if abstand > GRENZE:
            yield f"{x[0]!r} is {abstand:.2f} mm away"
    print(f"{len(a)} words, {groesste:.3f} mm apart at most")


def pfade_vergleichen(eine, andere):
    a, b = pfade(eine), pfade(andere)
    if [(art, len(punkte)) for art, punkte in a] != [(art, len(punkte)) for art, punkte in b]:
        yield f"other lines and areas: {len(a)} and {len(b)}"
        return
    groesste = 0.0
    for (_, x), (_, y) in zip(a, b):
        abstand = max(max(abs(p[0] - q[0]), abs(p[1] - q[1])) for p, q in zip(x, y))
        groesste = max(groesste, abstand)
        if abstand > GRENZE:
            yield f"a line from {x[0]} is {abstand:.2f} mm away"
    if not a:
        yield "no lines at all"
    print(f"{len(a)} lines and areas, {groesste:.3f} mm apart at most")


def main():
    eine, andere = sys.argv[1:]
    fehler = []
    formulare = [bytes_von(ordner, "ABEND.FKR") for ordner in (eine, andere)]
    if formulare[0] != formulare[1] or not formulare[0]:
        fehler.append(f"the form files differ ({len(formulare[0])} and {len(formulare[1])} bytes)")
    print(f"form file: {len(formulare[0])} bytes")
    pdfs = [os.path.join(ordner, "ABEND.pdf") for ordner in (eine, andere)]
    fehler += worte_vergleichen(*pdfs)
    fehler += pfade_vergleichen(*(bytes_von(ordner, "ABEND.pdf") for ordner in (eine, andere)))
    for zeile in fehler:
        print("FAIL:", zeile)
    sys.exit(1 if fehler else 0)


if __name__ == "__main__":
    main()
