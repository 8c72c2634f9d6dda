// The list of the last four form files, most recent first. Shows nothing: the menu takes them from the
// settings (DateilisteAnzeigen in core/hauptfenster.h).
#pragma once

#include <array>
#include <string>
#include <string_view>

// Puts a path at the top and drops the oldest. A path that is listed already, letter for letter or in another
// case that means the same file, keeps its place: the file dialog gives paths in capitals, the list of forms
// as they are.
void DateilisteErgaenzen(std::array<std::string, 4>& liste, std::string_view pfad);
