// The layout of the printed quiz form: places every rectangle, line and text of the page. Takes plain values
// and knows neither the window nor the printer.
#pragma once

#include "printing/druckgeometrie.h"
#include "printing/zeichnung.h"
#include "rules/spezialart.h"

#include <array>
#include <string>

struct FKDruckgebiet {
    std::string titel;
    bool benutzbar = false; // an area closed by the rules isn't
};

struct FKDruckfeld {
    std::string frage, antwort;
    std::string spezial;        // letter, "" for a plain question
    bool frageSichtbar = false; // a cell whose question box doesn't show is not in play
    bool antwortSichtbar = false;
};

// What the page shows. Areas and cells count from 1 as in the model; index 0 isn't used.
struct FKDruckdaten {
    std::string datum, zeit, nummer;
    std::array<FKDruckgebiet, 7> gebiete;
    std::array<FKDruckfeld, 31> felder;
    Artwerte punkte;
    bool titelGrau = false;     // shading of the head strip
    bool gebieteGrau = false;   // shading of the area heads
    bool spezialFarbig = false; // shading of all five kinds of special fields
    bool rahmenFarbig = false;  // coloured lines of the inner frames
    bool blanko = false;        // without the captions of the area heads
};

// The whole page in drawing order.
[[nodiscard]] Zeichnung FormularZeichnen(const FKDruckdaten& daten, const Druckgeometrie& g,
                                         const Schriftmass& mass);
