// A section of a form or settings file as a table: which member stands at which place. Reading and writing
// walk the same table, so that the two can't drift apart. Knows the places' kinds, not their meaning.
#pragma once

#include "core/wertgrammatik.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

// A place without a member: the text is written literally, "" for a reserved one, and what the file holds
// there is read and thrown away.
struct Blindwert {
    std::string_view text;
};

// A yes or no stands in a file as 1 or 0; any other number reads as no.
using Platz =
    std::variant<Blindwert, bool*, std::int16_t*, float*, std::string*, std::optional<std::string>*>;

inline constexpr Blindwert reserviert{""};

// Read the places from first to last into their members; errors as WertLeser throws them, with the places
// read so far in force.
void PlaetzeLesen(WertLeser& leser, std::span<const Platz> plaetze);
void PlaetzeSchreiben(WertSchreiber& schreiber, std::span<const Platz> plaetze);

// A section as the readers find it by its marker.
struct Abschnitt {
    std::string_view marke;
    std::function<void(WertLeser&)> lesen;
};

// To the end of the bytes: runs the reader of each marker, in any order and as often as it stands there. A
// token that is no marker is dropped, and so a section that nobody knows is passed over.
void AbschnitteLesen(WertLeser& leser, std::span<const Abschnitt> abschnitte);
