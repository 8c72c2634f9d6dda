// Measures of the printed quiz form in millimetres: the two papers, the gap between the cells and everything
// that follows from them. Computed anew at each print, in single precision and in a fixed order. Draws
// nothing: that is printing/seitenlayout.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

enum class Papier : std::uint8_t { A4Quer, A5Quer };

// The paper that the setting names; no value for anything but "A4 quer" and "A5 quer".
[[nodiscard]] std::optional<Papier> PapierAus(std::string_view papierformat);

// Lengths in mm, relative to the printer's printable origin; widths of lines in dots.
struct Druckgeometrie {
    float RandLinks, RandOben;        // corner of the frame
    float Massstab;                   // factor on fonts and small measures, shrunk by the gap
    float LueckeX, LueckeY;           // gaps between columns and rows
    float BreiteNutz, HoeheNutz;      // six columns with five gaps; the whole grid
    float KopfHoehe, KopfLuecke;      // head strip and the gap below it
    float GebietHoehe;                // head of an area
    float TextEinzug;                 // text column, from the cell's left edge
    float TextOben, AntwortOben;      // first lines, below the cell's top and the dividing line
    float RahmenEinzug;               // inner frame of a special field
    float FrageAnteil, AntwortAnteil; // shares of the row's height
    int StrichKopf, StrichFeld, StrichDuenn;

    float SpaltenBreite, ZeileGanz; // a column; a row without its gap
    float FrageHoehe, AntwortHoehe;
    float SpaltenRaster, ZeilenRaster; // pitch of columns and rows
    float NummerBreite, NummerEinzug;  // small column at the left of each cell
    float TextBreite;                  // longest line of a question or answer
    float ZeilenOben;                  // top of the first row
};

// zwischenabstand: gap in mm as set; links, oben: the printer's physical offsets in whole mm.
[[nodiscard]] Druckgeometrie GeometrieRechnen(Papier papier, float zwischenabstand, std::int32_t links,
                                              std::int32_t oben);
