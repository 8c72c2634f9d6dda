// A text made to fit a box: as large as there is room. Where lines break is printing/zeilenumbruch.h.
#pragma once

#include "printing/zeichnung.h"

#include <string_view>
#include <vector>

struct Textsatz {
    Druckschrift schrift;
    std::vector<std::string_view> zeilen; // parts of the text
    bool passt = true;                    // false: even the smallest size reaches out of the box
};

// In whole halves of a point from groesste.groesse down to kleinste. No word is broken.
[[nodiscard]] Textsatz Einpassen(std::string_view text, Millimeter breite, Millimeter hoehe,
                                 const Druckschrift& groesste, Schriftpunkte kleinste,
                                 const Schriftmass& mass);
// The lines of a text in a font that is given, not wider than that where words allow it. Blanks at the end of
// a line and line ends at the end of the text, which can't be seen, take no room.
[[nodiscard]] std::vector<std::string_view> Zeilen(std::string_view text, Millimeter breite,
                                                   const Druckschrift& schrift, const Schriftmass& mass);

// Adds the lines centred in the box in both directions, or from its top left corner.
void MittigSetzen(Zeichnung& zeichnung, const Textsatz& satz, const Flaeche& kasten, const Schriftmass& mass);
void VonObenSetzen(Zeichnung& zeichnung, const Textsatz& satz, const Flaeche& kasten,
                   const Schriftmass& mass);
