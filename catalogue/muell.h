// What a drop on the trash field does, by the place where the drag began.
#pragma once

#include "core/ziehwert.h"

class frmAuswahl;

void MuellAblegen(frmAuswahl& fenster, const Ziehwert& wert);
