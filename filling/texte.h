// Every text with which the window that fills a form speaks.
#pragma once

#include "core/hinweistext.h"

#include <array>
#include <string_view>

namespace fuelltexte {

inline constexpr std::string_view fenstertitel = " Brett füllen";
inline constexpr std::string_view testtitel = " Test füllen";

// --- Choices ---

inline constexpr std::string_view alleThemen = "alle Themen";
inline constexpr std::string_view alleUnterthemen = "alle";
inline constexpr std::string_view punkteWieZeile = "&Punkte der Frage wie die Zeile";
inline constexpr std::string_view nurUnbenutzte = "nur un&benutzte Fragen";
inline constexpr std::string_view unterthemen = "&Unterthemen";
inline constexpr std::string_view zielpunkte = "&Gesamtpunkte";
inline constexpr std::string_view vorschlag = "&Vorschlag";
inline constexpr std::string_view uebernehmen = "Über&nehmen";
inline constexpr std::string_view abbruch = "&Abbrechen";

// --- What there is, and what comes of it ---

// What is said of one, and of more or none.
struct Mengentext {
    std::string_view eines, mehrere;
};
inline constexpr Mengentext vorrat{"{} Frage passt", "{} Fragen passen"};
inline constexpr std::string_view katalogKommt = "Ich lese noch den Fragenkatalog ...";
inline constexpr std::string_view nichtsLeer = "Auf dem Formular ist kein Feld mehr leer.";
inline constexpr Mengentext leere{"Ein Feld ist leer. Mit [Vorschlag] suche ich eine Frage dafür aus.",
                                  "{} Felder sind leer. Mit [Vorschlag] suche ich Fragen dafür aus."};
inline constexpr Mengentext alle{"Ich habe eine Frage für das leere Feld",
                                 "Ich habe Fragen für alle {} leeren Felder"};
inline constexpr Mengentext keines{"Ich habe keine passende Frage für das leere Feld",
                                   "Ich habe keine passende Frage für die {} leeren Felder"};
inline constexpr std::string_view einige = "Ich habe Fragen für {} von {} leeren Feldern";
inline constexpr std::string_view ohneFrage = ". Ohne Frage bleiben: {}.";
inline constexpr std::string_view mitSumme = "{}. Das Formular hat dann {} Punkte.";
inline constexpr std::string_view zielVerfehlt =
    "{}. {} Punkte kann ich damit nicht erreichen, am nächsten kommen {}.";

// --- Cells ---

inline constexpr Mengentext punkte{"{} Punkt", "{} Punkte"};
// In the order of the kinds of pictures: place, then question and answer.
inline constexpr std::array<std::string_view, 5> feldnamen{
    "{}: geschlossen", "{} (steht schon im Formular): {}", "{}: leer", "{}: {}", "{}: keine passende Frage"};
inline constexpr std::string_view keineFrage = "keine passende Frage";

// --- Status help ---

inline constexpr std::string_view keinFormular = " Ich kann nur ein Formular füllen, das offen ist.";
inline constexpr std::string_view keineAndere = " Ich habe keine andere Frage, die hier passt.";
inline constexpr Mengentext uebernommen{" Ich habe eine Frage in das Formular geschrieben.",
                                        " Ich habe {} Fragen in das Formular geschrieben."};

// --- What each control tells about itself ---

inline constexpr std::string_view tipptitel = "Brett füllen";
inline constexpr std::string_view feldStatus = " Andere Frage für dieses Feld";
inline constexpr std::array hinweise{std::to_array<Hinweistext>({
    {"lblGebiet", "Titel des Wissensgebietes im Formular.", tipptitel, " Titel des Wissensgebietes"},
    {"cmbFuellThema",
     "Thema, aus dem die Fragen dieses Gebietes kommen.\r\n"
     "Aufgaben für Felder mit A suche ich immer aus dem Thema \"- Aufgaben -\" aus.",
     tipptitel, " Thema der Fragen dieses Gebietes"},
    {"cmbFuellUnter", "Unterthema, aus dem die Fragen dieses Gebietes kommen.", tipptitel,
     " Unterthema der Fragen dieses Gebietes"},
    {"lblVorrat", "So viele Fragen passen zu den leeren Feldern dieses Gebietes.", tipptitel,
     " Anzahl der passenden Fragen"},
    {"chkPunkteWieZeile",
     "Eine Frage mit 3 Punkten kommt in die dritte Zeile eines Gebietes.\r\n"
     "Ohne Haken nehme ich Fragen mit beliebigen Punkten.",
     tipptitel, " Punkte der Frage wie die Zeile"},
    {"chkUnbenutzt", "Nur Fragen, die noch in keinem anderen Formular stehen.", tipptitel,
     " Nur Fragen, die noch in keinem Formular stehen"},
    {"lstUnterthemen",
     "Unterthemen, aus denen die Fragen kommen.\r\nMit [Leertaste] oder Mausklick ankreuzen.", tipptitel,
     " Unterthemen, aus denen die Fragen kommen"},
    {"lblZielpunkte", "Punkte, die das ganze Formular haben soll.", tipptitel,
     " Gewünschte Gesamtpunkte des Formulars"},
    {"txtZielpunkte",
     "Punkte, die das ganze Formular haben soll.\r\nOhne Zahl nehme ich, was mir in die Hände fällt.",
     tipptitel, " Gewünschte Gesamtpunkte des Formulars"},
    {"picVorschlag",
     "Frage, die ich für dieses Feld vorschlage.\r\n"
     "- mit Linksklick, [Leertaste] oder [Enter] eine andere\r\n"
     "- mit den Pfeiltasten zum nächsten Feld\r\n"
     "Grau ist, was schon im Formular steht.",
     tipptitel, feldStatus},
    {"lblErgebnis", "So viele Felder kann ich füllen.", tipptitel, " Anzahl der gefüllten Felder"},
    {"cmdVorschlag", "Fragen für alle leeren Felder aussuchen.", tipptitel, " Fragen aussuchen"},
    {"cmdUebernehmen",
     "Vorschlag in die leeren Felder des Formulars schreiben.\r\n"
     "Was schon im Formular steht, bleibt stehen.",
     tipptitel, " Vorschlag in das Formular schreiben"},
    {"cmdAbbruch", "Fenster schließen; am Formular ändert sich nichts.", "Schließen",
     " Brett füllen abbrechen"},
})};

} // namespace fuelltexte
