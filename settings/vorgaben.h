// The edit copies that the settings dialog works on, and their way from and to the values of the settings.
// Nothing in the dialog but these routines writes the points and limits of the settings.
#pragma once

#include "settings/regelschritte.h"
#include "settings/skalierung.h"

#include <cstdint>

// Edit copies of the standard values, beside VorgabePunkte and VorgabeFelder of the values in force
// (quizform/spezialfelder.h). Filled when the dialog loads.
inline Artwerte StdPunkte{};
inline Artwerte StdFelder{};

// Fills all four edit arrays, or those of the standard values alone, from the settings.
void VorgabenHolen();
void StandardHolen();
// The edit arrays into the settings: the values in force, the standard values.
void VorgabenUebernehmen();
void StandardUebernehmen();

// What cancelling the dialog puts back.
struct Schnappschuss {
    std::int16_t fragenProWissen = 0;
    std::int16_t anzahlWissen = 0;
    std::int16_t optionMaxFelder = 0;
    std::int16_t optionMaxWissen = 0;
    std::int16_t optionMaxSpezial = 0;
};
[[nodiscard]] Schnappschuss SchnappschussNehmen();
void SchnappschussZurueck(const Schnappschuss& schnappschuss);

// FelderGesamt from the two counters. Run-time error 6 where the product doesn't fit 16 bits.
void GesamtRechnen();

// One step of a spin control between 0 and the highest value. False at the bound, with the value as it was.
inline constexpr std::int16_t hoechstensPunkte = 20;
inline constexpr std::int16_t hoechstensFelder = 5;
[[nodiscard]] bool Drehen(std::int16_t& wert, Richtung richtung, std::int16_t hoechstens);
