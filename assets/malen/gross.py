"""The pictures of the dialogs, on a grid of 32."""

import math

from stil import eck, gruppe, kreis, oval, pfad, vieleck, zug

KANTE, STRICH = 32, 1.5


def blatt(x, y, b, h, ohr=5, f="papier"):
    return (pfad(f"M{x} {y}h{b - ohr}l{ohr} {ohr}v{h - ohr}h{-b}z", f)
            + pfad(f"M{x + b - ohr} {y}v{ohr}h{ohr}z", "schatten", w=1.2))


def zeilen(x, y, laengen, schritt=3.4):
    return "".join(pfad(f"M{x} {y + i * schritt}h{b}", s="linie", w=1.3) for i, b in enumerate(laengen))


def felder(x, y, seite, farben, spalten=3, w=1):
    return "".join(eck(x + i % spalten * seite, y + i // spalten * seite, seite, seite, f, w=w)
                   for i, f in enumerate(farben))


def formular(x=5, y=2.5):
    bunt = ["gelb", "weiss", "blau", "weiss", "gruen", "weiss", "rot", "weiss", "orange"]
    return blatt(x, y, 20, 26) + pfad(f"M{x + 3} {y + 5.5}h9", s="linie", w=1.4) + felder(x + 3, y + 9, 4.7, bunt)


def frage(x, y, mass=1.0, f="tinte"):
    return gruppe(pfad("M-3.2 -3.2c0 -4.8 6.6 -4.6 6.6 -0.4c0 2.9 -3.4 2.8 -3.4 5.8", s=f, w=2.6)
                  + kreis(0, 6.3, 1.6, f, s="none"), x, y, mass)


def ausruf(x, y, mass=1.0, f="tinte"):
    return gruppe(pfad("M0 -5.4v6.6", s=f, w=2.8) + kreis(0, 5.4, 1.7, f, s="none"), x, y, mass)


def stern(x, y, r, f="gelb", w=None):
    punkte = []
    for i in range(10):
        radius, winkel = (r if i % 2 == 0 else r * 0.46), math.pi * i / 5
        punkte.append(f"{x + radius * math.sin(winkel):.2f},{y - radius * math.cos(winkel):.2f}")
    return vieleck(" ".join(punkte), f, w=w)


def mond(x, y, r, w=None):
    return pfad(f"M{x} {y - r}a{r} {r} 0 1 0 {r} {r}a{r * 0.8:g} {r * 0.8:g} 0 0 1 {-r} {-r}z", "gelb", w=w)


def marke(x, y, f, zeichen):
    return kreis(x, y, 7.2, "hell", s="none") + kreis(x, y, 6.2, f, w=1.4) + gruppe(zeichen, x, y)


def blase(f, x=0, y=0):
    d = "M3 0h10a3 3 0 0 1 3 3v6.5a3 3 0 0 1 -3 3h-3.4l-4.6 4v-4h-2a3 3 0 0 1 -3 -3v-6.5a3 3 0 0 1 3 -3z"
    return gruppe(pfad(d, f), x, y)


def scheite(y=27):
    return (gruppe(eck(4, y - 2.2, 24, 4.2, "holz", rx=2) + oval(27, y, 1.2, 2, "leinen", w=1), dreh=11, um=(16, y))
            + gruppe(eck(4, y - 2.2, 24, 4.2, "holz", rx=2) + oval(5, y, 1.2, 2, "leinen", w=1), dreh=-11, um=(16, y)))


def flamme(x=16, y=26, mass=1.0):
    return gruppe(
        pfad("M0 0c-6.5 0 -9.6 -4 -8.6 -9c.6 -3 2.4 -4.2 2.8 -7.2c2 1 2.8 2.6 3 4.4c1.6 -2.6 2 -6.4 .4 -10.4"
             "c5.6 2.4 7.4 6.6 7.4 9.8c.9 -.8 1.4 -2 1.4 -3.2c2.2 2.4 3 5 2.6 8c-.6 4.8 -4 7.6 -9 7.6z", "orange")
        + pfad("M-.2 -1c-3.6 0 -5.2 -2.4 -4.6 -5.2c.6 -2.6 3.4 -3.6 3.6 -7.2c3 2 3.4 4 3.4 5.4c.6 -.4 1 -1.2 1.2 -2"
               "c2 4.8 .8 9 -3.6 9z", "gelb", w=1.1), x, y, mass)


def lagerfeuer():
    return scheite(26.5) + flamme(15.6, 25) + pfad("M3 30.6h26", s="linie", w=1.4)


def feuer_aus():
    return (eck(1.5, 1.5, 29, 29, "nacht", rx=6) + mond(23.6, 7.6, 4.4, w=1.2)
            + "".join(kreis(x, y, 0.9, "glut", s="none") for x, y in ((6, 7), (11.6, 4.6), (27, 15.6), (5.4, 14)))
            + pfad("M16 21.4c-4.4 -3.2 3.8 -5 .2 -8.6c-2.4 -2.4 1.2 -4.4 .2 -6.8", s="hell", w=2.2)
            + gruppe(scheite(26), 3.2, 5.4, 0.8) + pfad("M12.4 23.6l1.6 -1.6l2 1.8l2.2 -2l1.6 1.8", s="#ff9f43", w=1.4))


def nachtzelt():
    return (eck(1.5, 1.5, 29, 29, "nacht", rx=6) + mond(24, 8, 4.2, w=1.2)
            + "".join(kreis(x, y, 0.9, "glut", s="none") for x, y in ((6, 8), (16.6, 4.8), (26.6, 17)))
            + pfad("M1.5 24.6h29v1.4a4.5 4.5 0 0 1 -4.5 4.5h-20a4.5 4.5 0 0 1 -4.5 -4.5z", "laub", w=1.2)
            + vieleck("13.5,10 24.5,26.5 2.5,26.5", "leinen") + vieleck("13.5,15.6 18.4,26.5 8.6,26.5", "gelb", w=1.2)
            + pfad("M13.5 10l-1.4 -2M13.5 10l1.4 -2"))


def gewitter():
    return (vieleck("15.4,15 20.6,15 17.8,20 22,20 12.6,30.5 15,22.8 11.4,22.8", "gelb")
            + pfad("M8 19a5.6 5.6 0 0 1 -.6 -11a7.8 7.8 0 0 1 14.4 -2.2a6.4 6.4 0 0 1 3.4 12.4a9 9 0 0 1 -3 .8z", "grau")
            + pfad("M9.6 9.6a5.4 5.4 0 0 1 4.8 -4.6", s="hell", w=1.6)
            + pfad("M7 23.4l-1.4 3.4M26 22.6l-1.4 3.4", s="#5590c6", w=1.8))


def eule():
    koerper = (pfad("M6 4.4l4.6 2.4a12 12 0 0 1 10.8 0l4.6 -2.4v13.2c0 7 -4 11.9 -10 11.9s-10 -4.9 -10 -11.9z", "holz")
               + pfad("M10.4 19.6c2.2 -1.8 9 -1.8 11.2 0c.8 4.6 -1.6 8.4 -5.6 8.4s-6.4 -3.8 -5.6 -8.4z", "leinen", w=1.1)
               + pfad("M12.8 22.6l1.4 1.2l1.4 -1.2M16.4 22.6l1.4 1.2l1.4 -1.2M14.6 25.4l1.4 1.2l1.4 -1.2", w=1)
               + kreis(11.4, 13, 4.3, "hell", w=1.4) + kreis(20.6, 13, 4.3, "hell", w=1.4)
               + kreis(12, 13.2, 2, "tinte", s="none") + kreis(20, 13.2, 2, "tinte", s="none")
               + kreis(11.4, 12.4, 0.7, "hell", s="none") + kreis(19.4, 12.4, 0.7, "hell", s="none")
               + vieleck("14.2,16.4 17.8,16.4 16,19.8", "orange", w=1.2)
               + pfad("M12.6 29.4v1.4M14.6 29.6v1.4M17.4 29.6v1.4M19.4 29.4v1.4", s="#e6852b", w=1.6))
    return koerper


def zeigefinger():
    return (pfad("M10 30.5v-6c-2.6 -2 -3.6 -4.4 -4 -7.2c-.3 -2 2.4 -2.8 3.4 -1l1.8 2.8v-14.8a2.4 2.4 0 0 1 4.8 0v9.2"
                 "a2.3 2.3 0 0 1 4.4 .6a2.2 2.2 0 0 1 4.1 1a2 2 0 0 1 3.2 1.6v5.2c0 2.6 -1.2 4.6 -3.2 6.2v2.4z", "haut")
            + pfad("M16 13.6v5M20.4 14.4v4.4M24.5 16v3", w=1.2) + pfad("M9.4 26.4h15.6v4.1h-15.6z", "blau", w=1.3)
            + pfad("M5 5l2 1.6M13.6 .8v-.0M22 5l-2 1.6M4 10h2.4M23 10h-2.4", s="#e6852b", w=1.7))


def pfeife():
    return (pfad("M2.2 4.4c6 -4.6 10 2.2 9.4 7.4", s="#cb4637", w=1.8)
            + pfad("M11.4 11h18.4v5.4l-7.4 1.6a8.7 8.7 0 1 1 -11 -7z", "gelb")
            + kreis(13.8, 19.6, 3.4, "papier", w=1.2) + kreis(13.2, 20.4, 1.7, "holz", w=1)
            + pfad("M19 11v3.8h5.4v-3.8z", "leder", w=1.1) + pfad("M8.4 15.4a7 7 0 0 0 -1.6 3.6", s="hell", w=1.5)
            + pfad("M21 6.8l1.2 -3M25.2 7.4l2.4 -2.4M17.4 6.4l-.4 -3", w=1.6))


def suche():
    return (gruppe(blatt(4, 3, 16, 21, 4.5) + zeilen(7, 9, (9, 7, 9, 5)), dreh=-8, um=(12, 13))
            + pfad("M23.4 23.4l6 6", w=5.2) + pfad("M23.8 23.8l5.4 5.4", s="#b07c48", w=2.8)
            + kreis(18.4, 18, 7.6, "blau", w=1.7) + frage(18.2, 16.6, 0.72)
            + pfad("M13.2 16a5.6 5.6 0 0 1 2.6 -3", s="hell", w=1.5))


def ablage():
    return (pfad("M2.5 27v-20h8.6l2.8 3h13.6v5", "orange") + blatt(8, 4.5, 15, 16, 4) + zeilen(11, 10, (7, 9))
            + pfad("M2.5 27.5l4 -12.5h24l-4 12.5z", "gelb") + pfad("M8 18h17", s="hell", w=1.4))


def eichenlaub(x, y, dreh, mass=1.0, w=1.1):
    return gruppe(
        pfad("M0 0c-1.6 -.4 -2.8 -1.4 -2.6 -2.8c-1.6 -.6 -2 -2.4 -.9 -3.4c-1.1 -1.2 -.6 -3 .9 -3.2c0 -1.6 1.2 -2.6 2.6 -2.8"
             "c1.4 .2 2.6 1.2 2.6 2.8c1.5 .2 2 2 .9 3.2c1.1 1 .7 2.8 -.9 3.4c.2 1.4 -1 2.4 -2.6 2.8z", "laub", w=w)
        + pfad("M0 1.6v-10", w=0.75 * w), x, y, mass, dreh)


def kranz(mitte="", anzahl=9, r=10.4, mass=0.86):
    teile = ""
    for i in range(anzahl):
        winkel = 2 * math.pi * i / anzahl + 0.35
        x, y = 16 + r * math.cos(winkel), 16 + r * math.sin(winkel)
        teile += eichenlaub(x - 3.6 * math.sin(-winkel + math.pi) * -1, y + 3.6 * math.cos(winkel) * -1,
                            math.degrees(winkel) + 168, mass)
    return teile + mitte


def lobkranz():
    return (kranz() + vieleck("11,27 16,24.4 21,27 19.4,31.4 16,29 12.6,31.4", "rot", w=1.2)
            + zug("10.6,16.4 14.6,20.6 21.8,11.6", w=4.8) + zug("10.6,16.4 14.6,20.6 21.8,11.6", s="#f0b93a", w=2.4))


def wegweiser():
    return (pfad("M8 30.5h16", s="linie", w=1.6) + eck(14, 2, 4, 28.5, "holz")
            + pfad("M6 4.5h17l5 4l-5 4h-17z", "gelb") + pfad("M26 15h-17l-5 4l5 4h17z", "gruen")
            + pfad("M9 8.5h12", s="tinte", w=1.3) + pfad("M11 19h12", s="tinte", w=1.3))


def drucker(papier=""):
    return (blatt(9, 2, 14, 12, 4) + eck(2.5, 11, 27, 12.5, "metall", rx=2.6) + pfad("M5.5 14.5h10", s="hell", w=1.6)
            + kreis(25, 15.4, 1.2, "laub", w=0.9) + eck(8.5, 19, 15, 11, "papier") + papier)


def drucker_blatt():
    return drucker(zeilen(11, 22.6, (10, 7), 3.2))


def drucker_quer():
    return drucker(felder(10.2, 21.4, 2.9, ["gelb", "weiss", "blau", "gruen", "weiss", "rot", "weiss", "orange"], 4))


def drucker_hinweis():
    return (drucker(zeilen(11, 22.6, (6, 4), 3.2))
            + vieleck("23.4,13.4 31.6,29.6 15.2,29.6", "hell", s="hell", w=2.6)
            + vieleck("23.4,14 30.8,29 16,29", "gelb", w=1.5) + ausruf(23.4, 23.2, 0.62))


def regelbuch():
    return (pfad("M6.5 27v-21a3 3 0 0 1 3 -3h17v22.5h-17a2.5 2.5 0 0 0 0 5h17", "gruen")
            + pfad("M9.4 30.4h17v-4.8h-17a2.4 2.4 0 0 0 0 4.8z", "papier", w=1.2)
            + pfad("M10.4 3.4v22", s="dunkelgruen", w=1.2)
            + gruppe(pfeife(), 12.2, 5.4, 0.44))


def _regler(x, y, f):
    return pfad(f"M{x} 6v14", w=2) + eck(x - 3, y - 2.2, 6, 4.4, f, rx=1.4, w=1.3)


def vorgaben():
    return (eck(2.5, 2.5, 27, 21, "papier", rx=2.5) + _regler(8.5, 15, "gelb") + _regler(16, 9, "gruen")
            + _regler(23.5, 13, "rot") + eck(6, 26, 20, 4, "holz", rx=1.4) + pfad("M13 23.5v2.5M19 23.5v2.5"))


def _schultern(f, tuch):
    return (pfad("M4.5 30.5c0 -6 4.6 -8.6 11.5 -8.6s11.5 2.6 11.5 8.6z", f)
            + pfad("M9.6 22.4l6.4 6.4l6.4 -6.4l-2.4 -1.8h-8z", tuch, w=1.3) + kreis(16, 27.6, 1.7, "leder", w=1.1))


def _gesicht(auge=True):
    augen = kreis(12.8, 14.4, 1.1, "tinte", s="none") + kreis(19.2, 14.4, 1.1, "tinte", s="none") if auge else ""
    return kreis(16, 14, 7.4, "haut") + augen + pfad("M13 17.8c1.6 1.8 4.4 1.8 6 0", w=1.3)


def brennek():
    return (_schultern("gruen", "blau") + _gesicht(False)
            + pfad("M8.6 12.6c-1.6 -10.6 17 -11.8 14.8 0c-1 -3.4 -4 -4.6 -6.6 -4.4c-3.6 .2 -6.4 1 -8.2 4.4z",
            "leder", w=1.3)
            + kreis(12.6, 14, 2.7, "hell", w=1.3) + kreis(19.4, 14, 2.7, "hell", w=1.3) + pfad("M15.3 14h1.4", w=1.3)
            + kreis(12.8, 14.2, 1, "tinte", s="none") + kreis(19.2, 14.2, 1, "tinte", s="none"))


def tarvo():
    return (_schultern("gruen", "gelb") + _gesicht()
            + pfad("M3 11c2.4 -2.4 4.8 -2.8 6.8 -3c.8 -7.4 11.6 -7.4 12.4 0c2 .2 4.4 .6 6.8 3c-7 1.6 -19 1.6 -26 0z", "holz", w=1.4)
            + pfad("M9.8 8c3.6 1.2 8.8 1.2 12.4 0", s="#cb4637", w=1.8))


def formular_neu():
    return gruppe(formular(), -2.5, 1, 0.98) + stern(24.2, 8.4, 7.6, "gelb", w=1.4)


def formularfrage():
    return gruppe(formular(), -3.4, 2.4, 0.94) + blase("orange", 14.6, 1) + frage(22.4, 6.2, 0.72)


def papierkorb():
    return (gruppe(blatt(8, 1, 13, 14, 4) + zeilen(10.6, 6.4, (6, 7)), dreh=10, um=(15, 8))
            + pfad("M5.5 12h21l-2.6 18.5h-15.8z", "metall") + eck(3.5, 9.6, 25, 3.8, "metall", rx=1.9)
            + pfad("M11 17l1 9.6M16 17v9.6M21 17l-1 9.6", w=1.3))


def achtung():
    return vieleck("16,3 30.4,28.6 1.6,28.6", "gelb", w=1.8) + ausruf(16, 19.4, 1.06)


def eingabestift():
    return (eck(2.5, 17.5, 27, 11, "papier", rx=1.4) + zug("6,21.5 6,25", w=1.4) + pfad("M9 25h9", s="linie", w=1.4)
            + pfad("M15 21.6l1.6 -5.6l11.4 -11.4l4 4l-11.4 11.4z", "gelb", transform="translate(-2.4 -1.4)")
            + pfad("M15 21.6l1.6 -5.6l4 4z", "haut", w=1.2, transform="translate(-2.4 -1.4)")
            + pfad("M25.4 7.2l4 4", transform="translate(-2.4 -1.4)"))


def kopie():
    return (blatt(3, 2.5, 16, 21, 4.5) + zeilen(6, 9, (8, 10, 7)) + blatt(12.5, 8.5, 16.5, 21, 4.5)
            + felder(15.4, 16.4, 3.6, ["gelb", "blau", "gruen", "rot", "weiss", "orange"]))


def ordner_neu():
    return (pfad("M2.5 24v-18.5h8.4l2.8 3h13.8v4.5", "orange") + pfad("M2.5 24.5l3.6 -11.5h23.4l-3.6 11.5z", "gelb")
            + marke(23.4, 23.4, "laub", pfad("M-3.2 0h6.4M0 -3.2v6.4", s="hell", w=2.4)))


def namensschild():
    return (pfad("M10 2l6 7.4l6 -7.4", s="#cb4637", w=2.6) + eck(3.5, 9, 25, 20, "papier", rx=2.6)
            + pfad("M3.5 15.5v-3.9a2.6 2.6 0 0 1 2.6 -2.6h19.8a2.6 2.6 0 0 1 2.6 2.6v3.9z", "rot")
            + pfad("M8 20.6h16M8 25h10", s="linie", w=1.6) + eck(14, 7.2, 4, 3.6, "metall", rx=1, w=1.1))


BILDER = {
    "lagerfeuer": lagerfeuer, "feuer_aus": feuer_aus, "nachtzelt": nachtzelt, "gewitter": gewitter, "eule": eule,
    "zeigefinger": zeigefinger, "pfeife": pfeife, "suche": suche, "ablage": ablage, "lobkranz": lobkranz,
    "wegweiser": wegweiser, "drucker": drucker_blatt, "drucker_quer": drucker_quer,
    "drucker_hinweis": drucker_hinweis, "regelbuch": regelbuch, "vorgaben": vorgaben, "brennek": brennek,
    "tarvo": tarvo, "formular": formular, "formular_neu": formular_neu, "formularfrage": formularfrage,
    "papierkorb": papierkorb, "achtung": achtung, "stift": eingabestift, "kopie": kopie,
    "ordner_neu": ordner_neu, "namensschild": namensschild,
}
