// The printer dialog as its callers see it.
#pragma once

#include "core/formart.h"

#include <string>

// Opens the system's printer dialog as a setting; the printer chosen there serves until the program ends. It
// proposes the PDF file that a print of the open form would take: one of that kind and file, "" for none.
void DruckerWahl(Formart art, const std::string& datei);
