// The parts of a PDF file as the toolkit writes it: where each object stands, and where it names others.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

// A place where an object is named by its number, or, with the number 0, where a font's name begins with the
// six letters that tell its parts in different files apart.
struct PdfStelle {
    std::size_t anfang = 0, laenge = 0; // in the file
    int nummer = 0;
};

// An entry of an object's outermost dictionary; both as they stand, the name with its slash.
struct PdfEintrag {
    std::string_view name, wert;
};

struct PdfObjekt {
    bool frei = false;          // its number is not in use
    int stand = 0;              // generation of the number, 0 for one in use
    std::size_t anfang = 0;     // in the file; of the trailer: of its dictionary
    std::size_t ende = 0;       // where the next object begins; of the trailer: behind the dictionary
    std::size_t listenende = 0; // where the brackets of the outermost dictionary close; 0 without one
    std::vector<PdfEintrag> eintraege;
    std::vector<PdfStelle> stellen; // in their order, from the object's own number on

    // What stands behind the name; nothing if it doesn't occur.
    [[nodiscard]] std::optional<std::string_view> wert(std::string_view name) const;
};

struct PdfAufbau {
    std::string_view kopf;          // what stands before the first object
    std::vector<PdfObjekt> objekte; // by number; 0 is none
    PdfObjekt abschluss;            // the trailer
    int katalog = 0;                // number of the object from which the pages are found
};

// Nothing for a file that doesn't hold to the plainest form in every byte: one table of objects that don't
// overlap, no later additions, nothing packed or encrypted but the contents of streams.
[[nodiscard]] std::optional<PdfAufbau> PdfAufbauLesen(std::string_view bytes);
