#include "printing/zeichnung.h"

void TextZentriert(Zeichnung& zeichnung, const Schriftmass& mass, Millimeter x, Millimeter y,
                   const Schrift& schrift, std::string_view text) {
    if (text.empty()) {
        return;
    }
    zeichnung.emplace_back(Textstelle{x - mass.Breite(text, schrift) / 2.0F, y - mass.Hoehe(schrift) / 2.0F,
                                      schrift, std::string(text)});
}

void TextZeilen(Zeichnung& zeichnung, const Schriftmass& mass, Millimeter x, Millimeter y,
                const Schrift& schrift, const std::vector<std::string_view>& zeilen) {
    const Millimeter hoehe = mass.Hoehe(schrift);
    for (const std::string_view zeile : zeilen) {
        if (!zeile.empty()) {
            zeichnung.emplace_back(Textstelle{x, y, schrift, std::string(zeile)});
        }
        y += hoehe;
    }
}
