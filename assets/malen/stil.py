"""What all pictures share: the palette, the stroke and the light from the top left. A motif is a routine that
returns SVG text; svg() makes a whole drawing of it."""

import re

TINTE = "#4a3222"  # outlines
HELL = "#fffdf6"  # highlights, signs on coloured ground

# Colour with light and shade: name -> lit side (top left), shaded side (bottom right). The first six are the
# board's: question, Joker, Glücksfrage, Risiko, Aufgabe, Ereignis.
VERLAUF = {
    "papier": ("#fffefa", "#f3e7cc"),
    "gelb": ("#ffe987", "#f3b934"),
    "gruen": ("#b5dd86", "#68a544"),
    "rot": ("#f58d75", "#cb4637"),
    "blau": ("#a6d2f2", "#5590c6"),
    "orange": ("#ffc684", "#e6852b"),
    "holz": ("#d2a36e", "#8f5f35"),
    "leinen": ("#fbeecb", "#dcc08a"),
    "metall": ("#f1f3f2", "#a9b2b5"),
    "nacht": ("#5a7bb5", "#25406f"),
    "haut": ("#fbdcb9", "#e6b184"),
    "laub": ("#8fc062", "#477f35"),
    "grau": ("#dcd8cf", "#a8a296"),
    "leder": ("#b9804f", "#7a4a28"),
}
# Flat colours.
FLACH = {
    "tinte": TINTE,
    "hell": HELL,
    "schatten": "#d8c6a0",
    "linie": "#a8957a",
    "dunkelrot": "#9c2d22",
    "dunkelgruen": "#2f6b2c",
    "dunkelblau": "#2d5c90",
    "glut": "#fff3b8",
    "weiss": "#ffffff",
    "nachtdunkel": "#1c2f54",
}


def farbe(name):
    """The paint of that name; "none" and values that SVG knows pass."""
    if name in VERLAUF:
        return f"url(#{name})"
    return FLACH.get(name, name)


def _teil(art, masse, f, s, w, mehr):
    werte = dict(masse)
    werte["fill"] = farbe(f)
    if s != "tinte":
        werte["stroke"] = farbe(s)
    if w is not None:
        werte["stroke-width"] = w
    werte.update({name.replace("_", "-"): wert for name, wert in mehr.items()})
    return f"<{art} " + " ".join(f'{name}="{_zahl(wert)}"' for name, wert in werte.items()) + "/>\n"


def _zahl(wert):
    return f"{round(wert, 3):g}" if isinstance(wert, (int, float)) else wert


def pfad(d, f="none", s="tinte", w=None, **mehr):
    return _teil("path", {"d": d}, f, s, w, mehr)


def eck(x, y, b, h, f="none", s="tinte", w=None, rx=0, **mehr):
    return _teil("rect", {"x": x, "y": y, "width": b, "height": h, **({"rx": rx} if rx else {})}, f, s, w, mehr)


def kreis(x, y, r, f="none", s="tinte", w=None, **mehr):
    return _teil("circle", {"cx": x, "cy": y, "r": r}, f, s, w, mehr)


def oval(x, y, rx, ry, f="none", s="tinte", w=None, **mehr):
    return _teil("ellipse", {"cx": x, "cy": y, "rx": rx, "ry": ry}, f, s, w, mehr)


def zug(punkte, s="tinte", w=None, **mehr):
    return _teil("polyline", {"points": punkte}, "none", s, w, mehr)


def vieleck(punkte, f="none", s="tinte", w=None, **mehr):
    return _teil("polygon", {"points": punkte}, f, s, w, mehr)


def schrift(text, x, y, groesse, f="tinte", fett=True, mehr=""):
    gewicht = "bold" if fett else "normal"
    return (f'<text x="{_zahl(x)}" y="{_zahl(y)}" font-family="Liberation Sans" font-weight="{gewicht}" '
            f'font-size="{_zahl(groesse)}" text-anchor="middle" stroke="none" fill="{farbe(f)}"{mehr}>{text}</text>\n')


def gruppe(inhalt, x=0, y=0, mass=1, dreh=0, um=(0, 0), mehr=""):
    """Moved, scaled, turned by degrees around a point of its own."""
    lage = f"translate({_zahl(x)} {_zahl(y)})"
    lage += f" scale({_zahl(mass)})" if mass != 1 else ""
    lage += f" rotate({_zahl(dreh)} {_zahl(um[0])} {_zahl(um[1])})" if dreh else ""
    return f'<g transform="{lage}"{mehr}>\n{inhalt}</g>\n'


def svg(breite, hoehe, strich, inhalt):
    """A whole drawing of that size with that stroke; only the paints that it uses go in."""
    verlaeufe = "".join(
        f'<linearGradient id="{name}" x1="0" y1="0" x2="1" y2="1">'
        f'<stop offset="0" stop-color="{licht}"/><stop offset="1" stop-color="{schatten}"/></linearGradient>\n'
        for name, (licht, schatten) in VERLAUF.items() if f"url(#{name})" in inhalt)
    kopf = f"<defs>\n{verlaeufe}</defs>\n" if verlaeufe else ""
    text = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{breite}" height="{hoehe}" '
            f'viewBox="0 0 {breite} {hoehe}">\n{kopf}'
            f'<g fill="none" stroke="{TINTE}" stroke-width="{strich}" stroke-linejoin="round" '
            f'stroke-linecap="round">\n{inhalt}</g>\n</svg>\n')
    return re.sub(r"\n\n+", "\n", text)
