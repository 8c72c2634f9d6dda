// Cards to cut out, one a cell in play: in front its number and title, behind it question and answer. Pages
// with fronts and pages with backs take turns, and the backs stand mirrored, so that both sides of a card
// meet when the paper is printed on both sides.
#pragma once

#include "printing/seitenlayout.h"
#include "sheets/blattsatz.h"

#include <cstdint>

enum class Kartenzahl : std::uint8_t { Acht, Sechzehn }; // a page

// From the sheets' corners. What a special field is and is worth stands behind only: nobody is to see it
// before the card is turned.
[[nodiscard]] Blattsatz KartenBlaetter(const FKDruckdaten& daten, Kartenzahl zahl, const Schriftmass& mass);
