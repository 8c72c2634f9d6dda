#!/usr/bin/python3
"""Walks the running program as a screen reader does, over the desktop's accessibility bus.

Usage: vorlesen.py <program folder>
Started on a virtual screen with a bus of its own (vorlesen.sh). Every control that one can do something with
must have a name; the cells of the form are found by area, row and part, with their letter and points.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

import pyatspi
from gi.repository import GLib

FRIST = 30.0  # seconds
BEDIENBAR = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_RADIO_BUTTON,
    pyatspi.ROLE_TEXT, pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_TABLE, pyatspi.ROLE_LIST,
    pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM,
}
# What the toolkit builds these controls of is told by the whole.
GANZES = {pyatspi.ROLE_COMBO_BOX, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_SCROLL_BAR}

# An entry of a menu says in its own words what it does, a page what is on it.
OHNE_BESCHREIBUNG = {pyatspi.ROLE_MENU, pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_PAGE_TAB}

fehler = []


def warten(bedingung, was):
    ende = time.monotonic() + FRIST
    while time.monotonic() < ende:
        try:
            ergebnis = bedingung()
        except Exception:  # a control that has just gone
            ergebnis = None
        if ergebnis:
            return ergebnis
        time.sleep(0.05)
    raise SystemExit(f"{was} didn't come")


def kinder(element):
    return [kind for kind in element if kind is not None]


def alle(element):
    yield element
    if element.getRole() not in GANZES:
        for kind in kinder(element):
            yield from alle(kind)


def sichtbar(element):
    return element.getState().contains(pyatspi.STATE_SHOWING)


def programm():
    return next((a for a in kinder(pyatspi.Registry.getDesktop(0)) if a.name == "Feldkranz!"), None)


def finden(name, rolle=None):
    for element in alle(programm()):
        if element.name == name and sichtbar(element) and (rolle is None or element.getRole() == rolle):
            return element
    return None


def fenster(titel):
    """A window with that title, by itself or within the main window; a document's ends with its name."""
    for element in alle(programm()):
        if element.name.strip().endswith(titel) and sichtbar(element) and element.getRole() not in BEDIENBAR:
            return element
    return None


def namen_pruefen(wo, woher):
    gezaehlt = 0
    for element in alle(wo):
        if element.getRole() in BEDIENBAR and sichtbar(element):
            gezaehlt += 1
            if not element.name.strip():
                fehler.append(f"{woher}: a {element.getRoleName()} without a name at {element.get_index_in_parent()}"
                              f" of {element.parent.name!r}")
            if not element.description.strip() and not element.getRole() in OHNE_BESCHREIBUNG:
                fehler.append(f"{woher}: {element.getRoleName()} {element.name!r} isn't described")
    if gezaehlt == 0:
        fehler.append(f"{woher}: nothing to do anything with")


def taste(*tasten):
    subprocess.run(["xdotool", "key", "--clearmodifiers", *tasten], check=True)


def zellen_pruefen():
    da = {(element.name, element.getRole()) for element in alle(programm()) if sichtbar(element)}
    for gebiet in range(1, 7):
        for zeile in range(1, 6):
            ort = f"Gebiet {gebiet}, Zeile {zeile}, "
            for teil in ("Frage", "Antwort"):
                if (ort + teil, pyatspi.ROLE_TEXT) not in da:
                    fehler.append(f"no {ort}{teil}")
            if (ort + "Spezialfeld", pyatspi.ROLE_PUSH_BUTTON) not in da:
                fehler.append(f"no {ort}Spezialfeld")
            if not any(name.startswith(ort + "Punkte: ") for name, _ in da):
                fehler.append(f"no {ort}Punkte")


def tippen_pruefen():
    zelle = warten(lambda: finden("Gebiet 2, Zeile 3, Frage"), "the cell")
    zelle.queryComponent().grabFocus()
    warten(lambda: zelle.getState().contains(pyatspi.STATE_FOCUSED), "the focus")
    subprocess.run(["xdotool", "type", "Wer"], check=True)
    warten(lambda: zelle.queryText().getText(0, -1) == "Wer", "the text")


def hat_die_tasten(titel):
    """Whether keys go to that window now: the display server gives them away in its own time."""
    element = fenster(titel)
    if element.parent.getRole() == pyatspi.ROLE_APPLICATION:
        return element.getState().contains(pyatspi.STATE_ACTIVE)
    return any(teil.getState().contains(pyatspi.STATE_FOCUSED) for teil in alle(element))


def schliessen(titel, ende):
    warten(lambda: hat_die_tasten(titel), f"the keyboard for {titel}")
    taste(ende)


def fenster_pruefen():
    for kuerzel, titel in (("ctrl+f", "Fragen suchen"), ("ctrl+b", "Brett füllen"), ("F9", "Formular prüfen"),
                           ("ctrl+shift+p", "Druckvorschau")):
        taste(kuerzel)
        namen_pruefen(warten(lambda gesucht=titel: fenster(gesucht), titel), titel)
        schliessen(titel, "Escape")
        warten(lambda gesucht=titel: fenster(gesucht) is None, f"the end of {titel}")


def hauptfenster_vorn():
    titel = "Feldkranz! 2008"
    if hat_die_tasten(titel):
        return True
    subprocess.run(["xdotool", "search", "--onlyvisible", "--name", titel, "windowactivate"], check=False)
    time.sleep(0.5)
    return hat_die_tasten(titel)


def druecken(name):
    """Presses a button as a screen reader does. A process of its own waits for the answer, which comes only
    when the dialog that the press may open has gone."""
    warten(lambda: finden(name, pyatspi.ROLE_PUSH_BUTTON), name)
    # Whoever clicks there brings the main window to the front; else the list of forms may keep the keyboard.
    warten(hauptfenster_vorn, "the keyboard for the main window")
    subprocess.Popen([sys.executable, __file__, "--druecken", name], stderr=subprocess.DEVNULL)


def gedrueckt(name):
    aktion = finden(name, pyatspi.ROLE_PUSH_BUTTON).queryAction()
    stelle = next(i for i in range(aktion.nActions) if aktion.getName(i).lower() in ("press", "drücken"))
    aktion.doAction(stelle)


def durchsehen(titel, ende, frage=None):
    """Looks a window through, which goes with that key, behind that question if it asks one."""
    namen_pruefen(warten(lambda: fenster(titel), titel), titel)
    schliessen(titel, ende)
    if frage:
        namen_pruefen(warten(lambda: fenster(frage), frage), frage)
        schliessen(frage, "alt+j")
    warten(lambda: fenster(titel) is None, f"the end of {titel}")


def ansagen_pruefen():
    """What changes in the status line and in the flag is told without being asked for."""
    gehoert = []
    warten(lambda: finden("Ungespeicherte Änderungen", pyatspi.ROLE_NOTIFICATION), "the red flag")
    pyatspi.Registry.registerEventListener(
        lambda ereignis: gehoert.append(ereignis.source.name) if ereignis.detail1 else None,
        "object:state-changed:showing")
    taste("ctrl+plus")
    taste("ctrl+z")  # the typed text goes, and the flag turns green
    ende = time.monotonic() + FRIST
    gesucht = ("Das Formular ist jetzt auf 110 %", "Alles gespeichert")
    while time.monotonic() < ende and not all(any(w in g for g in gehoert) for w in gesucht):
        GLib.MainContext.default().iteration(False)
    for wort in gesucht:
        if not any(wort in g for g in gehoert):
            fehler.append(f"nothing was told of {wort!r}, but of {gehoert}")


def testform_pruefen():
    druecken("Neues Testformular anlegen.")
    warten(lambda: fenster("Neues Test-Formular"), "the question")
    taste("alt+j")
    warten(lambda: finden("Frage 1"), "the test form")
    da = {(element.name, element.getRole()) for element in alle(programm()) if sichtbar(element)}
    for zeile in range(1, 11):
        for gesucht in ((f"Frage {zeile}", pyatspi.ROLE_TEXT), (f"Antwort {zeile}", pyatspi.ROLE_TEXT),
                        (f"Punkte Frage {zeile}", pyatspi.ROLE_SPIN_BUTTON)):
            if gesucht not in da:
                fehler.append(f"no {gesucht} in the test form")
        if not any(name.startswith(f"Punkte Frage {zeile}") and rolle == pyatspi.ROLE_LABEL for name, rolle in da):
            fehler.append(f"no points of {zeile}: {sorted(n for n, r in da if n.startswith('Punkte'))}")
    punkte = finden("Punkte Frage 3", pyatspi.ROLE_SPIN_BUTTON).queryValue()
    punkte.currentValue = 4
    warten(lambda: punkte.currentValue == 4, "the points")
    namen_pruefen(fenster("Feldkranz! 2008"), "the test form")


ORTE = (
    ("Dialogbox für die Auswahl der :", "Fragen-Auswahl", "Escape", None),
    ("Dialogbox für verschiedene Vorgaben und Einstellungen aufrufen.", "Vorgaben", "Escape",
     "Vorgaben für Feldkranz"),
    ("Editor für die Fragensammlung aufrufen.", "Feldkranz! - Fragensammlung", "ctrl+w", None),
    ("Spielregel für Feldkranz! aufrufen.", "Feldkranz.pdf", "ctrl+w", None),
)


def gang(ordner):
    warten(programm, "the program")
    namen_pruefen(warten(programm, "the start window"), "the start window")
    warten(lambda: taste("Return") or fenster("Feldkranz! 2008"), "the main window")
    namen_pruefen(warten(lambda: fenster("Dateiliste"), "the list of forms"), "Dateiliste")
    warten(lambda: finden("Neues Formular für Feldkranz anlegen.", pyatspi.ROLE_PUSH_BUTTON), "the bar")
    taste("ctrl+o")
    durchsehen("Öffnen", "Escape")
    warten(lambda: finden("Keine Datei ausgewählt !"), "the message")
    taste("Return")
    taste("ctrl+n")
    frage = warten(lambda: fenster("Neues Feldkranz-Formular"), "the question")
    namen_pruefen(frage, "the question")
    taste("alt+j")
    warten(lambda: finden("Gebiet 1, Zeile 1, Frage"), "the form")
    zellen_pruefen()
    namen_pruefen(fenster("Feldkranz! 2008"), "the main window")
    tippen_pruefen()
    ansagen_pruefen()
    fenster_pruefen()
    for knopf, titel, ende, frage in ORTE:
        druecken(knopf)
        durchsehen(titel, ende, frage)
    druecken("Zurück zum Hauptmenü;")
    warten(lambda: fenster("Formular schließen"), "the question")
    taste("Return")
    testform_pruefen()


def main():
    if sys.argv[1] == "--druecken":
        return gedrueckt(sys.argv[2])
    with tempfile.TemporaryDirectory() as ablage:
        ordner = pathlib.Path(ablage, "Feldkranz")
        shutil.copytree(sys.argv[1], ordner)
        umgebung = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        lauf = subprocess.Popen([ordner / "feldkranz"], env=umgebung)
        try:
            gang(ordner)
        finally:
            lauf.kill()
            lauf.wait()
    for zeile in fehler:
        print(zeile)
    return 1 if fehler else 0


if __name__ == "__main__":
    sys.exit(main())
