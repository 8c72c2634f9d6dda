// The count behind the progress bar: what it shows for which value. The panel itself is the main window's.
#pragma once

#include "core/farbe.h"

#include <cstdint>

inline std::int16_t FortschrittAktiv = 0; // 1 between start and end of a long step
inline float FortschrittWert = 0.0F;

// Fill level in per cent for FortschrittWert, at most 100.
[[nodiscard]] float FortschrittProzent(float wert);
// Red up to 50 per cent, yellow between, green from 75 on.
[[nodiscard]] Farbe FortschrittFarbe(float prozent);
