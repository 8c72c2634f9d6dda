// What is to be filled, as a value: the cells or rows of a form as they stand at one moment, each with the
// questions that fit it; and a proposal for them. How a form becomes one is filling/brettfuellung.h and
// filling/testfuellung.h; what is drawn for both alike stands here.
#pragma once

#include "filling/fragenvorrat.h"
#include "filling/wuerfel.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

enum class Feldlage : std::uint8_t { Geschlossen, Besetzt, Leer };

struct Fuellfeld {
    Feldlage lage = Feldlage::Geschlossen;
    std::string frage, antwort; // on the form
    std::string buchstabe;      // of a cell
    int punkte = 0;             // of a row
    Frageliste kandidaten;      // of an empty one
};

struct Fuellauftrag {
    std::shared_ptr<const Fragenvorrat> vorrat;
    std::vector<Fuellfeld> felder; // from 1
    bool punkteBleiben = false;    // a question gives way to one of the same points only

    [[nodiscard]] std::size_t leere() const;
};

// For each cell or row the question for it; index 0 isn't used.
using Vorschlag = std::vector<std::optional<Fragennummer>>;
[[nodiscard]] std::size_t Anzahl(const Vorschlag& vorschlag);

// What of a proposal made for an earlier moment or other wishes still holds.
[[nodiscard]] Vorschlag Bereinigt(const Fuellauftrag& auftrag, Vorschlag vorschlag);
// The same questions by their numbers in a catalogue that was read anew; what isn't there any more is
// dropped.
[[nodiscard]] Vorschlag Uebertragen(const Fragenvorrat& alt, const Fragenvorrat& neu, Vorschlag vorschlag);
// Another question for one cell or row, with all others as they are. False where there is none.
bool NeuZiehen(const Fuellauftrag& auftrag, Vorschlag& vorschlag, std::size_t feld, std::uint64_t saat);

// How many questions fit at least one of these cells or rows.
[[nodiscard]] std::size_t Passende(const Fuellauftrag& auftrag, std::size_t erstes, std::size_t letztes);
