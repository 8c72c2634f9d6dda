"""The backgrounds that lie as files in data/BITMAP. What stands on them (texts, the picture, buttons) keeps calm
ground beneath it."""

from gross import eichenlaub, eule, flamme, scheite
from stil import eck, gruppe, kreis, oval, pfad, svg, vieleck

RAND = "#b4955f"
ZART = "#e6d5b2"


def _verlauf(name, oben, unten):
    return (f'<linearGradient id="{name}" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="{oben}"/>'
            f'<stop offset="1" stop-color="{unten}"/></linearGradient>\n')


def _bogen(b, h):
    """Warm paper with a double rim."""
    return (_verlauf("bogen", "#fffdf6", "#f6ebd3") + eck(0, 0, b, h, "url(#bogen)", s="none"))


def _rand(b, h):
    return (eck(0.5, 0.5, b - 1, h - 1, s=RAND, w=1) + eck(3.5, 3.5, b - 7, h - 7, s=ZART, w=1, rx=4))


def _zweig(x, y, spiegel, blaetter=4):
    """A twig of oak that leans outward from a middle; faint, since it is ornament."""
    teile = pfad("M0 17c-8 -6 -10 -16 -6 -30", s="holz", w=1.3)
    for bx, by, dreh in ((-3.6, 13, -96), (-7.2, 5, -72), (-7.8, -4, -48), (-6, -13, -8))[:blaetter]:
        teile += eichenlaub(bx, by, dreh, 0.86, 0.9)
    for bx, by, dreh in ((-4.2, 8.6, 34), (-6.6, 0, 44), (-6.4, -8, 52)):
        teile += eichenlaub(bx, by, dreh, 0.62, 0.9)
    mass = "scale(-1 1) " if spiegel else ""
    return f'<g transform="translate({x} {y}) {mass}" opacity="0.78">\n{teile}</g>\n'


def _tastenband(b, h, y):
    return (eck(4, y, b - 8, h - y - 4, "#ecdcb8", s="none", fill_opacity=0.55)
            + pfad(f"M4 {y + 0.5}h{b - 8}", s=ZART, w=1))


def meldung():
    b, h = 337, 187
    return svg(b, h, 1.2, _bogen(b, h) + _tastenband(b, h, 138) + _zweig(144, 33, False) + _zweig(190, 33, True)
               + _rand(b, h))


def nachricht():
    b, h = 439, 130
    return svg(b, h, 1.2, _bogen(b, h) + eck(4, 4, 43, 84, "#ecdcb8", s="none", fill_opacity=0.55)
               + pfad("M46.5 4v84", s=ZART, w=1) + _tastenband(b, h, 88) + gruppe(_zweig(0, 0, True), 411, 52, 1.3)
               + _rand(b, h))


def eingabe():
    b, h = 235, 199
    return svg(b, h, 1.2, _bogen(b, h) + _tastenband(b, h, 146) + gruppe(_zweig(0, 0, False), 96, 29, 0.84)
            + gruppe(_zweig(0, 0, True), 144, 29, 0.84)
               + _rand(b, h))


# The start window

def _wimpel():
    """Bunting in the board's colours along the upper edge."""
    farben = ["gelb", "gruen", "rot", "blau", "orange", "weiss"]
    teile = pfad("M-4 8q95 26 191 2q96 24 192 -3", s="leder", w=1.3)
    for i in range(18):
        x = 9 + i * 20.9
        t = x / 374
        y = 8 + 26 * 2 * (t * 2 % 1) * (1 - t * 2 % 1) + (0.4 - t)
        neigung = 13 * (1 - 2 * (t * 2 % 1))
        teile += gruppe(vieleck("-7,0 7,0 0,15", farben[i % 6], w=1.1), x, y, 1, neigung)
    return teile


def _tanne(x, y, mass, f="#5d8a4c"):
    return gruppe(vieleck("0,-30 8,-16 4.5,-16 11,-4 6,-4 13,8 -13,8 -6,-4 -11,-4 -4.5,-16 -8,-16", f, s="#3e6537", w=1.2)
                  + eck(-1.6, 8, 3.2, 5, "holz", w=1), x, y, mass)


def _zelt(x, y, mass, f="leinen"):
    return gruppe(pfad("M0 -34l34 40h-14z", "leder", w=1.2) + vieleck("0,-34 20,6 -24,6", f, w=1.4)
                  + vieleck("-1.4,-18 7,6 -10,6", "leder", w=1.2)
                  + pfad("M0 -34l-2 -4M0 -34l2 -4M-24 6l-6 3M34 6l5 3", w=1.2),
                  x, y, mass)


def _titel():
    gemeinsam = ('x="187" y="96" text-anchor="middle" font-family="URW Gothic" font-weight="600" font-size="55" '
                 'textLength="312" lengthAdjust="spacingAndGlyphs" stroke-linejoin="round"')
    return (f'<text {gemeinsam} stroke="#fffdf6" stroke-width="9" fill="#fffdf6">Feldkranz!</text>\n'
            f'<text {gemeinsam} stroke="none" fill="#d9b877" transform="translate(1.6 2)">Feldkranz!</text>\n'
            f'<text {gemeinsam} stroke="none" fill="#6b4526">Feldkranz!</text>\n')


def start():
    b, h = 374, 203
    himmel = (_verlauf("himmel", "#bfe0f2", "#fff0c9") + _verlauf("wiese", "#d7e4a6", "#b9cf86")
              + eck(0, 0, b, 150, "url(#himmel)", s="none"))
    sonne = (kreis(346, 62, 17, "gelb", s="none", fill_opacity=0.85)
            + kreis(346, 62, 24, "#ffe987", s="none", fill_opacity=0.3))
    huegel = (pfad("M0 132q60 -30 128 -12q70 -26 140 -4q60 -18 106 4v40h-374z", "#a9c988", s="none")
              + pfad("M0 140q80 -22 180 -8q100 -16 194 2v20h-374z", "#c0d694", s="none"))
    wald = "".join(_tanne(x, y, m) for x, y, m in ((112, 128, .62), (128, 131, .78), (247, 128, .66), (262,
            131, .84), (232, 131, .5)))
    wiese = eck(0, 139, b, h - 139, "url(#wiese)", s="none") + pfad("M0 139.5h374", s="#8fae63", w=1.2)
    lager = (_zelt(46, 139, 0.86) + _zelt(84, 143, 0.6, "papier") + gruppe(scheite(26.5) + flamme(15.6, 25), 292, 117, 1)
             + oval(344, 150, 16, 2.4, "#8fae63", s="none") + gruppe(eule(), 329, 119, 0.94))
    return svg(b, h, 1.3, himmel + sonne + huegel + wald + wiese + lager + _wimpel() + _titel()
            + eck(0.5, 0.5, b - 1, h - 1, s=RAND, w=1))


BILDER = {"FK_START": start, "FK_MELDUNG": meldung, "FK_NACHRICHT": nachricht, "FK_INPUT": eingabe}
