// A section of a form or settings file as a table: which variable stands at which place. Reading and writing
// walk the same table, so that the two can't drift apart. Knows the places' kinds, not their meaning.
#pragma once

#include "persistence/wertgrammatik.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

// A place without a variable: the text is written literally, "" for a reserved one, and what the file holds
// there is read and thrown away.
struct Blindwert {
    std::string_view text;
};

using Platz = std::variant<Blindwert, std::int16_t*, float*, std::string*, std::optional<std::string>*>;

inline constexpr Platz reserviert{Blindwert{""}};

// Read the places from first to last into their variables; errors as WertLeser throws them, with the places
// read so far in force.
void PlaetzeLesen(WertLeser& leser, std::span<const Platz> plaetze);
void PlaetzeSchreiben(WertSchreiber& schreiber, std::span<const Platz> plaetze);

// A section as the readers find it by its marker.
struct Abschnitt {
    std::string_view marke;
    void (*lesen)(WertLeser&);
};

// To the end of the bytes: runs the reader of each marker, in any order and as often as it stands there. A
// token that is no marker is dropped, and so a section that nobody knows is passed over.
void AbschnitteLesen(WertLeser& leser, std::span<const Abschnitt> abschnitte);
