// The ranges of the numbers that shape a board, as the steps of the settings keep them, and what becomes of
// numbers that a file brings from outside them.
#pragma once

#include "rules/spielwerte.h"

#include <cstdint>

inline constexpr std::int16_t hoechstensFragen = 5;
inline constexpr std::int16_t hoechstensWissen = 6;
inline constexpr std::int16_t hoechstensPunkte = 20;
inline constexpr std::int16_t hoechstensFelder = 5;
inline constexpr float hoechstensAbstand = 2.5F; // millimetres

// The shape of a board that was read: a number too large is the highest, a negative one counts as none, which
// gets the full board, so that nothing is hidden and no text lost to a damaged number. The total goes with
// the shape. A shape whose product fits no counter stays as it is: whoever shows it reports that.
void BrettEinhalten(Spielwerte& spiel);

// Every number, for a new form: the shape, and points, limits, colour and gap at the end of their range where
// they are beyond it. An open form keeps what its file brought; the steps lead back from there.
void BereicheEinhalten(Spielwerte& spiel);
