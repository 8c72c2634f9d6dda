// Every text with which the test form speaks: captions, lists, questions, tips, status lines.
#pragma once

#include "core/meldungstext.h"

#include <array>
#include <string_view>

namespace hbtexte {

inline constexpr NachrichtText neu{6, "Neues Test-Formular", "Ich besorge dir ein neues Test-Formular !", 4,
                                   1111};
inline constexpr NachrichtText neuSpeichern{7, "Neues Test-Formular",
                                            "Soll ich das vorhandene Formular vorher speichern ?", 2, 1111};
inline constexpr std::string_view neuerTitel = " Neues Testformular";

inline constexpr NachrichtText zeileBesetzt{7, "Fragenauswahl",
                                            "In diesem Feld gibt es schon eine Frage !\r\n"
                                            "Soll ich diese Frage durch die neue Frage ersetzen ?",
                                            4, 1111};
inline constexpr std::string_view keineFrage = "Keine Frage vorhanden !";
// A row with exactly this text takes a drop without a question.
inline constexpr std::string_view platzhalter = "Frage";

// Captions of a form on which nothing has been chosen.
inline constexpr std::string_view titel = " TEST  HFZ";
inline constexpr std::string_view fach = " Fach";
inline constexpr std::string_view gruppe = " Gruppe :";
inline constexpr std::string_view nummer = " Nr. :";
inline constexpr std::string_view name = " Name :";
inline constexpr std::string_view bewertet = " Bewertet :";
inline constexpr std::string_view note = " Note :";
inline constexpr std::string_view punktkontrolle = " Gesamtpunkte :";
inline constexpr std::string_view gesamtpunkte = " Punkte :";

// The same two with a total behind them; the eleven blanks are for the points reached.
inline constexpr std::string_view punktkontrolleMit = " Gesamtpunkte : ";
inline constexpr std::string_view gesamtpunkteMit = " Punkte :           / ";

inline constexpr std::array<std::string_view, 4> titelListe{
    "TEST Häuptlingsfreizeit", "TEST Häuptlingsprüfung", "Lernzielkontrolle Häuptlingsfreizeit",
    "Späherprüfung"};
inline constexpr std::array<std::string_view, 4> gruppenListe{"I", "II", "III", "IV"};

struct Hinweis {
    std::string_view tipp;
    std::string_view status;
};
inline constexpr std::string_view tipptitel = "Testformular";
inline constexpr Hinweis tippTitel{"Titel des Tests nach Linksklick auswählen.",
                                   " Titel des Tests (nach Mausklick auswählen)"};
inline constexpr Hinweis tippFach{"Fach nach Linksklick auswählen.", " Fach (nach Mausklick auswählen)"};
inline constexpr Hinweis tippGruppe{"Gruppe nach Linksklick auswählen.",
                                    " Gruppe (nach Mausklick auswählen)"};
inline constexpr Hinweis tippNummer{"Name der Datei, in der das Testformular gespeichert ist;\r\n"
                                    "er steht beim Ausdruck an dieser Stelle.",
                                    " Nr. des Tests"};
inline constexpr Hinweis tippName{"Wird auf dem Blatt von Hand ausgefüllt.", " Name des Prüflings"};
inline constexpr Hinweis tippBewertet{"Wird auf dem Blatt von Hand ausgefüllt.", " Name des Prüfers"};
inline constexpr Hinweis tippNote{"Wird auf dem Blatt von Hand ausgefüllt.", " Note"};
inline constexpr Hinweis tippFrage{"Eine Frage :\r\n"
                                   "- kann ausgewählt werden oder\r\n"
                                   "- kann in das Textfeld eingegeben werden\r\n"
                                   "\r\n"
                                   "- mit [Shift]+Linksklick Frage verschieben\r\n"
                                   "   (Antwort wird mit verschoben)\r\n"
                                   "- mit [Strg]+Linksklick Frage kopieren\r\n"
                                   "   (Antwort kommt aus der Fragenauswahl)",
                                   " Frage"};
inline constexpr Hinweis tippAntwort{"Eine Antwort :\r\n"
                                     "- kommt automatisch mit einer ausgewählten Frage\r\n"
                                     "- kann in das Textfeld eingegeben werden",
                                     " Antwort"};
inline constexpr Hinweis tippZeile{"Nummer der Frage im Test", " Nr. der Frage"};
inline constexpr Hinweis tippFragen{"Fragen des Tests", " Fragen des Tests"};
inline constexpr Hinweis tippAntworten{"Antworten zu den Fragen", " Antworten zu den Fragen"};
inline constexpr Hinweis tippPunkte{"Punktzahl bei richtiger Antwort", " Punkte für richtige Antwort"};
inline constexpr Hinweis tippDreh{"Punktzahl erhöhen oder verringern (0 bis 20)",
                                  " Punkte für richtige Antwort ändern"};
inline constexpr Hinweis tippSumme{"Summe der Punkte im Testformular.", " Gesamtpunkte des Testformulars"};

} // namespace hbtexte
