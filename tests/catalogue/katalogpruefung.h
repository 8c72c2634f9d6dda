// The catalogue as it is shipped, for the tests that look after its contents: all files of the table, and the
// questions as the program's own reader delivers them. Judges nothing itself.
#pragma once

#include "catalogue/themen.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct Katalogdatei {
    const Thema* thema;
    std::string_view unterthema;
    std::string pfad; // under the catalogue's folder, as in "LAND\LA_BERG.TXT"
    std::string bytes;
};

struct Katalogsatz {
    const Katalogdatei* datei;
    std::size_t platz; // in its file, from 1
    std::string nr, frage, antwort, punkte;
};

// Bytes of a file of the catalogue; a missing one throws Laufzeitfehler.
[[nodiscard]] std::string Katalogbytes(std::string_view pfad);
// The lines of a file, without their ends and without the empty rest behind the last one.
[[nodiscard]] std::vector<std::string_view> Zeilen(std::string_view bytes);

// The 138 question files in the order of the table, and all their questions. Read at the first call.
[[nodiscard]] const std::vector<Katalogdatei>& Katalogdateien();
[[nodiscard]] const std::vector<Katalogsatz>& Katalogfragen();
// The questions of one file, in its order.
[[nodiscard]] std::vector<const Katalogsatz*> FragenVon(const Katalogdatei& datei);
// Path of the folder with all of them, in the program's notation.
[[nodiscard]] std::string Katalogordner();

// Where to look, for a failure's text: file and Nr, question and answer.
[[nodiscard]] std::string Fundort(const Katalogsatz& frage);
