// The list of the last four form files, Datei1 to Datei4, most recent first. Shows nothing: the menu takes
// them from there (DateilisteAnzeigen in core/hauptfenster.h).
#pragma once

#include <string_view>

// Puts a path at the top and drops the oldest. A path that is listed already, letter for letter, keeps its
// place.
void DateilisteErgaenzen(std::string_view pfad);
