// The layout of the printed test: the measures of its page and every line, circle and text on it.
// Takes plain values and knows neither the window nor the printer.
#pragma once

#include "printing/zeichnung.h"

#include <array>
#include <string>

struct Testdruckzeile {
    std::string frage, antwort;
    std::string punkte; // as the row shows them, "" for none

    friend bool operator==(const Testdruckzeile&, const Testdruckzeile&) = default;
};

// What the page shows. Rows count from 1; index 0 isn't used. Captions stand as on the form.
struct Testdruckdaten {
    std::string titel, fach, gruppenwort, gruppe, name;
    std::string dateiname; // of the form's file, without its path
    std::array<Testdruckzeile, 11> zeilen;
    int gesamtpunkte = 0;
    bool mitAntworten = false;

    friend bool operator==(const Testdruckdaten&, const Testdruckdaten&) = default;
};

// Rows with a question: only they are printed.
[[nodiscard]] int AnzahlTestfragen(const Testdruckdaten& daten);

// Places count from the printer's printable origin.
struct Testgeometrie {
    Millimeter TestRandLinks, TestRandOben; // corner of the frame
    Millimeter TestBreite;                  // of the frame
    Millimeter TestTextBreite;              // longest line of a question or answer
    Millimeter TestNummerSpalte;            // column of the numbers
    Millimeter TestTextEinzug;              // text, behind that column
    Millimeter TestFragenOben;              // top of the first question
    Millimeter TestFuss;                    // bottom of the frame
    Millimeter TestZeile, TestRaster;       // height and pitch of the questions
};

// anzahl: questions on the page, 0 counts as 1; links, oben: the printer's physical offsets.
[[nodiscard]] Testgeometrie TestGeometrieRechnen(int anzahl, Millimeter links, Millimeter oben);

// The whole page in drawing order.
[[nodiscard]] Zeichnung TestZeichnen(const Testdruckdaten& daten, const Testgeometrie& g,
                                     const Schriftmass& mass);
