// The board for the players: titles and numbers, and nothing of what is behind them. On one page, or on
// several that are cut and put together.
#pragma once

#include "printing/seitenlayout.h"
#include "sheets/blattart.h"
#include "sheets/blattsatz.h"

// How many pages a board takes, and which way they lie.
struct Kacheln {
    bool quer = true;
    int spalten = 1, zeilen = 1;
};
[[nodiscard]] Kacheln KachelnVon(Blattart brett);

struct Spielbrett {
    Zeichnung zeichnung;
    std::vector<Ueberhang> ueberhaenge; // titles that even the smallest size can't keep in their place
};
// The board in a box of that size from (0, 0). Which kind of special field a cell is isn't told, and neither
// is what it is worth: it shows its row.
[[nodiscard]] Spielbrett BrettZeichnen(const FKDruckdaten& daten, Millimeter breite, Millimeter hoehe,
                                       const Schriftmass& mass);
// Its pages, row by row from the top left, from the sheets' corners. Where there are more than one, each has
// marks for the scissors and says which it is.
[[nodiscard]] Blattsatz BrettBlaetter(const FKDruckdaten& daten, Blattart brett, const Schriftmass& mass);
