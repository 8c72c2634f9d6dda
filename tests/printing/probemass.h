// A measure of text that can be reckoned in the head: every byte is a tenth of the font's size wide, a line
// half of it high. For tests of the layout without a printer.
#pragma once

#include "printing/zeichnung.h"
#include "tests/hilfe/laengenausgabe.h"

class Probemass final : public Schriftmass {
public:
    [[nodiscard]] Millimeter Breite(std::string_view text, const Druckschrift& schrift) const override {
        return Millimeter(static_cast<float>(text.size()) * schrift.groesse.zahl() * 0.1F);
    }
    [[nodiscard]] Millimeter Hoehe(const Druckschrift& schrift) const override {
        return Millimeter(schrift.groesse.zahl() * 0.5F);
    }
};

template <typename Art>
std::vector<Art> Alle(const Zeichnung& zeichnung) {
    std::vector<Art> ergebnis;
    for (const Element& element : zeichnung) {
        if (const Art* teil = std::get_if<Art>(&element)) {
            ergebnis.push_back(*teil);
        }
    }
    return ergebnis;
}
