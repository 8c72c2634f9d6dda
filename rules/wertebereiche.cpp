#include "rules/wertebereiche.h"

#include <algorithm>
#include <limits>

namespace {

constexpr std::int16_t null = 0;
constexpr std::int16_t hoechsteFarbe = 15;

// True when the number had to be changed.
bool Begrenzen(std::int16_t& wert, std::int16_t hoechstens) {
    const std::int16_t vorher = wert;
    wert = std::clamp(wert, null, hoechstens);
    return wert != vorher;
}

} // namespace

void BrettEinhalten(Spielwerte& spiel) {
    if (spiel.FragenProWissen * spiel.AnzahlWissen > std::numeric_limits<std::int16_t>::max()) {
        return;
    }
    const bool fragen = Begrenzen(spiel.FragenProWissen, hoechstensFragen);
    const bool wissen = Begrenzen(spiel.AnzahlWissen, hoechstensWissen);
    constexpr std::int16_t ganzesBrett = hoechstensFragen * hoechstensWissen;
    if (fragen || wissen || Begrenzen(spiel.FelderGesamt, ganzesBrett)) {
        const int jeGebiet = spiel.FragenProWissen == 0 ? hoechstensFragen : spiel.FragenProWissen;
        const int gebiete = spiel.AnzahlWissen == 0 ? hoechstensWissen : spiel.AnzahlWissen;
        spiel.FelderGesamt = static_cast<std::int16_t>(jeGebiet * gebiete);
    }
}

void BereicheEinhalten(Spielwerte& spiel) {
    BrettEinhalten(spiel);
    for (const Spezialart art : {Spezialart::Aktion, Spezialart::Ereignis, Spezialart::Glueck,
                                 Spezialart::Joker, Spezialart::Risiko}) {
        Begrenzen(spiel.Punkte[art], hoechstensPunkte);
        Begrenzen(spiel.Felder[art], hoechstensFelder);
    }
    if (spiel.FarbeHintergrund < 0 || spiel.FarbeHintergrund > hoechsteFarbe) {
        spiel.FarbeHintergrund = 7; // as the form shows it
    }
    // Not clamp alone: what is no number at all compares with nothing.
    const bool zahl = spiel.Zwischenabstand >= 0.0F;
    spiel.Zwischenabstand = zahl ? std::min(spiel.Zwischenabstand, hoechstensAbstand) : 0.0F;
}
