// The texts of the selection dialog: captions, tips, the question and the refusal of the trash field.
#pragma once

#include "dialogs/texte.h"

#include <array>
#include <string_view>

namespace auswahltexte {

inline constexpr std::string_view fenstertitel = " Fragen-Auswahl";

inline constexpr NachrichtText muellFrage{1, "Frage und Antwort löschen",
                                          "Soll ich die Frage und Antwort wirklich löschen ?", 4, 1111};
inline constexpr MeldungsText muellAuswahl{5, "Aus der Fragenauswahl kann ich so keine Fragen löschen.", "1",
                                           "Das sehe ich ein."};

struct Tipp {
    std::string_view steuerelement;
    std::string_view titel;
    std::string_view text;
};

inline constexpr std::array<Tipp, 12> tipps{{
    {"fraMuell", "Fragen",
     "Fragen aus dem Feldkranz-Formular können zum Löschen \r\n"
     "mit Linksklick in das Müllfeld gezogen werden.\r\n"
     "(Die Antwort wird automatisch mit gelöscht.)"},
    {"fraAuswahl", "Fragen", "Auswahl der Themen (Wissensgebiete) und Unterthemen."},
    {"cmbThemen", "Fragen", "Thema (Wissensgebiet) auswählen."},
    {"lblThemen", "Fragen", "Thema (Wissensgebiet) auswählen."},
    {"cmbUnter", "Fragen", "Unterthema aus Wissensgebiet auswählen."},
    {"lblUnter", "Fragen", "Unterthema aus Wissensgebiet auswählen."},
    {"cmbFrage", "Fragen",
     "Frage aus einer Liste von Fragen auswählen.\r\n"
     "Die Frage erscheint anschließend im orangenen Feld weiter unten \r\n"
     "und kann von dort mit Linksklick in das Feldkranz-Formular gezogen werden."},
    {"txtNr", "Fragen", "Fortlaufende Nummer der Frage im jeweiligen Unterthema."},
    {"txtAntwort", "Fragen", "Antwort auf die ausgewählte Frage."},
    {"txtPunkte", "Fragen",
     "Punkte für die richtige Beantwortung der Frage.\r\n"
     "(Die Punkte sind für eine eventuelle spätere Erweiterung \r\n"
     "des Programmes vorgesehen und werden zur Zeit noch nicht \r\n"
     "im Programm verarbeitet.)"},
    {"cmdAbbruch", "Schließen", "Auswahldialog ausblenden."},
    {"txtFrage", "Fragen",
     "Ausgewählte Frage von hier aus mit Linksklick in das Feldkranz-Formular ziehen.\r\n"
     "(Die Frage kann auch zum Zwischenspeichern auf das Hilfepaneel \r\n"
     "(unten) gezogen werden.)"},
}};

} // namespace auswahltexte
