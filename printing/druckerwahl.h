// The printer dialog as its callers see it.
#pragma once

#include <string>

// Opens the system's printer dialog; the printer chosen there serves until the program ends. pdfVorschlag:
// path that the dialog proposes for a PDF file.
void DruckerWahl(const std::string& pdfVorschlag);
