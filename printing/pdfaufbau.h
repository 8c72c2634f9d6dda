// The parts of a PDF file as the toolkit writes it: its objects by number, and its trailer.
#pragma once

#include "printing/pdfobjekt.h"

#include <optional>
#include <string_view>
#include <vector>

struct PdfAufbau {
    std::string_view kopf;          // what stands before the first object
    std::vector<PdfObjekt> objekte; // by number; 0 is none
    PdfObjekt abschluss;            // the trailer
    int katalog = 0;                // number of the object from which the pages are found
};

// Nothing for a file that doesn't hold to the plainest form in every byte: one table of objects that don't
// overlap, no later additions, nothing packed or encrypted but the contents of streams.
[[nodiscard]] std::optional<PdfAufbau> PdfAufbauLesen(std::string_view bytes);
