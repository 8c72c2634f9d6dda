// How a cell looks for its letter: colours, alignment and marker texts. The texts of a plain cell come from
// the stored copy; painting is the window's.
#pragma once

#include "core/farbe.h"

#include <optional>
#include <string_view>

// Colours that have no value are system face.
struct FeldBild {
    std::optional<Farbe> spezialGrund;
    Farbe spezialSchrift;
    std::optional<Farbe> miniatur;
    std::optional<Farbe> rahmen; // no value: no frame
    std::optional<Farbe> textGrund;
    bool zentriert = false;
    std::string_view frageMarke; // marker texts; "" where the cell shows the stored texts
    std::string_view antwortMarke;
};

// einzeln: the repaint of one cell, whose frame for J and G has a slightly other shade; that is meant.
// leer: the cell has no question; counts for a cell without a letter only.
[[nodiscard]] FeldBild FeldBildFuer(std::string_view buchstabe, bool leer, bool einzeln);
