// The settings file: four sections, read by marker and written in order, 88 lines. Works on bytes in memory;
// the file itself is einstellungenladen.h.
#pragma once

#include "persistence/wertgrammatik.h"

#include <string>
#include <string_view>

void SchreibeStandard(WertSchreiber& schreiber);
void SchreibeStandard2(WertSchreiber& schreiber);
void SchreibeDateiliste(WertSchreiber& schreiber);

void LeseStandard(WertLeser& leser);
void LeseStandard2(WertLeser& leser);
void LeseDateiliste(WertLeser& leser);

// The bytes of a whole settings file from the shared variables.
[[nodiscard]] std::string EinstellungenBytes();

// Reads a settings file into the shared variables. Throws Laufzeitfehler; what was read so far is in force.
void EinstellungenAusBytes(std::string_view bytes);
