#include "sheets/textsatz.h"

#include "printing/zeilenumbruch.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr float stufe = 0.5F; // of a point

bool Passt(const Textsatz& satz, Millimeter breite, Millimeter hoehe, const Schriftmass& mass) {
    if (static_cast<float>(satz.zeilen.size()) * mass.Hoehe(satz.schrift) > hoehe) {
        return false;
    }
    return std::ranges::all_of(satz.zeilen, [&](std::string_view zeile) {
        return mass.BreiteGegen(zeile, satz.schrift, breite) <= breite;
    });
}

std::string_view OhneEnde(std::string_view text, std::string_view zeichen) {
    return text.substr(0, text.find_last_not_of(zeichen) + 1);
}

} // namespace

std::vector<std::string_view> Zeilen(std::string_view text, Millimeter breite, const Druckschrift& schrift,
                                     const Schriftmass& mass) {
    std::vector<std::string_view> zeilen = Umbrechen(
        OhneEnde(text, " \r\n"), breite,
        [&](std::string_view teil) { return mass.BreiteGegen(teil, schrift, breite); }, Wortmass::JedesWort);
    for (std::string_view& zeile : zeilen) {
        zeile = OhneEnde(zeile, " ");
    }
    return zeilen;
}

// What fits in one size fits in every smaller one, so that the size is found by halving.
Textsatz Einpassen(std::string_view text, Millimeter breite, Millimeter hoehe, const Druckschrift& groesste,
                   Schriftpunkte kleinste, const Schriftmass& mass) {
    const auto inStufe = [&](int n) {
        Textsatz satz{
            {groesste.art, kleinste + Schriftpunkte(static_cast<float>(n) * stufe), groesste.fett}, {}, true};
        satz.zeilen = Zeilen(text, breite, satz.schrift, mass);
        satz.passt = Passt(satz, breite, hoehe, mass);
        return satz;
    };
    int zuGross = static_cast<int>(std::floor((groesste.groesse - kleinste).zahl() / stufe)) + 1;
    Textsatz bestes = inStufe(0);
    for (int passend = 0; bestes.passt && zuGross - passend > 1;) {
        const int mitte = (passend + zuGross) / 2;
        Textsatz versuch = inStufe(mitte);
        if (versuch.passt) {
            passend = mitte;
            bestes = std::move(versuch);
        } else {
            zuGross = mitte;
        }
    }
    return bestes;
}

void MittigSetzen(Zeichnung& zeichnung, const Textsatz& satz, const Flaeche& kasten,
                  const Schriftmass& mass) {
    const Millimeter zeilenhoehe = mass.Hoehe(satz.schrift);
    const Millimeter frei = kasten.hoehe - static_cast<float>(satz.zeilen.size()) * zeilenhoehe;
    Millimeter y = kasten.y + (frei + zeilenhoehe) / 2.0F;
    for (const std::string_view zeile : satz.zeilen) {
        TextZentriert(zeichnung, mass, kasten.x + kasten.breite / 2.0F, y, satz.schrift, zeile);
        y += zeilenhoehe;
    }
}

void VonObenSetzen(Zeichnung& zeichnung, const Textsatz& satz, const Flaeche& kasten,
                   const Schriftmass& mass) {
    TextZeilen(zeichnung, mass, kasten.x, kasten.y, satz.schrift, satz.zeilen);
}
