// Every text with which the main window, its commands and the end of the program speak.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace kerntexte {

inline constexpr std::string_view hauptfenster = " Feldkranz! 2008";
inline constexpr std::string_view zuletztAbgelegt =
    "\r\n\r\nZuletzt abgelegt :\r\n"; // in the help panel's tip
inline constexpr std::string_view startfenster = "Am Start ...";
inline constexpr std::string_view startZeile = "Mit Grüßen von Tarvo und Brennek - weiter !";

inline constexpr std::string_view einrichtenTipp = "Ich lege deinen Programmordner an oder erneuere ihn.";
inline constexpr std::string_view einrichtenStatus = " Dein Programmordner wird eingerichtet";

// The menu of the buttons for which the window is too narrow.
inline constexpr std::string_view mehr = "Mehr";
inline constexpr std::string_view mehrTipp = "Knöpfe, für die das Fenster zu schmal ist.";
inline constexpr std::string_view mehrStatus = " Weitere Knöpfe zeigen";
inline constexpr std::string_view listentitel = "Dateiliste";
inline constexpr std::string_view listentitelTipp =
    "Dateiliste aufklappen. Ich habe sie eingeklappt, weil sie über dem Formular lag.";
inline constexpr std::string_view listentitelStatus = " Dateiliste aufklappen";

// Start picture missing; {} is its full path.
inline constexpr MeldungsText startbildFehlt{5, "Ich kann [ {} ] nicht finden !", "1",
                                             "Hab ich das denn ins Programmverzeichnis kopiert ?"};
inline constexpr MeldungsText startbildProblem{5, "Ich habe Probleme !", "1", "Das ist ja ganz ungewohnt"};

// The program's own folder takes no file; {} is the folder.
inline constexpr MeldungsText keinSchreibort{
    4,
    "In meinem Ordner\r\n[ {} ]\r\nkann ich nichts speichern.\r\n"
    "Kopiere ihn dorthin, wo du schreiben darfst,\r\nund starte mich von dort.",
    "1", "Gut, das mache ich"};

// End of the program.
inline constexpr NachrichtText iniSpeichern{1, "Feldkranz! beenden - Ini-Datei speichern !",
                                            "Sollen die aktuellen Einstellungen\r\ngespeichert werden ?", 2,
                                            7900};
inline constexpr MeldungsText iniNichtGespeichert{4, "Feldkranz.INI nicht gespeichert !", "987",
                                                  "Das ist nicht so schlimm"};
inline constexpr NachrichtText ende{1, "ENDE", "FELDKRANZ! beendet hiermit seine\r\nTätigkeit !  -  OK ?", 1,
                                    7910};

// Closing a form.
inline constexpr NachrichtText schliessenGeaendert{
    7, "Formular schließen",
    "Das Formular wurde möglicherweise verändert\r\nSoll ich das Formular vorher speichern ?", 2, 1111};
// Both forms' closing buttons say these words about the quiz form; that is meant.
inline constexpr NachrichtText schliessenFK{7, "Formular schließen", "Ich schließe das Feldkranz-Formular !",
                                            3, 1111};
inline constexpr NachrichtText schliessenHB{7, "Formular schließen", "Ich schließe das Test-Formular !", 3,
                                            1111};

// Blanking.
inline constexpr NachrichtText fkFragenLoeschen{
    7, "Fragen löschen",
    "Soll ich die Fragen und Antworten aus dem Formular löschen ?\r\n"
    "(Können anschließend - wenn nichts verändert wurde -\r\n"
    "auch wieder eingefügt werden.)",
    4, 1111};
inline constexpr NachrichtText fkSpezialLoeschen{7, "Spezialfelder löschen",
                                                 "Soll ich die Spezialfelder aus dem Formular löschen ?\r\n"
                                                 "(Können anschließend - wenn nichts verändert wurde -\r\n"
                                                 "auch wieder eingefügt werden.)",
                                                 4, 1111};
inline constexpr NachrichtText hbFragenLoeschen{7, "Fragen löschen",
                                                "Soll ich die Fragen aus dem Formular löschen ?\r\n"
                                                "(Ich kann sie später wieder problemlos einfügen.)",
                                                4, 1111};
inline constexpr NachrichtText hbAntwortenLoeschen{7, "Antworten löschen",
                                                   "Soll ich die Antworten aus dem Formular löschen ?\r\n"
                                                   "(Ich kann sie später wieder problemlos einfügen.)",
                                                   4, 1111};
inline constexpr NachrichtText hbPunkteLoeschen{7, "Punkte löschen",
                                                "Soll ich die Punkte aus dem Formular löschen ?\r\n"
                                                "(Ich kann sie später wieder problemlos einfügen.)",
                                                4, 1111};

// There is no help system, and this message is the feature; the number tells who asked.
inline constexpr std::string_view hilfeText =
    "Falls erforderlich,\r\nwird noch ein zusätzliches Hilfesystem implementiert !";
inline constexpr MeldungsText hilfeTaste{5, hilfeText, "1", "Ich glaube, das ist nicht nötig"};
inline constexpr MeldungsText hilfeMenue{5, hilfeText, "31", "Ich glaube, das ist nicht nötig"};
inline constexpr MeldungsText hilfeFK{5, hilfeText, "11", "Ich glaube, das ist nicht nötig"};
inline constexpr MeldungsText hilfeHB{5, hilfeText, "21", "Ich glaube, das ist nicht nötig"};

// The two makers' notices.
inline constexpr NachrichtText tarvo{
    5, "Initiator", "Aufbau der Feldkranz!-Datenbank\r\n\r\nTarvo\r\ntarvo@feldkranz.example", 0, 1001};
inline constexpr NachrichtText brennek{
    4, "Programmierer", "Programm-Design und Computer-Umsetzung\r\n\r\nBrennek\r\nbrennek@feldkranz.example",
    0, 1001};

// How large the form is now on the screen, in per cent.
inline constexpr std::string_view formulargroesse = " Das Formular ist jetzt auf {} % seiner Größe.";
inline constexpr std::string_view formularGroesstes =
    " Größer mache ich das Formular nicht, es ist schon auf {} % seiner Größe.";
inline constexpr std::string_view formularKleinstes =
    " Kleiner mache ich das Formular nicht, es ist schon auf {} % seiner Größe.";
inline constexpr std::string_view formularAngepasst =
    " Das Formular richtet sich jetzt nach dem Fenster und ist auf {} % seiner Größe.";
inline constexpr std::string_view formularFest =
    " Das Formular richtet sich nicht mehr nach dem Fenster und bleibt auf {} % seiner Größe.";

inline constexpr std::string_view kranzordner = "\\KRANZ";
inline constexpr std::string_view startbild = "\\BITMAP\\FK_START.bmp";
inline constexpr std::string_view wissensliste = "\\WISSEN\\WISSEN.TXT";

} // namespace kerntexte
