// The texts of the selection dialog: captions, tips, the question and the refusal of the trash field.
#pragma once

#include "core/hinweistext.h"
#include "core/meldungstext.h"

#include <array>
#include <string_view>

namespace auswahltexte {

inline constexpr std::string_view fenstertitel = " Fragen-Auswahl";

inline constexpr NachrichtText muellFrage{1, "Frage und Antwort löschen",
                                          "Soll ich die Frage und Antwort wirklich löschen ?", 4, 1111};
inline constexpr MeldungsText muellAuswahl{5, "Aus der Fragenauswahl kann ich so keine Fragen löschen.", "1",
                                           "Das sehe ich ein."};

inline constexpr std::string_view tipptitel = "Fragen";
inline constexpr std::string_view themaTipp = "Thema (Wissensgebiet) auswählen.";
inline constexpr std::string_view themaStatus = " Thema (Wissensgebiet) auswählen";
inline constexpr std::string_view unterTipp = "Unterthema aus Wissensgebiet auswählen.";
inline constexpr std::string_view unterStatus = " Unterthema auswählen";

inline constexpr std::array<Hinweistext, 12> hinweise{{
    {"fraMuell",
     "Fragen aus dem Feldkranz-Formular können zum Löschen \r\n"
     "mit Linksklick in das Müllfeld gezogen werden.\r\n"
     "(Die Antwort wird automatisch mit gelöscht.)",
     tipptitel, " Müllfeld für Fragen aus dem Formular"},
    {"fraAuswahl", "Auswahl der Themen (Wissensgebiete) und Unterthemen.", tipptitel,
     " Auswahl der Themen und Unterthemen"},
    {"cmbThemen", themaTipp, tipptitel, themaStatus},
    {"lblThemen", themaTipp, tipptitel, themaStatus},
    {"cmbUnter", unterTipp, tipptitel, unterStatus},
    {"lblUnter", unterTipp, tipptitel, unterStatus},
    {"cmbFrage",
     "Frage aus einer Liste von Fragen auswählen.\r\n"
     "Die Frage erscheint anschließend im orangenen Feld weiter unten \r\n"
     "und kann von dort mit Linksklick in das Feldkranz-Formular gezogen werden.",
     tipptitel, " Frage auswählen"},
    {"txtNr", "Fortlaufende Nummer der Frage im jeweiligen Unterthema.", tipptitel, " Nr. der Frage"},
    {"txtAntwort", "Antwort auf die ausgewählte Frage.", tipptitel, " Antwort auf die ausgewählte Frage"},
    {"txtPunkte",
     "Punkte für die richtige Beantwortung der Frage.\r\n"
     "(Die Punkte sind für eine eventuelle spätere Erweiterung \r\n"
     "des Programmes vorgesehen und werden zur Zeit noch nicht \r\n"
     "im Programm verarbeitet.)",
     tipptitel, " Punkte für richtige Antwort"},
    {"cmdAbbruch", "Auswahldialog ausblenden.", "Schließen", " Fragenauswahl schließen"},
    {"txtFrage",
     "Ausgewählte Frage von hier aus mit Linksklick in das Feldkranz-Formular ziehen.\r\n"
     "(Die Frage kann auch zum Zwischenspeichern auf das Hilfepaneel \r\n"
     "(unten) gezogen werden.)",
     tipptitel, " Ausgewählte Frage in das Formular ziehen"},
}};

} // namespace auswahltexte
