#include "core/massstab.h"

#include <charconv>

namespace {

constexpr int stufe = 10;

bool Passt(Massstab massstab, Pixelflaeche original, Pixelflaeche rand, Pixelflaeche frei) {
    return massstab.Kante(original.breite) + rand.breite <= frei.breite &&
           massstab.Kante(original.hoehe) + rand.hoehe <= frei.hoehe;
}

} // namespace

Groessenwunsch WunschAus(std::string_view groesse, std::string_view anpassen) {
    int prozent = 0;
    const char* ende = groesse.data() + groesse.size();
    const auto [hinter, fehler] = std::from_chars(groesse.data(), ende, prozent);
    const bool gilt = fehler == std::errc() && hinter == ende && Massstab(prozent).prozent() == prozent;
    return {anpassen != "0", gilt ? Massstab(prozent) : Massstab()};
}

Massstab NaechsteStufe(Massstab jetzt, int richtung) {
    const int darunter = jetzt.prozent() / stufe * stufe;
    if (richtung > 0) {
        return Massstab(darunter + stufe);
    }
    return Massstab(darunter == jetzt.prozent() ? darunter - stufe : darunter);
}

Massstab MassstabFuer(const Groessenwunsch& wunsch, Pixelflaeche original, Pixelflaeche rand,
                      Pixelflaeche frei) {
    if (!wunsch.anpassen) {
        return wunsch.eigener;
    }
    int prozent = Massstab::original;
    while (prozent > Massstab::kleinster && !Passt(Massstab(prozent), original, rand, frei)) {
        --prozent;
    }
    return Massstab(prozent);
}
