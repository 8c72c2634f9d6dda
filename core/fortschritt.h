// The count behind the progress bar: what it shows for which value. The panel itself is the main window's.
#pragma once

#include "core/farbe.h"

// The one long step that runs. Written by the three progress routines.
struct Fortschrittstand {
    bool FortschrittAktiv = false; // between start and end of the step
    float FortschrittWert = 0.0F;
};
inline Fortschrittstand Fortschritt;

// Fill level in per cent for FortschrittWert, at most 100.
[[nodiscard]] float FortschrittProzent(float wert);
// Red up to 50 per cent, yellow between, green from 75 on.
[[nodiscard]] Farbe FortschrittFarbe(float prozent);
