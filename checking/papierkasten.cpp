#include "checking/papierkasten.h"

#include "core/meldungstext.h"

#include <algorithm>

void Sammler::Ueberstand(const Befundort& ort, std::string_view text, Millimeter laenge,
                         const Flaeche& kasten) {
    constexpr Millimeter spuerbar = 0.05_mm;
    if (laenge >= spuerbar) {
        befunde_.push_back(
            {{Schwere::Fehler, Anlass::Ueberstand, ort, Einsetzen(text, {Millimetertext(laenge)})}, kasten});
    }
}

Flaeche Kasten(const std::vector<Textstelle>& zeilen, const Schriftmass& mass) {
    if (zeilen.empty()) {
        return {};
    }
    Flaeche kasten{zeilen.front().x, zeilen.front().y, 0_mm, 0_mm};
    Millimeter rechts;
    Millimeter unten;
    for (const Textstelle& zeile : zeilen) {
        const std::string sichtbar = zeile.text.substr(0, zeile.text.find_last_not_of(' ') + 1);
        rechts = std::max(rechts, zeile.x + mass.Breite(sichtbar, zeile.schrift));
        unten = std::max(unten, zeile.y + mass.Hoehe(zeile.schrift));
        kasten.x = std::min(kasten.x, zeile.x);
        kasten.y = std::min(kasten.y, zeile.y);
    }
    kasten.breite = rechts - kasten.x;
    kasten.hoehe = unten - kasten.y;
    return kasten;
}

Millimeter RechterRand(const Flaeche& kasten) {
    return kasten.x + kasten.breite;
}

Millimeter UntererRand(const Flaeche& kasten) {
    return kasten.y + kasten.hoehe;
}
