// What stands on the sheets beside the told ones, and what the preview says. Only texts.
#pragma once

#include "core/hinweistext.h"

#include <array>
#include <string_view>

namespace blatttexte {

// --- On the pages ---

// Name of the sheet, number of the page, of how many, its row and column.
inline constexpr std::string_view kachel = "{}, Blatt {} von {} (Reihe {}, Spalte {})";

// Points of a special field.
inline constexpr std::string_view einPunkt = "1 Punkt";
inline constexpr std::string_view mehrPunkte = "{} Punkte";
inline constexpr std::string_view gebiet = "Gebiet {}"; // in place of a title

inline constexpr std::string_view antwortbogen = "Antwortbogen";
inline constexpr std::string_view seite = "Seite {} von {}";
inline constexpr std::string_view weiter = "{} (weiter)";
inline constexpr std::string_view spalteFrage = "Frage";
inline constexpr std::string_view spalteAntwort = "Antwort";
inline constexpr std::string_view spaltePunkte = "Punkte";
inline constexpr std::string_view nummer = "Nr. {}";
inline constexpr std::string_view gesamt = "Gesamtpunkte : {}";

// --- What has no room ---

inline constexpr std::string_view titelZuLang = "Der Titel ist für das Brett zu lang.";
inline constexpr std::string_view ohnePlatz = "Der Text findet auf der Karte keinen Platz.";

inline constexpr std::string_view imRand = "Der Drucker reicht nicht bis zum Rand und schneidet ab : {}";

// --- The window ---

inline constexpr std::string_view fenstertitel = "Druckvorschau";
inline constexpr std::string_view blattwahl = "&Blatt :";
inline constexpr std::string_view ohneTitel = "&ohne Titel";
inline constexpr std::string_view mitAntworten = "mit &Antworten";
inline constexpr std::string_view drucken = "&Drucken";
inline constexpr std::string_view alsPdf = "Als &PDF ...";
inline constexpr std::string_view schliessen = "&Schließen";

// For who can't see the pictures on the buttons.
inline constexpr std::string_view ganz = "Ganze Seite";
inline constexpr std::string_view breite = "Seitenbreite";
inline constexpr std::string_view kleiner = "Kleiner";
inline constexpr std::string_view groesser = "Größer";

inline constexpr std::string_view nichtsOffen = "Es ist kein Formular offen.";
inline constexpr std::string_view ohnePapier =
    "Mir fehlt die Angabe der Papiergröße. (Vorgaben, Darstellung)";
inline constexpr std::string_view inOrdnung = "Alles hat seinen Platz.";
inline constexpr std::string_view weitere = "... und noch {} andere.";
// What to do with the paper; {} is the number of pages.
inline constexpr std::string_view zuschneiden =
    "{} Seiten : an den Marken zuschneiden und Reihe für Reihe aneinanderkleben.";
inline constexpr std::string_view beidseitig =
    "{} Seiten, Vorderseiten und Rückseiten im Wechsel : beidseitig drucken, an der {} Kante wenden.";
inline constexpr std::string_view langeKante = "langen";
inline constexpr std::string_view kurzeKante = "kurzen";
inline constexpr std::string_view mehrereSeiten = "{} Seiten.";

// Status help.
inline constexpr std::string_view ohneFormular = " Ich habe nichts zu zeigen: Es ist kein Formular offen.";
inline constexpr std::string_view gedruckt = " [ {} ] ist unterwegs zum Drucker.";

// The dialog for the name of a PDF file.
inline constexpr std::string_view pdfTitel = "Als PDF speichern";
inline constexpr std::string_view pdfFilter = "PDF-Dateien (*.pdf)";

inline constexpr std::string_view tipptitel = "Druckvorschau";
inline constexpr std::array hinweise{
    Hinweistext{"cmbBlatt",
                "Bogen : das Formular, wie ich es immer drucke\r\n"
                "Antwortbogen : Fragen, Antworten und Punkte für die Helfer\r\n"
                "Brett : Titel und Nummern zum Aufhängen\r\n"
                "Karten : zum Ausschneiden, vorn die Nummer, hinten die Frage",
                tipptitel, " Blatt auswählen, das ich aus dem Formular mache"},
    Hinweistext{"chkOhneTitel", "Ohne die Titel der Wissensgebiete,\r\nwie bei [ Blanko drucken ].",
                tipptitel, " Titel der Wissensgebiete weglassen"},
    Hinweistext{"chkMitAntworten", "Zeigt und druckt auch die Antworten.", tipptitel,
                " Antworten mit ausdrucken"},
    Hinweistext{"cmdGanz", "Zeigt die ganze Seite, bei mehreren alle.", tipptitel, " Ganze Seite zeigen"},
    Hinweistext{"cmdBreite", "Zeigt die Seite so breit wie das Fenster.", tipptitel, " Seitenbreite zeigen"},
    Hinweistext{"cmdKleiner", "Zeigt die Seite kleiner.", tipptitel, " Kleiner zeigen"},
    Hinweistext{"cmdGroesser", "Zeigt die Seite größer.", tipptitel, " Größer zeigen"},
    Hinweistext{"picBlatt",
                "So kommt das Blatt aus dem Drucker.\r\n"
                "Die dünne Linie ist der Rand, den er frei läßt;\r\n"
                "rot umrandet ist, was keinen Platz hat.",
                tipptitel, " Das Blatt, wie ich es drucke"},
    Hinweistext{"lblBlattHinweis", "Was keinen Platz hat, und was mit dem Papier zu tun ist.", tipptitel,
                " Hinweise zum Blatt"},
    Hinweistext{"cmdDrucken", "Druckt das Blatt, das hier zu sehen ist.", tipptitel, " Dieses Blatt drucken"},
    Hinweistext{"cmdAlsPDF", "Fragt nach einem Namen und\r\nschreibt das Blatt in eine PDF-Datei.", tipptitel,
                " Dieses Blatt als PDF-Datei speichern"},
    Hinweistext{"cmdAbbruch", "Schließt dieses Fenster.\r\n[Esc]", tipptitel, " Fenster schließen"},
};

} // namespace blatttexte
