// Tips and status lines of the start window and of the main window's areas, and the status lines of the menu
// entries. Those of the toolbars' buttons are in mainwindow/schaltflaechen.cpp.
#pragma once

#include "core/hinweistext.h"

#include <array>

namespace kerntexte {

inline constexpr std::array starthinweise{std::to_array<Hinweistext>({
    {"cmdStart", "Weiter zum Programm !", "Hinweis", " Weiter zum Programm"},
    {"lblVersion", "Revision des Programms.", "Hinweis", " Revision des Programms"},
})};

inline constexpr std::string_view farbschluessel = "Verteilung der Fragen und Spezialfelder :\r\n"
                                                   "- weiß : Frage\r\n"
                                                   "- gelb : Joker\r\n"
                                                   "- grün : Glücksfrage\r\n"
                                                   "- rot : Risiko\r\n"
                                                   "- blau : Aufgabe\r\n"
                                                   "- orange : Ereignis";
inline constexpr std::string_view verteilung = " Verteilung der Fragen und Spezialfelder";
inline constexpr std::string_view ablage = " Ablage für Fragen";

inline constexpr std::array haupthinweise{std::to_array<Hinweistext>({
    {"pnlKranz", "Werkzeugleisten von Feldkranz!.", "Feldkranz! 2008", " Werkzeugleisten"},
    {"picKranz", "Formulare anlegen und laden.", "Feldkranz! 2008", ""},
    {"picFK", "Werkzeugleiste für das Feldkranz-Formular.", "Feldkranz-Formular",
     " Werkzeugleiste für das Feldkranz-Formular"},
    {"picHB", "Werkzeugleiste für das Testformular.", "Testformular", " Werkzeugleiste für das Testformular"},
    {"picSpezial", farbschluessel, "Feldkranz", verteilung},
    {"picJoker", farbschluessel, "Feldkranz", verteilung},
    {"pnlHBPun", "Summe der Punkte im Testformular.", "Testformular", " Gesamtpunkte des Testformulars"},
    {"picEingabeFlagGruen", "Am Formular ist nichts Ungespeichertes.", "Formular",
     " Formular ist unverändert"},
    {"picEingabeFlagRot", "Das Formular hat Änderungen, die noch nicht gespeichert sind.", "Formular",
     " Formular ist verändert"},
    {"pnlHilfe", "Kurzhilfe zu dem, worauf der Mauszeiger steht.\r\nFragen können hier abgelegt werden.",
     "Hilfe", " 'Kurzhilfe'  und  'Ablage für Fragen'"},
    {"pnlCopyF",
     "In dieses Feld können mit [Shift]+Linksklick Fragen aus dem Formular gezogen werden.\r\n"
     "Die Antwort wird automatisch in das Feld 'Antwort' (rechts) übernommen.\r\n"
     "(Kann mit Doppelklick gelöscht werden.)",
     "Hilfe", ablage},
    {"pnlCopyA", "Antwort zur abgelegten Frage.\r\n(Kann mit Doppelklick gelöscht werden.)", "Hilfe", ablage},
    {"pnlFKFelder", "Aktuelle Anzahl der Fragen, Fragen pro Wissensgebiet und Wissensgebiete.", "Feldkranz",
     " Aktuelle Anzahl der Fragen- und Spezialfelder"},
    {"pnlKaro", "Fortschritt der laufenden Arbeit.", "Hinweis", " Fortschritt der laufenden Arbeit"},
})};

struct Menuestatus {
    std::string_view name; // of the entry; without an index for all members of an array
    std::string_view status;
};
inline constexpr std::string_view fkNeu = " Neues Formular für Feldkranz";
inline constexpr std::string_view hbNeu = " Neues Testformular";
inline constexpr std::string_view oeffnen = " Formular für Feldkranz oder Test laden";
inline constexpr std::string_view drucker = " Drucker einrichten ...";
inline constexpr std::string_view beenden = " Feldkranz beenden";
inline constexpr std::string_view auswahl = " Fragenauswahl laden";
inline constexpr std::string_view zurueck = " Zurück zum Hauptmenü";
inline constexpr std::string_view sicherung = " Speichern mit BackUp";
inline constexpr std::string_view hilfe = " Hilfe für Feldkranz in Anspruch nehmen ...";

inline constexpr std::array menuestatus{std::to_array<Menuestatus>({
    {"mDatei(1)", fkNeu},
    {"mDatei(2)", hbNeu},
    {"mDatei(4)", oeffnen},
    {"mDatei(6)", beenden},
    {"mDateiFK(1)", fkNeu},
    {"mDateiFK(3)", " Formular für Feldkranz laden"},
    {"mDateiFK(5)", " Formular für Feldkranz speichern"},
    {"mDateiFK(6)", " Formular für Feldkranz speichern unter ..."},
    {"mDateiFK(8)", " Feldkranz-Formular drucken ..."},
    {"mDateiFK(9)", " Feldkranz-Formular blanko drucken ..."},
    {"mDateiFK(10)", drucker},
    {"mDateiGeoeffnet", " Zuletzt geöffnetes Formular laden"},
    {"mDateiFK(12)", beenden},
    {"mFKFragenauswahl", auswahl},
    {"mThemenHB", " Themen aus Häuptlingsbuch laden"},
    {"mFKFragen(1)", " Fragen aus dem Feldkranz-Formular loeschen"},
    {"mFKFragen(2)", " Fragen in das Feldkranz-Formular schreiben"},
    {"mFKSpezial(1)", " Spezialfelder aus dem Feldkranz-Formular loeschen"},
    {"mFKSpezial(2)", " Spezialfelder in das Feldkranz-Formular schreiben"},
    {"mFKFormular", zurueck},
    {"mDateiHB(1)", hbNeu},
    {"mDateiHB(3)", " Testformular laden"},
    {"mDateiHB(5)", " Testformular speichern"},
    {"mDateiHB(6)", " Testformular speichern unter ..."},
    {"mDateiHB(8)", " Testformular drucken ..."},
    {"mDateiHB(9)", drucker},
    {"mDateiHB(11)", beenden},
    {"mHBFragenauswahl", auswahl},
    {"mHBFragen(1)", " Fragen aus dem Testformular loeschen"},
    {"mHBFragen(2)", " Fragen in das Testformular schreiben"},
    {"mHBAntworten(1)", " Antworten aus dem Testformular loeschen"},
    {"mHBAntworten(2)", " Antworten in das Testformular schreiben"},
    {"mHBPunkte(1)", " Punkte aus dem Testformular loeschen"},
    {"mHBPunkte(2)", " Punkte in das Testformular schreiben"},
    {"mHBFormular", zurueck},
    {"mAuswahl(1)", auswahl},
    {"mAuswahl(2)", " Liste der Formulare"},
    {"mBackUp", sicherung},
    {"mBackUpHB", sicherung},
    {"mInfos(1)", " Initiator"},
    {"mInfos(2)", " Programmierer"},
    {"mEditorKranz", " Editor für Fragensammlung"},
    {"mExtra(1)", " Letzten Schritt zurücknehmen"},
    {"mExtra(2)", " Zurückgenommenen Schritt wiederholen"},
    {"mExtra(4)", " Fragen im ganzen Katalog suchen"},
    {"mExtra(5)", " Leere Felder des Formulars mit Fragen füllen"},
    {"mExtra(6)", " Offenes Formular vor dem Drucken prüfen"},
    {"mExtra(8)", " Offenes Formular vor dem Drucken ansehen, auch als Brett und Karten"},
    {"mExtra(10)", " Formular auf dem Bildschirm größer machen"},
    {"mExtra(11)", " Formular auf dem Bildschirm kleiner machen"},
    {"mExtra(12)", " Formular auf dem Bildschirm in seiner Originalgröße zeigen"},
    {"mExtra(13)", " Formular so weit verkleinern, dass es ganz in das Fenster passt"},
    {"mHilfen(1)", hilfe},
    {"mHilfeFK", hilfe},
    {"mHilfeHB", hilfe},
    {"mHilfen(2)", " Internetseite des Programm-Entwicklers aufrufen."},
    {"mHilfen(3)", " eMail an den Programm-Entwickler schicken."},
})};

} // namespace kerntexte
