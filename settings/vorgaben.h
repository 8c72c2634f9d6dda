// The edit copies that the settings dialog works on, and their way from and to the rule values. Nothing in
// the dialog but these routines writes the points and limits of the rule values.
#pragma once

#include "rules/skalierung.h"
#include "rules/spielwerte.h"
#include "settings/regelschritte.h"

#include <cstdint>

struct Vorgaben {
    // Points and field limits in force.
    Artwerte Punkte, Felder;

    // Standard values for a full board, that of the Ereignis fields in its place as a number.
    Artwerte PunkteV, FelderV;

    friend bool operator==(const Vorgaben&, const Vorgaben&) = default;
};

[[nodiscard]] Vorgaben VorgabenAus(const Spielwerte& spiel);
// The standard values alone.
void StandardHolen(Vorgaben& vorgaben, const Spielwerte& spiel);
// The way back: the values in force, the standard values.
void VorgabenUebernehmen(const Vorgaben& vorgaben, Spielwerte& spiel);
void StandardUebernehmen(const Vorgaben& vorgaben, Spielwerte& spiel);

// What cancelling the dialog puts back: the two counters and the three rules. Everything else stays as it is.
void RegelnZuruecksetzen(const Spielwerte& vorher, Spielwerte& spiel);

// FelderGesamt from the two counters. Run-time error 6 where the product doesn't fit 16 bits.
void GesamtRechnen(Spielwerte& spiel);

// One step of a spin control between 0 and the highest value. False at the bound, with the value as it was.
[[nodiscard]] bool Drehen(std::int16_t& wert, Richtung richtung, std::int16_t hoechstens);
