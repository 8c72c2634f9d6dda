// The settings file on the disk, "\CONFIG\Feldkranz.INI" in the program's folder. Its bytes are
// persistence/einstellungsdatei.h; what a failure means is the caller's affair.
#pragma once

#include "core/laufzeitfehler.h"
#include "persistence/dateistand.h"

#include <string>

// Fills the settings from the file. Throws Laufzeitfehler; what was read so far stays in force.
void EinstellungenLesen();
// Rewrites the whole file. Throws Laufzeitfehler; the old file is whole then.
void EinstellungenSchreiben();

// Path of the file, and what the program has read from it or written to it.
[[nodiscard]] std::string Einstellungspfad();
[[nodiscard]] const Dateikenntnis& Einstellungskenntnis();

// Where the file holds anything else, keeps it beside it as Feldkranz.BAK, or under the next free number: a
// backup with another content stays. Throws Laufzeitfehler where it can't be kept; a write would destroy it.
void FremdeEinstellungenAufheben();
