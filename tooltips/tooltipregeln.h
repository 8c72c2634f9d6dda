// The rules of the tool tips that need no window: limits of their times, the standard styles and which title
// has which, and where a tip stands on the screen. Times in milliseconds, places and sizes in the toolkit's
// logical pixels.
#pragma once

#include "core/farbe.h"

#include <algorithm>
#include <string_view>

namespace tipp {

inline constexpr int hoechsteSichtzeit = 16000;
inline constexpr int hoechsteWartezeit = 500;
inline constexpr int anfangsbreite = 150;

// Callers pass 20000 all the same.
[[nodiscard]] constexpr int Sichtzeit(int wert) {
    return std::clamp(wert, 0, hoechsteSichtzeit);
}
[[nodiscard]] constexpr int Wartezeit(int wert) {
    return std::clamp(wert, 0, hoechsteWartezeit);
}

inline constexpr int symbolKeins = 0;
inline constexpr int symbolHinweis = 1;
inline constexpr int symbolWarnung = 2;

struct Stil {
    Farbe grund;
    Farbe schrift;
    int symbol = symbolKeins;
    friend constexpr bool operator==(const Stil&, const Stil&) = default;
};
inline constexpr Stil stilStandard{{255, 255, 223}, farbeSchwarz, symbolHinweis};
inline constexpr Stil stilHilfe{{255, 255, 127}, farbeSchwarz, symbolHinweis};
inline constexpr Stil stilSchliessen{{255, 0, 0}, farbeWeiss, symbolWarnung};

inline constexpr std::string_view titelStandard = "Hinweis";
inline constexpr std::string_view titelHilfe = "Hiiiilfee !";
inline constexpr std::string_view titelSchliessen = "Schließen";
inline constexpr std::string_view titelEnde = "Schließen !"; // of the main window's cmdEnde

// The title tells the style: help and closing have their own, everything else the standard one. The help
// button of the main window has a title without the mark of exclamation, and the standard style: it is meant.
[[nodiscard]] Stil StilFuer(std::string_view titel);

struct Ort {
    int x = 0;
    int y = 0;
    friend constexpr bool operator==(Ort, Ort) = default;
};
struct Groesse {
    int breite = 0;
    int hoehe = 0;
};
struct Flaeche {
    Ort ecke;
    Groesse groesse;
};

// Upper left corner of a tip beside the pointer: below it, above it where the screen ends, and never beyond
// an edge. A tip larger than the screen keeps its upper left corner.
[[nodiscard]] Ort OrtAmZeiger(Ort zeiger, Groesse tipp, const Flaeche& schirm);
// The same at a control: below it, above it where the screen ends; at its left edge or in its middle.
[[nodiscard]] Ort OrtAmElement(const Flaeche& element, Groesse tipp, const Flaeche& schirm, bool mittig);

} // namespace tipp
