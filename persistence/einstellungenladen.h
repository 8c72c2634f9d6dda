// The settings file on the disk, "\CONFIG\Feldkranz.INI" in the program's folder. Its bytes are
// persistence/einstellungsdatei.h; what a failure means is the caller's affair.
#pragma once

#include "core/laufzeitfehler.h"

// Fills the settings from the file. Throws Laufzeitfehler; what was read so far stays in force.
void EinstellungenLesen();
// Rewrites the whole file. Throws Laufzeitfehler; the old file is whole then.
void EinstellungenSchreiben();
