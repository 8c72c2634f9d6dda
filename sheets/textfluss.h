// A table of texts that flows over pages: head, section titles, rows of number, question, answer and points.
// What stands in the rows is the callers' affair.
#pragma once

#include "sheets/blattsatz.h"

#include <string>
#include <vector>

struct Flusszeile {
    std::string nummer, frage, antwort, punkte;
};
struct Flussabschnitt {
    std::string titel; // "" for rows without one
    std::vector<Flusszeile> zeilen;
};
struct Textfluss {
    std::string kopf;                   // large, on the first page
    std::vector<std::string> unterkopf; // lines below it
    std::vector<Flussabschnitt> abschnitte;
    std::string schluss; // below the last row
};

// Upright pages, each with its number where there are more than one. A row goes over to the next page as a
// whole where it can; a section's title never stands without a row, and is repeated on the next page.
[[nodiscard]] Blattsatz Fliessen(const Textfluss& fluss, const Schriftmass& mass);
