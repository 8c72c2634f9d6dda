// Every message, question and caption with which the settings dialog speaks. Tips and status lines of its
// controls are in hinweistexte.h.
#pragma once

#include "core/meldungstext.h"

#include <array>
#include <string_view>

namespace initexte {

inline constexpr std::string_view fenster = " Vorgaben";
inline constexpr std::string_view laden = " Ich lade das Register für die Voreinstellungen ...";
inline constexpr std::array<std::string_view, 6> register_{
    " Spezialfelder", " Formular  ", " Farben ", " Standardvorgaben", " Datei/Drucken", " Spielregeln"};
inline constexpr std::string_view rahmenPunkte = " Punkte ";
inline constexpr std::string_view rahmenFelder = " Felder (bei {} Fragen) ";

// How every question of the dialog is put.
inline constexpr int frageBild = 7;
inline constexpr int frageTasten = 3;
inline constexpr int frageNummer = 1111;
[[nodiscard]] constexpr NachrichtText Frage(std::string_view titel, std::string_view text) {
    return {frageBild, titel, text, frageTasten, frageNummer};
}

// Steps of the two counters. A question has three lines; {} is the first and the last.
inline constexpr std::string_view titelFragen = "Fragen pro Wissensgebiet";
inline constexpr std::string_view titelWissen = "Wissensgebiete";
inline constexpr std::string_view schritt = "{}\r\nDa Du die Spielregeln einhalten willst, muß ich\r\n{}";
// Meant: the one question that doesn't look at the number of areas has line feeds alone.
inline constexpr std::string_view schrittEineFrage =
    "{}\nDa Du die Spielregeln einhalten willst, muß ich\n{}";

// By the number that the step leads to, 1 to 5; index 0 isn't used.
inline constexpr std::array<std::string_view, 6> fragenAnlegen{
    "",
    "Ich soll nur eine Frage pro Wissensgebiet anlegen.",
    "Ich soll zwei Fragen pro Wissensgebiet anlegen.",
    "Ich soll drei Fragen pro Wissensgebiet anlegen.",
    "Ich soll vier Fragen pro Wissensgebiet anlegen.",
    "Ich soll fünf Fragen pro Wissensgebiet anlegen."};
inline constexpr std::array<std::string_view, 6> fragenFolge{"",
                                                             "die Felder 1, 2, 4 und 5 jetzt löschen!",
                                                             "die Felder 1, 3 und 5 jetzt löschen!",
                                                             "die Felder 2 und 4 jetzt löschen!",
                                                             "die Felder 3 jetzt löschen!",
                                                             "diesmal keine Felder löschen!"};

// By the number that the step leads to, 1 to 6; a step up deletes nothing.
inline constexpr std::array<std::string_view, 7> wissenAnlegen{"",
                                                               "Ich soll nur ein Wissensgebiet anlegen.",
                                                               "Ich soll zwei Wissensgebiete anlegen.",
                                                               "Ich soll drei Wissensgebiete anlegen.",
                                                               "Ich soll vier Wissensgebiete anlegen.",
                                                               "Ich soll fünf Wissensgebiete anlegen.",
                                                               "Ich soll sechs Wissensgebiete anlegen."};
inline constexpr std::array<std::string_view, 6> wissenFolge{"",
                                                             "das zweite Wissensgebiet jetzt löschen!",
                                                             "das dritte Wissensgebiet jetzt löschen!",
                                                             "das vierte Wissensgebiet jetzt löschen!",
                                                             "das fünfte Wissensgebiet jetzt löschen!",
                                                             "das sechste Wissensgebiet jetzt löschen!"};
inline constexpr std::string_view keineLoeschen = "diesmal keine Felder löschen!";

inline constexpr std::string_view verstaendnis = "Dafür habe ich vollstes Verständnis.";
inline constexpr std::string_view nachtragen = "Dann trage ich es in der Spielregel noch schnell nach.";
inline constexpr MeldungsText fragenMinimum{
    4, "Die Minimalanzahl der Fragen ist bereits erreicht.\r\nIch kann leider nicht weniger!?", "23",
    verstaendnis};
inline constexpr MeldungsText fragenMaximum{
    4, "Die Maximalanzahl der Fragen ist bereits erreicht.\r\nIch kann leider nicht mehr!?", "23",
    verstaendnis};
inline constexpr MeldungsText fragenOhneRegel{
    4, "Ich lösche keine Fragen,\nweil es in der Spielregel nicht gefordert ist!", "22", nachtragen};
inline constexpr MeldungsText wissenMinimum{
    4, "Die Minimalanzahl der Wissensgebiete ist bereits erreicht.\r\nIch kann leider nicht weniger!?", "23",
    verstaendnis};
inline constexpr MeldungsText wissenMaximum{
    4, "Die Maximalanzahl von 6 Wissensgebieten ist bereits erreicht.\r\nIch kann leider nicht mehr!?", "23",
    verstaendnis};
inline constexpr MeldungsText wissenOhneRegel{
    4, "Ich lösche keine Wissensgebiete,\nweil es in der Spielregel nicht gefordert ist!", "22", nachtragen};

// Ticking a rule while the board is smaller than the full one; {} is the count.
inline constexpr std::string_view titelEinhalten = "Spielregeln einhalten";
inline constexpr std::string_view fragenBegrenzt =
    "Du hast die Anzahl der Fragen pro Wissensgebiet auf  [ {} ]  begrenzt.\n"
    "Wenn Du die Spielregeln einhalten willst, muß ich\r\ndie restlichen Felder jetzt löschen!";
inline constexpr std::string_view wissenBegrenzt =
    "Du hast die Anzahl der Wissensgebiete auf  [ {} ]  begrenzt.\n"
    "Wenn Du die Spielregeln einhalten willst, muß ich\r\ndie restlichen Felder jetzt löschen!";

// Bounds of the spin controls.
inline constexpr MeldungsText felderZuWenig{4, "Weniger als 0 Felder geht nicht", "23", "Na denn ..."};
inline constexpr MeldungsText felderZuViel{4, "Mehr Felder sind nicht erlaubt", "23", "Na denn ..."};
inline constexpr MeldungsText punkteZuWenig{4, "Weniger als 0 Punkte geht nicht", "23", "Na denn ..."};
inline constexpr MeldungsText punkteZuViel{4, "Mehr Punkte sind nicht erlaubt", "23", "Na denn ..."};
// Meant: the standard points are warned about twice, with this stock box first.
inline constexpr std::string_view mehrGehtNicht = "Mehr geht nicht !";

// Presets.
inline constexpr MeldungsText nichtUmrechenbar{
    4, "Wieviele Fragen gibt es pro Wissensgebiet ?\r\nWieviele Fragefelder gibt es insgesamt ?", "45",
    "Das gebe ich schnell noch ein"};
inline constexpr NachrichtText felderNullen =
    Frage("Spezialfelder auf 0 setzen", "Ich setze die Anzahl aller Spezialfelder auf 0 !");
inline constexpr NachrichtText punkteNullen =
    Frage("Vorgaben auf 0 setzen", "Ich setze alle Vorgaben der Punkte für die Spezialfelder auf 0 !");
inline constexpr NachrichtText standardLaden{10, "Standardeinstellungen laden",
                                             "Ich lade die Standardeinstellungen für Feldkranz", frageTasten,
                                             frageNummer};
inline constexpr NachrichtText standardSpeichern{10, "Standardeinstellungen speichern",
                                                 "Ich speichere die Standardeinstellungen für Feldkranz",
                                                 frageTasten, frageNummer};
// {} is the system's text of the failure.
inline constexpr std::string_view nichtGelesen = " Feldkranz.INI konnte ich nicht lesen : {}";

inline constexpr NachrichtText verwerfen{
    frageBild, "Vorgaben für Feldkranz",
    "Evtl. veränderte Vorgaben werden wieder verworfen.\r\nIst das so in Ordnung ?", 4, frageNummer};

// Place that FehlerMelden names where a number grows beyond what a counter holds.
inline constexpr std::string_view ort = "INI : {}_Click";

} // namespace initexte
