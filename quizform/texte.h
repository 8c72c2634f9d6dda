// Every text with which the quiz form speaks: messages, questions, tips, status lines.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace fktexte {

inline constexpr NachrichtText neu{6, "Neues Feldkranz-Formular",
                                   "Ich besorge dir ein neues Feldkranz-Formular !\r\n"
                                   "(Das kann einen kleinen Moment dauern.)",
                                   4, 1111};
inline constexpr NachrichtText neuSpeichern{7, "Neues Feldkranz-Formular",
                                            "Soll ich das vorhandene Formular vorher speichern ?", 2, 1111};
inline constexpr std::string_view neuerTitel = " Neues Feldkranz-Formular";

inline constexpr MeldungsText nichtsZuVerschieben{5, "Keine Frage zum Verschieben vorhanden.", "59",
                                                  "Ach ja ..."};
inline constexpr MeldungsText nichtsZuKopieren{5, "Keine Frage zum Kopieren vorhanden.", "89", "Ach ja ..."};

// A cell joins the two lines with a line feed alone, the other places with CR LF; that is meant.
inline constexpr NachrichtText feldBesetzt{7, "Fragenauswahl",
                                           "In diesem Feld gibt es schon eine Frage !\n"
                                           "Soll ich diese Frage durch die neue Frage ersetzen ?",
                                           4, 1111};
inline constexpr NachrichtText ablageBesetzt{7, "Fragenauswahl",
                                             "In diesem Feld gibt es schon eine Frage !\r\n"
                                             "Soll ich diese Frage durch die neue Frage ersetzen ?",
                                             4, 1111};
inline constexpr std::string_view keineFrage = "Keine Frage vorhanden !";

struct Hinweis {
    std::string_view tipp;
    std::string_view status;
};
inline constexpr Hinweis wissen{"Wissensgebiet nach Linksklick auswählen.",
                                " Wissensgebiet (nach Mausklick auswählen)"};
inline constexpr Hinweis frage{"Eine Frage :\r\n"
                               "- kann ausgewählt werden oder\r\n"
                               "- kann in das Textfeld eingegeben werden\r\n"
                               "\r\n"
                               "- mit [Shift]+Linksklick Frage verschieben\r\n"
                               "   (Antwort wird mit verschoben)\r\n"
                               "- mit [Strg]+Linksklick Frage kopieren\r\n"
                               "   (Antwort wird mit kopiert)",
                               " Frage"};
inline constexpr Hinweis wissenListe{"Wissensgebiet aus der Liste auswählen.", " Wissensgebiet auswählen"};
inline constexpr Hinweis spezialListe{"Spezialfeld aus der Liste auswählen.", " Spezialfrage und -wertung"};
inline constexpr Hinweis kopf{"Kopf des Feldkranz-Formulars.", " Feldkranz-Formular"};
inline constexpr Hinweis schliessen{
    "Feldkranz-Formular schließen;\r\n"
    "es folgt noch eine Abfrage, ob das aktuelle Formular gespeichert werden soll.",
    " Feldkranz-Formular schließen"};
inline constexpr Hinweis antwort{"Eine Antwort :\r\n"
                                 "- kommt automatisch mit einer ausgewählten Frage\r\n"
                                 "- kann in das Textfeld eingegeben werden",
                                 " Antwort"};
inline constexpr Hinweis punkte{"Punktzahl bei richtiger Antwort", " Punkte für richtige Antwort"};
inline constexpr Hinweis nr{"Nummer der Feldkranz-Runde", " Nr. der Quizrunde"};
inline constexpr Hinweis datum{"Datum der Feldkranz-Runde", " vorgesehenes Datum des Feldkranzes"};
inline constexpr Hinweis zeit{"Dauer der Feldkranz-Runde", " vorgesehene Dauer des Feldkranzes"};
inline constexpr std::string_view spezialStatus = " Spezialfrage und -wertung";

} // namespace fktexte
