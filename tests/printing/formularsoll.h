// What a printed quiz form should hold, reckoned from the measures of the sheet in double precision and
// without the layout: the boxes, the lines and the words with their places, in mm on paper.
#pragma once

#include "printing/seitenlayout.h"
#include "tests/printing/pdfleser.h"

#include <string>
#include <vector>

// A word's place: its left edge or its centre, where known, and the top and height of its line.
struct SollWort {
    enum class Halt { Links, Mitte, NurHoehe };
    std::string text;
    Halt halt = Halt::Links;
    double x = 0, oben = 0, hoehe = 0;
};

struct SollSeite {
    std::vector<Pfad> pfade{};
    std::vector<SollWort> worte{};
};

// Every line of a cell's text must be short enough to stand as it is; breaking is tested on its own.
[[nodiscard]] SollSeite FormularSoll(const FKDruckdaten& daten, Papier papier, double zwischenabstand);

// What of the one is not on the other, within 0.02 mm for paths and 0.1 mm for words; "" if they are the
// same.
[[nodiscard]] std::string Unterschied(const SollSeite& soll, const PdfSeite& ist);
