// A page as a list of what stands on it: rectangles, lines, circles and texts in their places from the
// printer's printable origin, in the order in which they are drawn. Layout routines make the list; printer,
// PDF and tests take it from there.
#pragma once

#include "core/farbe.h"
#include "core/laenge.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The two families that the pages use; where one is missing, a face of the same metrics serves.
enum class Schriftart : unsigned char { Arial, ArialBlack };

struct Druckschrift {
    Schriftart art = Schriftart::Arial;
    Schriftpunkte groesse = 10_pt;
    bool fett = false;
    friend bool operator==(const Druckschrift&, const Druckschrift&) = default;
};

// A part of a page.
struct Flaeche {
    Millimeter x, y, breite, hoehe;
    friend bool operator==(const Flaeche&, const Flaeche&) = default;
};

// Width of a line and its colour.
struct Stift {
    Druckpunkte punkte = 5_dp;
    Farbe farbe = farbeSchwarz;
};

struct Rechteck {
    Millimeter x, y, breite, hoehe;
    Stift stift;
    std::optional<Farbe> fuellung; // no value: unfilled
};

struct Strich {
    Millimeter x1, y1, x2, y2;
    Stift stift;
};

struct Kreis {
    Millimeter x, y; // centre
    Millimeter radius;
    Stift stift;
};

// One line of black text; x and y are the top left corner of its line box, whose height is that of
// Schriftmass::Hoehe.
struct Textstelle {
    Millimeter x, y;
    Druckschrift schrift;
    std::string text; // UTF-8
};

// From here on only what lies within is drawn; no value: the whole page again.
struct Zuschnitt {
    std::optional<Flaeche> flaeche;
};

using Element = std::variant<Rechteck, Strich, Kreis, Textstelle, Zuschnitt>;
using Zeichnung = std::vector<Element>;

// Measures of text as the printer will set it.
class Schriftmass {
public:
    Schriftmass() = default;
    Schriftmass(const Schriftmass&) = delete;
    Schriftmass& operator=(const Schriftmass&) = delete;
    virtual ~Schriftmass() = default;

    [[nodiscard]] virtual Millimeter Breite(std::string_view text, const Druckschrift& schrift) const = 0;
    // The same for a text that is only held against a limit: exact near it, else on the right side of it.
    [[nodiscard]] virtual Millimeter BreiteGegen(std::string_view text, const Druckschrift& schrift,
                                                 Millimeter grenze) const {
        static_cast<void>(grenze);
        return Breite(text, schrift);
    }
    // Height of a line: ascent and descent, the pitch of lines that follow one another.
    [[nodiscard]] virtual Millimeter Hoehe(const Druckschrift& schrift) const = 0;
};

// Adds a text centred about the point (x, y).
void TextZentriert(Zeichnung& zeichnung, const Schriftmass& mass, Millimeter x, Millimeter y,
                   const Druckschrift& schrift, std::string_view text);
// Adds lines one below the other, the first one at y; empty lines take their place.
void TextZeilen(Zeichnung& zeichnung, const Schriftmass& mass, Millimeter x, Millimeter y,
                const Druckschrift& schrift, const std::vector<std::string_view>& zeilen);

// The element as much further to the right and down.
[[nodiscard]] Element Verschoben(Element element, Millimeter x, Millimeter y);
// What the element covers on the page: for a text its line box, for a line its ends, for a Zuschnitt nothing.
[[nodiscard]] Flaeche Umriss(const Element& element, const Schriftmass& mass);
