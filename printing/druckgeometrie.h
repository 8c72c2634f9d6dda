// Measures of the printed quiz form: the two papers, the gap between the cells and everything
// that follows from them. Computed anew at each print, in single precision and in a fixed order. Draws
// nothing: that is printing/seitenlayout.h.
#pragma once

#include "core/laenge.h"

#include <cstdint>
#include <optional>
#include <string_view>

enum class Papier : std::uint8_t { A4Quer, A5Quer };

// The paper that the setting names; no value for anything but "A4 quer" and "A5 quer".
[[nodiscard]] std::optional<Papier> PapierAus(std::string_view papierformat);

// Places count from the printer's printable origin.
struct Druckgeometrie {
    Millimeter RandLinks, RandOben;                 // corner of the frame
    float Massstab = 1.0F;                          // factor on fonts and small measures, shrunk by the gap
    Millimeter LueckeX, LueckeY;                    // gaps between columns and rows
    Millimeter BreiteNutz, HoeheNutz;               // six columns with five gaps; the whole grid
    Millimeter KopfHoehe, KopfLuecke;               // head strip and the gap below it
    Millimeter GebietHoehe;                         // head of an area
    Millimeter TextEinzug;                          // text column, from the cell's left edge
    Millimeter TextOben, AntwortOben;               // first lines, below the cell's top and the dividing line
    Millimeter RahmenEinzug;                        // inner frame of a special field
    float FrageAnteil = 0.0F, AntwortAnteil = 0.0F; // shares of the row's height
    Druckpunkte StrichKopf, StrichFeld, StrichDuenn;

    Millimeter SpaltenBreite, ZeileGanz; // a column; a row without its gap
    Millimeter FrageHoehe, AntwortHoehe;
    Millimeter SpaltenRaster, ZeilenRaster; // pitch of columns and rows
    Millimeter NummerBreite, NummerEinzug;  // small column at the left of each cell
    Millimeter TextBreite;                  // longest line of a question or answer
    Millimeter ZeilenOben;                  // top of the first row
};

// zwischenabstand: gap as set; links, oben: the printer's physical offsets.
[[nodiscard]] Druckgeometrie GeometrieRechnen(Papier papier, Millimeter zwischenabstand, Millimeter links,
                                              Millimeter oben);
