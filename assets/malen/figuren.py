"""Pictures with sizes of their own: flags and lamps, the pictures at the pointer, the falling sheet with its
basket, the sketches of paper, the words on the answer buttons."""

import klein
from gross import blatt, zeilen
from stil import eck, gruppe, kreis, pfad, schrift, vieleck, zug


# Flags, 24 by 25: the red one flies at the top, the green one hangs lower

def _mast():
    return eck(3, 2.5, 2, 21, "holz", w=1) + kreis(4, 2.2, 1.6, "gelb", w=1) + pfad("M1.5 23.6h6", w=1.4)


def flagge_rot():
    return (pfad("M5.5 3.5c4 -2.4 6.6 2 15.5 .2l-3.4 4.5l3.6 4.6c-8.6 1.8 -11.4 -2.4 -15.7 .2z", "rot")
            + pfad("M11.2 4.8v3.6", s="hell", w=2) + kreis(11.2, 11, 1.15, "hell", s="none") + _mast())


def flagge_gruen():
    return (pfad("M5.5 8.5l14.5 5.5l-14.5 5.5z", "gruen") + zug("7.4,14 9.4,16 13.2,11.8", s="hell", w=1.8) + _mast())


# Lamps, 16 by 16: the lit lantern with a mark of exclamation, the quiet one with a tick

def _laterne(f, zeichen):
    return (pfad("M5 4.8a3.2 3.2 0 0 1 6 0") + eck(3.5, 5, 9, 7.6, f, rx=2.4) + zeichen
            + eck(5, 3.6, 6, 2, "metall", rx=0.8, w=1) + eck(4, 12.2, 8, 2.3, "metall", rx=0.8, w=1))


def lampe_rot():
    return (_laterne("rot", klein.ausrufezeichen(8, 8.5, 0.72, "hell"))
            + pfad("M2.2 6l-1.4 -.9M2 9h-1.5M13.8 6l1.4 -.9M14 9h1.5", s="dunkelrot", w=1.1))


def lampe_gruen():
    return _laterne("gruen", zug("5.8,8.8 7.4,10.4 10.4,7", s="hell", w=1.5))


# At the pointer, 32 by 32, with a light rim that tells them from any ground

def _gerandet(inhalt, umriss):
    return pfad(umriss, "hell", s="hell", w=5) + inhalt


def _bogen(x, y):
    return (_gerandet(blatt(x, y, 16, 20, 4.5), f"M{x} {y}h11.5l4.5 4.5v15.5h-16z") + zeilen(x + 3, y
            + 6.4, (6, 10, 10, 7)))


def _pfeil(x, y, f, auf):
    d = "0,8.4 -7.4,.6 -3.2,.6 -3.2,-7 3.2,-7 3.2,.6 7.4,.6"
    return gruppe(vieleck(d, "hell", s="hell", w=4) + vieleck(d, f), x, y, dreh=180 if auf else 0)


def aufnehmen():
    return _bogen(3.5, 9.5) + _pfeil(23, 10.5, "blau", True)


def ablegen():
    return (pfad("M4 24.4v5.2h24v-5.2", s="hell", w=6) + pfad("M4 24.4v5.2h24v-5.2", w=2.8)
            + _bogen(4.5, 2) + _pfeil(23.5, 15.6, "gruen", False))


def nein():
    ring = kreis(16, 16, 12) + pfad("M7.6 7.6l16.8 16.8")
    return (_bogen(8, 6) + gruppe(ring, mehr=' stroke="#fffdf6" stroke-width="7.4"')
            + gruppe(ring, mehr=' stroke="#4a3222" stroke-width="5.2"')
            + gruppe(ring, mehr=' stroke="#d9513f" stroke-width="3"'))


def knaeuel(x=16, y=16, mass=1.0):
    """A crumpled sheet."""
    return gruppe(vieleck("-9,-3 -6.5,-8.5 -1,-9.5 4.5,-8.4 8.8,-4 9,2.4 6,7.8 0,9.2 -6,8 -9.2,3", "papier")
                  + pfad("M-6 -2l4 -4l3 4l5 -2M-5 4l4 -4l3 5l5 -4M-1 0l2 -2M1 5l-1 3", s="linie", w=1.2), x, y, mass)


def atom():
    korb = "M4.5 17.5h23l-2.6 13h-17.8z"
    return (pfad(korb, "hell", s="hell", w=5) + kreis(16, 8.6, 9, "hell", s="none")
            + pfad("M7.4 3.2l-2 -2M4.8 8.4h-2.6M24.6 3.2l2 -2M27.2 8.4h2.6", s="#e6852b", w=1.8)
            + knaeuel(16, 8.8, 0.8) + pfad(korb, "metall") + eck(2.6, 15, 26.8, 3.6, "metall", rx=1.8)
            + pfad("M11 21.4l.8 6M16 21.4v6M21 21.4l-.8 6", w=1.3))


# The falling sheet: seven pictures of 44 by 44, the basket of 48 by 48

FALL = [(-24, 1.0, 5), (12, 0.82, -5), (30, 0.94, 4), (4, 0.7, -6), (-20, 0.86, 4), (-6, 0.78, -3)]


def fallend(dreh, hoehe, bauch):
    """Turned, shortened as it tilts, and bent by the air."""
    h = 14 * hoehe
    bogen = (pfad(f"M-11 {-h:g}q11 {bauch} 22 0l0 {2 * h:g}q-11 {bauch} -22 0z", "papier", w=1.6)
             + "".join(pfad(f"M-7 {y * hoehe:g}q7 {bauch * 0.7:g} 14 0", s="linie", w=1.3) for y in (-8, -3.5, 1, 5.5)))
    return gruppe(gruppe(bogen, dreh=dreh), 22, 22)


def korb():
    return (pfad("M5 8h38l-5 37.5h-28z", "metall", w=1.8) + pfad("M9.4 14l3.2 25", s="hell", w=2.4)
            + pfad("M17 15l1.6 25M24 15v25M31 15l-1.6 25", w=1.4)
            + pfad("M7 24h34M8.4 33h31", s="linie", w=1.2) + eck(2, 3.5, 44, 6.5, "metall", w=1.8, rx=3.2))


# Sketches of the paper, 170 by 140

def _formular_klein(x, y, b, h):
    kopf, spalte, zeile = h / 8, b / 6, h * 0.8 / 5
    farben = {3: "gelb", 8: "gruen", 13: "blau", 17: "rot", 22: "orange", 26: "gelb"}
    return (eck(x, y, b, kopf, "gelb", w=1)
            + "".join(eck(x + i % 6 * spalte, y + h * 0.2 + i // 6 * zeile, spalte, zeile, farben.get(i, "weiss"), w=0.9)
                      for i in range(30)))


def _bogen_mit_schatten(x, y, b, h):
    return eck(x + 4, y + 4, b, h, "#cdc5b6", s="none") + eck(x, y, b, h, "papier", w=1.4)


def papier_quer():
    return _bogen_mit_schatten(19.5, 23.5, 130, 92) + _formular_klein(28, 33, 113, 73)


def papier_halb():
    return (_bogen_mit_schatten(38.5, 4.5, 92, 130) + _formular_klein(45, 12, 79, 50)
            + pfad("M38.5 69.5h92", w=1.2, stroke_dasharray="4 3") + klein_schere(128, 69.5))


def klein_schere(x, y):
    return gruppe(klein.schere(), x + 18, y - 7, 0.9, 90)


# Words on the answer buttons, 93 by 22; the letter of the access key is underlined

BREITEN = {"A": 722, "b": 611, "r": 389, "e": 556, "c": 556, "h": 611, "n": 611, "J": 556, "a": 556, "N": 722,
           "i": 278, "l": 278, "H": 722, "f": 333, "O": 778, "K": 722}  # of the bold face, in thousandths
WORT = 93, 22


def daumen():
    return (pfad("M5.5 7.5l2.6 -3.4c.4 -1.6 .4 -2.8 1.8 -2.8c1.6 0 1.7 1.7 1 4.7h2.2c1.6 0 1.9 1.2 1.5 2.4l-1.2 4.2"
                 "c-.4 1.3 -1.2 1.9 -2.6 1.9h-5.3z", "haut") + eck(1.5, 7, 4, 8, "blau", rx=0.8))


def zurueck():
    return pfad("M7 2l-5.6 5l5.6 5v-3c3.4 0 5.2 1.2 6.6 5c1 -5.6 -1.6 -8.8 -6.6 -9z", "gelb")


def wort(text, zeichen):
    groesse = 13.3
    laenge = sum(BREITEN[b] for b in text) * groesse / 1000
    x = (WORT[0] - 16 - 5 - laenge) / 2
    x = round(x)
    mitte = x + 21 + laenge / 2
    strich = BREITEN[text[0]] * groesse / 1000
    return (gruppe(zeichen, x, 3) + schrift(text, mitte, 16, groesse, mehr=f' textLength="{laenge:.2f}"')
            + pfad(f"M{x + 21.5} 18.5h{strich - 1:.2f}", w=1, stroke_linecap="butt"))


FIGUREN = {
    "status": (1.3, {"flagge_rot": ((24, 25), flagge_rot), "flagge_gruen": ((24, 25), flagge_gruen)}),
    "lampe": (1.1, {"rot": ((16, 16), lampe_rot), "gruen": ((16, 16), lampe_gruen)}),
    "ziehen": (1.5, {"aufnehmen": ((32, 32), aufnehmen), "ablegen": ((32, 32), ablegen), "nein": ((32, 32), nein),
                     "atom": ((32, 32), atom), "knaeuel": ((32, 32), knaeuel)}),
    "muell": (1.6, {**{f"blatt{i}": ((44, 44), lambda lage=lage: fallend(*lage)) for i, lage in enumerate(FALL)},
                    "blatt6": ((44, 44), lambda: knaeuel(22, 22, 0.95)), "korb": ((48, 48), korb)}),
    "papier": (1.4, {"quer": ((170, 140), papier_quer), "halb": ((170, 140), papier_halb)}),
    "wort": (1.1, {"ja": (WORT, lambda: wort("Ja", klein.BILDER["datei"]["ok"]())),
                   "nein": (WORT, lambda: wort("Nein", klein.BILDER["datei"]["abbrechen"]())),
                   "abbrechen": (WORT, lambda: wort("Abbrechen", zurueck())),
                   "hilfe": (WORT, lambda: wort("Hilfe", klein.eule())),
                   "ok": (WORT, lambda: wort("OK", daumen()))}),
}
