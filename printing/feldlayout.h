// The thirty cells of the printed quiz form, and the order in which the page is drawn. Part of the layout in
// printing/seitenlayout.h, which draws what stands above them.
//
// What is drawn later covers what was drawn before, and a page is read aloud, searched and copied in the
// order in which its texts are drawn. So a text that stays in its place is drawn above all frames, in reading
// order. A question or a title that runs out of its place is drawn with its own frame: where it goes on, the
// frames of the next cells cover it with their shading, which is meant. An answer or a number is never
// covered.
#pragma once

#include "printing/seitenlayout.h"

#include <array>

struct Blattlagen {
    Zeichnung grund;                // frames, and the texts that others may cover
    std::array<Zeichnung, 6> texte; // by area: its title, and of each cell number, question and answer
};

// Puts the lines of a text where they belong: among the texts, or to the frames if one of them leaves its
// place.
void Einordnen(Zeichnung& grund, Zeichnung& texte, Zeichnung zeilen, const Rechteck& platz,
               const Schriftmass& mass);
// The page from the bottom to the top.
[[nodiscard]] Zeichnung Uebereinander(Blattlagen lagen);

void FelderZeichnen(Blattlagen& lagen, const FKDruckdaten& daten, const Druckgeometrie& g,
                    const Schriftmass& mass);
// The cells alone.
void FelderZeichnen(Zeichnung& zeichnung, const FKDruckdaten& daten, const Druckgeometrie& g,
                    const Schriftmass& mass);
