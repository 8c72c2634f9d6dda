// The texts of printing: what stands on the page, what is asked and told on the way.
#pragma once

#include "core/meldungstext.h"

#include <string_view>

namespace drucktexte {

// On the page.
inline constexpr std::string_view kopf = "FELDKRANZ!";
inline constexpr std::string_view datum = "Datum :  ";
inline constexpr std::string_view zeit = "Zeit :  ";
inline constexpr std::string_view nummer = "Nr :  ";
inline constexpr std::string_view keinTitel = "Wissen"; // caption of an area without a title

// On the screen.
inline constexpr std::string_view status = " Ich drucke das Fragenformular ...";
inline constexpr std::string_view alsPdf = " {} liegt als PDF-Datei in {}";
inline constexpr std::string_view kastentitel = "Feldkranz";
inline constexpr std::string_view einrichten = "Drucker einrichten"; // title and button of the printer dialog
inline constexpr std::string_view uebernehmen = "Ü&bernehmen";

inline constexpr MeldungsText ohneDrucker{
    11, "Ich finde hier keinen Drucker.\r\nDeine Blätter lege ich als PDF-Datei neben das Formular.", "11",
    "Auch gut"};
inline constexpr MeldungsText ohnePapier{11, "Mir fehlt die Angabe der Papiergröße.", "11",
                                         "Hole ich sofort nach !"};

// The question before the print and what is told when it is answered with Abbrechen, by the page's way.
inline constexpr NachrichtText frageHoch{9, "Formular drucken",
                                         "Ich drucke das Formular für Feldkranz\r\n"
                                         "auf DIN A4 hochkant (oberer Bereich für A5 quer) aus !",
                                         3, 1111};
inline constexpr NachrichtText frageQuer{9, "Formular drucken",
                                         "Ich drucke das Formular für Feldkranz\r\n"
                                         "auf DIN A4 quer (blattfüllend) aus !",
                                         3, 1111};
inline constexpr MeldungsText abbruchHoch{11, "Formularausdruck abgebrochen", "10", "schön"};
inline constexpr MeldungsText abbruchQuer{11, "Formularausdruck abgebrochen", "11", "gut"};

// Paper and margins in mm: width, height, left, right, top, bottom.
inline constexpr std::string_view seitenmasse = "Papiergröße: {} x {}mm\r\nLinker Rand: {}mm\r\n"
                                                "Rechter Rand: {}mm\r\nOberer Rand: {}mm\r\n"
                                                "Unterer Rand: {}mm";

} // namespace drucktexte
