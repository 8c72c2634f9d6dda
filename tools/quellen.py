"""Reads the sources: which file belongs to which layer, and what it includes. The other tools build on it."""

import os
import pathlib
import re

WURZEL = pathlib.Path(__file__).resolve().parent.parent
# The declared order of the folders: each may include what stands before it, and nothing behind it.
SUBSYSTEME = [
    "core", "tooltips", "dialogs", "rules", "catalogue", "quizform", "testform", "persistence",
    "printing", "filetools", "settings", "editor", "periphery", "forms", "search", "filling", "checking", "sheets",
    "start", "mainwindow",
]
SCHICHTEN = ["modell", "rand", "fenster"]  # from the bottom up

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]', re.MULTILINE)
LISTE = re.compile(r"feldkranz_quellen\(\s*(\w+)\s+([^)]*)\)")
VORAB = re.compile(r"^class (Q\w+|frm\w+);", re.MULTILINE)


def dateien(*endungen):
    """All files of the repository with these endings, as paths below its root."""
    gefunden = []
    for ordner, unterordner, namen in os.walk(WURZEL):
        if pathlib.Path(ordner) == WURZEL:
            unterordner[:] = [name for name in unterordner if name not in ("build", ".git")]
        gefunden += [pathlib.Path(ordner, name) for name in namen if pathlib.Path(name).suffix in endungen]
    return [pathlib.PurePosixPath(pfad.relative_to(WURZEL)) for pfad in sorted(gefunden)]


def text(pfad):
    return (WURZEL / pfad).read_text(encoding="utf-8")


def includes(pfad):
    """Pairs (own, name): own for a file of ours, else a header of a library."""
    for art, name in INCLUDE.findall(text(pfad)):
        yield art == '"', name


def qt_widgets():
    """Names of the toolkit's headers that only windows may use."""
    namen = {"QtWidgets", "QtTest", "QTest"}
    for ordner in pathlib.Path("/usr/include").glob("**/qt6/QtWidgets"):
        namen.update(eintrag.name for eintrag in ordner.iterdir())
    return namen


def gelistet():
    """Layer of each file that a quellen.cmake lists."""
    ergebnis = {}
    for subsystem in SUBSYSTEME:
        liste = WURZEL / subsystem / "quellen.cmake"
        if liste.exists():
            inhalt = re.sub(r"#[^\n]*", "", liste.read_text(encoding="utf-8"))
            for schicht, namen in LISTE.findall(inhalt):
                for name in namen.split():
                    ergebnis[name] = schicht
    return ergebnis


class Schichtung:
    """The layer of every source of the subsystems."""

    def __init__(self):
        self.gelistet = gelistet()
        self.widgets = qt_widgets()
        self.quellen = [p for p in dateien(".cpp", ".h") if p.parts[0] in SUBSYSTEME]
        self._gemerkt = {}

    def schicht(self, name, unterwegs=()):
        """Layer of a source: as listed; a header goes with its source, or stands as low as its includes let it."""
        if name in self._gemerkt:
            return self._gemerkt[name]
        ergebnis = self.gelistet.get(name) or self.gelistet.get(re.sub(r"\.h$", ".cpp", name))
        if ergebnis is None:
            ergebnis = self._aus_includes(name, unterwegs)
        self._gemerkt[name] = ergebnis
        return ergebnis

    def _aus_includes(self, name, unterwegs):
        hoechste = 0
        if not (WURZEL / name).exists() or name in unterwegs:
            return SCHICHTEN[0]  # a generated header, or a circle
        for klasse in VORAB.findall(text(name)):
            fensterklasse = klasse.startswith("frm") or klasse in self.widgets
            hoechste = max(hoechste, 2 if fensterklasse else 1)
        for eigen, ziel in includes(name):
            if eigen:
                hoechste = max(hoechste, SCHICHTEN.index(self.schicht(ziel, unterwegs + (name,))))
            else:
                hoechste = max(hoechste, self.mindestens(ziel))
        return SCHICHTEN[hoechste]

    def mindestens(self, bibliotheksname):
        """The lowest layer that may include this header of a library."""
        letzter = bibliotheksname.split("/")[-1]
        if bibliotheksname.startswith("QtWidgets") or letzter in self.widgets:
            return 2
        return 1 if re.match(r"Q[A-Z]|Qt[A-Z]|qt", letzter) else 0
