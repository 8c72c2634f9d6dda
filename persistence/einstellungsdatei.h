// The settings file: four sections, read by marker and written in order, 88 lines. Works on bytes in memory;
// the file itself is einstellungenladen.h.
#pragma once

#include "rules/spielwerte.h"

#include <string>
#include <string_view>

// The bytes of a whole settings file.
[[nodiscard]] std::string EinstellungenBytes(const Spielwerte& spiel);

// Reads a settings file over the values. Throws Laufzeitfehler; what was read so far is in force.
void EinstellungenAusBytes(std::string_view bytes, Spielwerte& spiel);
