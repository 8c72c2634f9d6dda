"""The pictures on buttons, on a grid of 16: outlines lie on half pixels, so that they are crisp at the plain
size."""

import math

from stil import eck, gruppe, kreis, pfad, vieleck, zug

KANTE, STRICH = 16, 1.1


# Parts

def blatt(x=2.5, y=1.5, b=9, h=12, f="papier"):
    return (pfad(f"M{x} {y}h{b - 3}l3 3v{h - 3}h{-b}z", f)
            + pfad(f"M{x + b - 3} {y}v3h3z", "schatten", w=0.9))


def zeilen(x, y, laengen, schritt=2):
    return "".join(pfad(f"M{x} {y + i * schritt}h{b}", s="linie", w=1) for i, b in enumerate(laengen))


def marke(zeichen, f, x=11.6, y=11.6):
    """A badge at the bottom right: round for what comes, square for what goes."""
    if f == "laub":
        return kreis(x, y, 4.2, "hell", s="none") + kreis(x, y, 3.5, f, w=1) + gruppe(zeichen, x, y)
    return (eck(x - 4.1, y - 4.1, 8.2, 8.2, "hell", s="none", rx=1.4) + eck(x - 3.1, y - 3.1, 6.2, 6.2, f, w=1, rx=0.8)
            + gruppe(zeichen, x, y))


PLUS = pfad("M-1.9 0h3.8M0 -1.9v3.8", s="hell", w=1.5)
MINUS = pfad("M-1.8 0h3.6", s="hell", w=1.9)
KREUZ = pfad("M-1.4 -1.4l2.8 2.8M1.4 -1.4l-2.8 2.8", s="hell", w=1.4)
HAKEN = zug("-1.7,0.1 -0.5,1.4 1.8,-1.3", s="hell", w=1.4)


def plus():
    return marke(PLUS, "laub")


def minus():
    return marke(MINUS, "rot")


def weg():
    return marke(KREUZ, "rot")


def felder(x, y, seite, farben, spalten=2):
    return "".join(eck(x + i % spalten * seite, y + i // spalten * seite, seite, seite, f, w=0.8)
                   for i, f in enumerate(farben))


def ordner(y=0):
    return (pfad(f"M1.5 {y + 12.5}v-9h4.5l1.5 1.5h6v2", "orange")
            + pfad(f"M1.5 {y + 12.5}l2 -6.5h11.5l-2 6.5z", "gelb"))


def diskette():
    return (pfad("M2.5 2.5h9.5l2 2v9h-11.5z", "blau") + eck(5, 2.5, 5.5, 3.5, "metall", w=0.9)
            + eck(4.5, 8.5, 7.5, 5, "papier", w=0.9) + pfad("M8.7 3.4v1.6", w=1.1))


def stift(f="gelb"):
    """From the top right to the bottom left."""
    return (pfad("M3 13l.9 -3.4l7.6 -7.6l2.5 2.5l-7.6 7.6z", f) + pfad("M3 13l.9 -3.4l2.5 2.5z", "haut", w=0.9)
            + pfad("M10 3.5l2.5 2.5", w=0.9))


def drucker():
    return (eck(4.5, 1.5, 7, 5, "papier") + eck(1.5, 5.5, 13, 6, "metall", rx=1.3)
            + eck(4.5, 9.5, 7, 5, "papier") + pfad("M6 11.5h4M6 13h3", s="linie", w=0.9)
            + kreis(12.6, 7.5, 0.5, "laub", s="none"))


def blase(f):
    """A speech bubble."""
    return pfad("M3.5 2.5h8a2 2 0 0 1 2 2v4a2 2 0 0 1 -2 2h-4l-3 3v-3h-1a2 2 0 0 1 -2 -2v-4a2 2 0 0 1 2 -2z", f)


def fragezeichen(x, y, mass=1.0, f="tinte"):
    return gruppe(pfad("M-1.7 -1.6c0 -2.5 3.5 -2.4 3.5 -0.2c0 1.5 -1.8 1.5 -1.8 3", s=f, w=1.4)
                  + kreis(0, 3, 0.85, f, s="none"), x, y, mass)


def ausrufezeichen(x, y, mass=1.0, f="tinte"):
    return gruppe(pfad("M0 -3.2v3.9", s=f, w=1.6) + kreis(0, 3, 0.9, f, s="none"), x, y, mass)


def stern(x, y, r, f="gelb", w=None):
    punkte = []
    for i in range(10):
        radius = r if i % 2 == 0 else r * 0.48
        winkel = math.pi * i / 5
        punkte.append(f"{x + radius * math.sin(winkel):.2f},{y - radius * math.cos(winkel):.2f}")
    return vieleck(" ".join(punkte), f, w=w)


def brett():
    """The sheet with the coloured board."""
    return blatt() + felder(4.2, 5.3, 2.6, ["gelb", "blau", "gruen", "rot"])


def testblatt():
    return (blatt() + "".join(eck(4.2, y, 2, 2, "weiss", w=0.8) + pfad(f"M7.6 {y + 1}h2.6", s="linie", w=1)
                              for y in (5, 8.2)))


def mond(x, y, r, f="gelb", w=None):
    return pfad(f"M{x} {y - r}a{r} {r} 0 1 0 {r} {r}a{r * 0.8:g} {r * 0.8:g} 0 0 1 {-r} {-r}z", f, w=w)


def kopf(tuch, oben):
    """Somebody with a neckerchief."""
    return (pfad("M2.5 14.5c0 -3 2.4 -4.2 5.5 -4.2s5.5 1.2 5.5 4.2z", "gruen") + kreis(8, 6.6, 3.6, "haut")
            + pfad("M4.6 10.6l3.4 3l3.4 -3l-1.2 -0.9h-4.4z", tuch) + oben)


def buch(f):
    return (pfad("M3.5 13v-9.5a1.5 1.5 0 0 1 1.5 -1.5h8.5v12h-8.7a1.3 1.3 0 0 1 0 -2.6h8.7", f)
            + pfad("M4.8 13.9h8.7v-2.4h-8.7a1.2 1.2 0 0 0 0 2.4z", "papier", w=0.9))


def klemmbrett():
    return (eck(2.5, 2.5, 11, 12, "holz", rx=1.2) + eck(4.5, 4.5, 7, 8.5, "papier", w=0.9)
            + eck(5.5, 1.5, 5, 3, "metall", rx=1, w=1))


def schere():
    return (pfad("M5.4 9.6L11.2 1.6M10.6 9.6L4.8 1.6", w=1.6) + kreis(4.2, 11.7, 2.2, "rot")
            + kreis(11.8, 11.7, 2.2, "rot")
            + kreis(4.2, 11.7, 0.7, "hell", w=0.8) + kreis(11.8, 11.7, 0.7, "hell", w=0.8))


def korb():
    return (pfad("M3 4.5h10l-1.2 10h-7.6z", "metall") + eck(2, 2.5, 12, 2.3, "metall", rx=1)
            + pfad("M6 7l.5 5M8 7v5M10 7l-.5 5", w=0.9))


def lupe():
    return (pfad("M9.6 9.6l4.2 4.2", s="tinte", w=3.2) + pfad("M9.8 9.8l3.9 3.9", s="holz", w=1.6)
            + kreis(6.5, 6.5, 4.6, "blau") + pfad("M3.9 6a2.7 2.7 0 0 1 2.6 -2.3", s="hell", w=1.1))


def eule():
    return (pfad("M3 2.2l2.2 1.2a6 6 0 0 1 5.6 0l2.2 -1.2v6.3a5 5.6 0 0 1 -10 0z", "holz")
            + kreis(5.7, 7, 2, "hell", w=1) + kreis(10.3, 7, 2, "hell", w=1)
            + kreis(5.9, 7.1, 0.9, "tinte", s="none") + kreis(10.1, 7.1, 0.9, "tinte", s="none")
            + vieleck("7.1,8.8 8.9,8.8 8,10.6", "orange", w=0.8))


def pfeife():
    return (pfad("M6 5.5h8.5v2.6l-3.4 0.7a4.3 4.3 0 1 1 -5.1 -3.3z", "gelb") + kreis(6.9, 9.6, 1.5, "papier", w=0.9)
            + pfad("M9.6 5.5v1.8h2.6v-1.8", "leder", w=0.8) + pfad("M1.2 2.5l1.8 1.3M4.5 1l.6 2.2", w=1.1))


# Pictures

def _regler():
    teile = ""
    for x, y, f in ((4, 9.5, "gelb"), (8, 4.5, "gruen"), (12, 8, "rot")):
        teile += pfad(f"M{x} 2v12", s="tinte", w=1.4) + eck(x - 1.8, y - 1.5, 3.6, 3, f, rx=0.8, w=1)
    return teile


def _zurueck():
    return pfad("M7.5 1.8l-5.8 5.2l5.8 5.2v-3.2c3 0 4.8 1.2 6 5c1 -5.6 -1.4 -9 -6 -9.2z", "laub")


def _zahnrad(x, y):
    return (kreis(x, y, 4.4, "hell", s="none") + kreis(x, y, 2.9, "grau", w=1.9, stroke_dasharray="1.55 1.49")
            + kreis(x, y, 2.5, "grau", w=1) + kreis(x, y, 0.9, "hell", w=0.8))


def _karten():
    return (gruppe(eck(2.5, 3, 8, 10, "blau", rx=1), dreh=-14, um=(6, 8)) + gruppe(
        eck(5, 3, 8.5, 10.5, "orange", rx=1) + fragezeichen(9.2, 7.4, 1), dreh=8, um=(9, 8)))


def _buch_feder():
    return buch("leder") + pfad("M13.8 1c-4.4 .6 -6.6 3.4 -7 8c3.6 -.6 6.6 -2.6 7 -8z", "papier", w=1) + pfad(
        "M12.2 3.4c-2.4 1.6 -4 3.6 -5.4 6.6", w=0.8)


def _globus():
    return (kreis(8, 8, 6.3, "blau")
            + pfad("M5 3c2.6 -.6 4.4 .6 3.6 2.4c-.6 1.4 -2.6 1 -3 2.6c-.3 1.2 -2 .7 -3 0c.3 -2.2 1 -3.8 2.4 -5z", "gruen", w=0.8)
            + pfad("M10.4 8c1.8 -.4 3 .2 3.2 1.4c-.6 2 -1.8 3.4 -3.2 4c-1 -.6 -.6 -1.8 -.8 -2.8c-.2 -1.2 -.4 -2.2 .8 -2.6z", "gruen", w=0.8))


def _brief():
    return (eck(1.5, 3.5, 13, 9.5, "papier", rx=0.8) + pfad("M2 4l6 5l6 -5") + kreis(8, 9, 1.8, "rot", w=0.9))


def _nachtzelt():
    return (eck(1, 1, 14, 14, "nacht", rx=3) + vieleck("7,5.5 12,13 2,13", "leinen", w=1)
            + vieleck("7,8.4 9,13 5,13", "leder", w=0.8) + mond(11.4, 4.4, 2.2, w=0.8))


def _liste():
    return (eck(1.5, 1.5, 13, 13, "papier", rx=1) + "".join(
        eck(3.5, y, 2.4, 2.4, f, w=0.8) + pfad(f"M7.6 {y + 1.2}h4.8", s="tinte", w=1.1)
        for y, f in ((3.3, "gelb"), (6.9, "gruen"), (10.5, "rot"))))


def _schloss():
    return (pfad("M5 7.5v-2.4a3 3 0 0 1 6 0v2.4", w=1.8) + eck(3.5, 7, 9, 7, "gelb", rx=1.2)
            + kreis(8, 9.8, 1, "tinte", s="none") + pfad("M8 10v2", w=1.2))


def _radierer():
    return (gruppe(eck(3, 4.5, 11, 5.5, "rot", rx=1) + eck(9, 4.5, 5, 5.5, "blau", rx=1), dreh=-32, um=(8, 8))
            + pfad("M2 14.2h8.5", w=1.2))


def _besen():
    return (blatt() + pfad("M13.8 4.6l-4.6 5", s="tinte", w=2.4) + pfad("M13.8 4.6l-4.6 5", s="#c08a50", w=1)
            + pfad("M7.2 8.6l4 3.4l-3 3l-4.2 -2.6z", "gelb", w=1) + pfad("M6 12.6l1 -1.2M7.4 13.8l1.2 -1.6", w=0.8))


def _auge():
    return (pfad("M1 8c3.6 -5.6 10.4 -5.6 14 0c-3.6 5.6 -10.4 5.6 -14 0z", "papier") + kreis(8, 8, 3, "blau")
            + kreis(8, 8, 1.3, "tinte", s="none") + kreis(7.2, 7.1, 0.7, "hell", s="none"))


def _wegweiser():
    return (eck(7, 1.5, 2, 13, "holz", w=1) + pfad("M3 2.5h8.5l2.5 2l-2.5 2h-8.5z", "gelb")
            + pfad("M13 8h-8.5l-2.5 2l2.5 2h8.5z", "gruen"))


def _laufwerk():
    return (eck(1.5, 5.5, 13, 6.5, "metall", rx=1.2) + pfad("M3.5 9h5", w=1.2) + kreis(12, 9, 1, "gruen", w=0.9))


def _ordnerreihe():
    teile = ""
    for x, y, f in ((0, -1.5, "rot"), (1.2, 1.2, "gruen"), (2.4, 4, "gelb")):
        teile += pfad(f"M{x + 1} {y + 10}v-6.5h3.5l1.2 1.2h6.3v5.3z", f, w=1)
    return teile


def _haken():
    return zug("2.8,8.6 6.4,12.4 13.2,4", w=4.2) + zug("2.8,8.6 6.4,12.4 13.2,4", s="#7fb956", w=2.2)


def _kreuz():
    return (pfad("M3.6 3.6l8.8 8.8M12.4 3.6l-8.8 8.8", w=4.2)
            + pfad("M3.6 3.6l8.8 8.8M12.4 3.6l-8.8 8.8", s="#dd6450", w=2.2))


def _backup():
    return (gruppe(diskette(), 3.2, -0.6, 0.78) + kreis(5.3, 10.4, 5.2, "none", s="none")
            + gruppe(diskette(), -0.7, 3.6, 0.78))


def _seitenlupe(zeichen):
    return (pfad("M9.6 9.6l4.2 4.2", s="tinte", w=3.2) + pfad("M9.8 9.8l3.9 3.9", s="holz", w=1.6)
            + kreis(6.5, 6.5, 4.8, "papier") + zeichen)


def _seitenpfeil(rechts):
    punkte = "6.5,2.5 13,8 6.5,13.5 6.5,10 2,10 2,6 6.5,6" if rechts else "9.5,2.5 3,8 9.5,13.5 9.5,10 14,10 14,6 9.5,6"
    return vieleck(punkte, "laub")


def _passung(quer):
    pfeile = ("M4.5 8h7M6.2 6.2l-1.9 1.8l1.9 1.8M9.8 6.2l1.9 1.8l-1.9 1.8" if quer else
              "M8 4.6v7M6.2 6.2l1.8 -1.9l1.8 1.9M6.2 10l1.8 1.9l1.8 -1.9")
    return eck(*((1.5, 3.5, 13, 9) if quer else (3, 1.5, 10, 13)), "papier") + pfad(pfeile, s="dunkelblau", w=1.3)


BILDER = {
    "seite": {
        "zurueck": lambda: _seitenpfeil(False),
        "weiter": lambda: _seitenpfeil(True),
        "kleiner": lambda: _seitenlupe(pfad("M4.3 6.5h4.4", w=1.6)),
        "groesser": lambda: _seitenlupe(pfad("M4.3 6.5h4.4M6.5 4.3v4.4", w=1.6)),
        "breite": lambda: _passung(True),
        "ganz": lambda: _passung(False),
        "fund_zurueck": lambda: gruppe(lupe(), 0, 0, 0.8)
            + gruppe(vieleck("0,4 3.4,-1 -3.4,-1", "gelb", w=1), 12, 4.6, 1, 180),
        "fund_weiter": lambda: gruppe(lupe(), 0, 0, 0.8) + gruppe(vieleck("0,4 3.4,-1 -3.4,-1", "gelb", w=1), 12, 3.4),
    },
    "leiste": {
        "neu_feldkranz": lambda: brett() + plus(),
        "neu_test": lambda: testblatt() + plus(),
        "feldkranz": lambda: blatt(2.5, 1.5, 11, 13)
            + felder(4.2, 6, 2.6, ["gelb", "weiss", "blau", "gruen", "rot", "weiss", "blau", "orange", "gelb"], 3),
        "test": lambda: blatt(2.5, 1.5, 11, 13) + "".join(
            eck(4.2, y, 2.2, 2.2, "weiss", w=0.8) + pfad(f"M7.8 {y + 1.1}h3.6", s="linie", w=1) for y in (5.2, 8.3, 11.2))
            + zug("4.4,6.2 5.4,7.2 7.6,4.4", s="dunkelgruen", w=1.3),
        "oeffnen": ordner,
        "speichern": diskette,
        "speichern_unter": lambda: diskette() + gruppe(stift("orange"), 4.6, 4.6, 0.75),
        "beenden": lambda: brett() + kreis(11.6, 11.4, 4.2, "hell", s="none") + mond(11.4, 11.4, 3.4),
        "beenden_test": lambda: testblatt() + kreis(11.6, 11.4, 4.2, "hell", s="none") + mond(11.4, 11.4, 3.4),
        "drucker": lambda: drucker() + _zahnrad(11.4, 11.4),
        "drucken": drucker,
        "auswahl": _karten,
        "haeuptlingsbuch": _buch_feder,
        "fragen_zurueck": lambda: blase("orange") + fragezeichen(6.6, 6, 0.95) + plus(),
        "fragen_weg": lambda: blase("orange") + fragezeichen(6.6, 6, 0.95) + minus(),
        "spezial_zurueck": lambda: felder(2, 2, 5, ["gelb", "gruen", "rot", "blau"]) + plus(),
        "spezial_weg": lambda: felder(2, 2, 5, ["gelb", "gruen", "rot", "blau"]) + minus(),
        "antworten_zurueck": lambda: blase("blau") + ausrufezeichen(7, 6, 0.9) + plus(),
        "antworten_weg": lambda: blase("blau") + ausrufezeichen(7, 6, 0.9) + minus(),
        "punkte_zurueck": lambda: stern(7, 7.2, 6.4) + plus(),
        "punkte_weg": lambda: stern(7, 7.2, 6.4) + minus(),
        "vorgaben": _regler,
        "schliessen": lambda: brett() + weg(),
        "schliessen_test": lambda: testblatt() + weg(),
        "zurueck": _zurueck,
        "dateiliste": _liste,
        "regel": pfeife,
        "editor": lambda: blatt() + zeilen(4.5, 6, (4, 3, 2)) + gruppe(stift(), 2.6, 2.4, 0.85),
        "hilfe": eule,
        "tarvo": lambda: kopf("gelb",
            pfad("M1.8 5h12.4c-1 -1.2 -2.4 -1.5 -3.4 -1.6c-.4 -2.6 -5.2 -2.6 -5.6 0c-1 .1 -2.4 .4 -3.4 1.6z",
            "leder", w=1)
                              + kreis(6.6, 7, 0.6, "tinte", s="none") + kreis(9.4, 7, 0.6, "tinte", s="none")),
        "brennek": lambda: kopf("blau", pfad("M4.4 6.2c-.2 -3.6 7.4 -4.4 7.2 0c-1.4 -1.6 -5.8 -1.6 -7.2 0z", "holz", w=1)
                                + kreis(6.4, 7, 1.3, "hell", w=0.9) + kreis(9.6, 7, 1.3, "hell", w=0.9)),
        "netz": _globus,
        "mail": _brief,
        "ende": _nachtzelt,
    },
    "editor": {
        "kopieren": lambda: blatt(1.5, 1.5, 7.5, 9.5) + blatt(6.5, 5, 7.5, 9.5),
        "anhaengen": lambda: klemmbrett() + plus(),
        "ausschneiden": schere,
        "ausschneiden_anhaengen": lambda: gruppe(schere(), -1, -1, 0.9) + plus(),
        "einfuegen": lambda: gruppe(klemmbrett(), -0.6, -0.6, 0.92) + gruppe(blatt(1.5, 1.5, 7.5, 9.5), 5, 4.2),
        "text_loeschen": _radierer,
        "ablage_leeren": lambda: klemmbrett() + weg(),
        "text_leeren": _besen,
        "backup": _backup,
        "schreiben": lambda: stift() + pfad("M8.5 14h5", s="tinte", w=1.2),
        "nicht_schreiben": _schloss,
    },
    "datei": {
        "loeschen": korb,
        "suchen": lupe,
        "ordner": lambda: ordner(),
        "ordner_neu": lambda: ordner(-1) + plus(),
        "ordner_loeschen": lambda: ordner(-1) + weg(),
        "ordner_serie": _ordnerreihe,
        "vorschau": _auge,
        "pfad": _wegweiser,
        "laufwerk": _laufwerk,
        "ok": _haken,
        "abbrechen": _kreuz,
    },
}
