// The numbers of the special fields by the rules of the game, and their conversion to a smaller board. Works
// on copies; which arrays take the results is the dialog's affair.
#pragma once

#include "rules/spezialart.h"

// To the nearest whole number, a value exactly halfway to the even neighbour (0.5 to 0, 1.5 to 2, 2.5 to 2).
// Run-time error 6 beyond 16 bits.
[[nodiscard]] std::int16_t Runden(double wert);

// Standard counts of fields for a board of that many questions. Divides first and multiplies after, so that
// inexact quotients stand as they come out.
[[nodiscard]] Artwerte FelderUmrechnen(const Artwerte& standard, int felderGesamt);

// Standard points for that many questions an area: fewer than three make them smaller.
[[nodiscard]] Artwerte PunkteUmrechnen(const Artwerte& standard, int fragenProWissen);
