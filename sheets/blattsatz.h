// A sheet of a form as it goes to the printer: its pages with everything on them, as a value.
#pragma once

#include "checking/befund.h"
#include "printing/wenden.h"
#include "printing/zeichnung.h"

#include <cstddef>
#include <string>
#include <vector>

// A text that reaches out of its place, or has none.
struct Ueberhang {
    std::size_t seite = 0;
    Flaeche kasten;   // around it
    std::string satz; // "Gebiet 2, Frage 3 : ...", UTF-8
};

// Places count from the printer's printable origin.
struct Blattsatz {
    bool quer = false;
    Wenden wenden = Wenden::Nicht;
    std::vector<Zeichnung> seiten; // of A4
    std::vector<Ueberhang> ueberhaenge;
};

inline constexpr Millimeter a4Lang = 297_mm;
inline constexpr Millimeter a4Kurz = 210_mm;
// What stays free around boards and cards: more than any printer leaves, and the marks stand in it.
inline constexpr Millimeter schnittrand = 10_mm;

// Adds what lies outside of that part of its page, where no printer reaches.
void RandPruefen(Blattsatz& blatt, const Flaeche& druckbar, const Schriftmass& mass);

// "Gebiet 2, Frage 3 : Der Text ..."
[[nodiscard]] inline std::string Befundsatz(const Befundort& ort, std::string_view text) {
    return Ortsname(ort).append(" : ").append(text);
}
