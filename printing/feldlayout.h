// The thirty cells of the printed quiz form in their three passes: frames and questions, answers, small
// column. Part of the layout in printing/seitenlayout.h, which draws what stands above them.
#pragma once

#include "printing/seitenlayout.h"

void FelderZeichnen(Zeichnung& zeichnung, const FKDruckdaten& daten, const Druckgeometrie& g,
                    const Schriftmass& mass);
