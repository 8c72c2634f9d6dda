#include "persistence/einstellungsdatei.h"

#include "persistence/abschnitt.h"
#include "persistence/formularabschnitte.h"

#include <array>
#include <vector>

namespace {

using Plaetze = std::vector<Platz>;

constexpr Blindwert r = reserviert;

// Labels stand before the value they name, as strings of their own.
constexpr Blindwert schriftRahmen{"Rahmenfarbe"};
constexpr Blindwert schriftPapier{"Papierformat"};

// The kinds in the order A, E, G, J, R.
void ArtenAnhaengen(Plaetze& plaetze, Spielwerte& s) {
    for (const Spezialart art : {Spezialart::Aktion, Spezialart::Ereignis, Spezialart::Glueck,
                                 Spezialart::Joker, Spezialart::Risiko}) {
        plaetze.insert(plaetze.end(), {&s.Punkte[art], &s.PunkteV[art], &s.Felder[art]});
        plaetze.push_back(art == Spezialart::Ereignis ? Platz(&s.FelderVE) : Platz(&s.FelderV[art]));
    }
}

Plaetze Standard(Spielwerte& s) {
    Plaetze plaetze;
    ArtenAnhaengen(plaetze, s);
    // clang-format off
    plaetze.insert(plaetze.end(), {
        r, r,
        &s.OptionMaxFelder, &s.OptionMaxSpezial, &s.OptionMaxWissen,
        &s.Zwischenabstand, &s.FarbeHintergrund, r,
        &s.OptionDatei, r,
        &s.OptionTitel, &s.OptionWissen, &s.OptionJoker, &s.OptionEreignis, r, r,
        schriftRahmen, &s.OptionRahmen,
        schriftPapier, &s.Papierformat,
        r, r, r, r, r, r, r, r, r, r});
    // clang-format on
    return plaetze;
}

// The paper format a second time: read later, this copy is the one that counts.
Plaetze Standard2(Spielwerte& s) {
    Plaetze plaetze{schriftPapier, &s.Papierformat};
    plaetze.insert(plaetze.end(), 18, r);
    return plaetze;
}

Plaetze Dateiliste(Spielwerte& s) {
    return {&s.Datei[0], &s.Datei[1], &s.Datei[2], &s.Datei[3]};
}

} // namespace

std::string EinstellungenBytes(const Spielwerte& spiel) {
    Spielwerte s = spiel;
    WertSchreiber schreiber;
    schreiber.Text("[STANDARD]");
    PlaetzeSchreiben(schreiber, Standard(s));
    schreiber.Text("[STANDARD2]");
    PlaetzeSchreiben(schreiber, Standard2(s));
    schreiber.Text("[DATEILISTE]");
    PlaetzeSchreiben(schreiber, Dateiliste(s));
    SchreibeHilfe(schreiber, s);
    return schreiber.bytes();
}

void EinstellungenAusBytes(std::string_view bytes, Spielwerte& spiel) {
    const std::array<Abschnitt, 4> abschnitte{
        {{"[STANDARD]", [&](WertLeser& l) { PlaetzeLesen(l, Standard(spiel)); }},
         {"[STANDARD2]", [&](WertLeser& l) { PlaetzeLesen(l, Standard2(spiel)); }},
         {"[DATEILISTE]", [&](WertLeser& l) { PlaetzeLesen(l, Dateiliste(spiel)); }},
         {"[HILFE]", [&](WertLeser& l) { LeseHilfe(l, spiel); }}}};
    WertLeser leser(bytes);
    AbschnitteLesen(leser, abschnitte);
}
