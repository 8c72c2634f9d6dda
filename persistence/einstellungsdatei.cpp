#include "persistence/einstellungsdatei.h"

#include "persistence/abschnitt.h"
#include "persistence/formulardatei.h"
#include "settings/einstellungen.h"

#include <array>

namespace {

constexpr Platz r = reserviert;

// Labels stand before the value they name, as strings of their own.
constexpr Platz schriftRahmen{Blindwert{"Rahmenfarbe"}};
constexpr Platz schriftPapier{Blindwert{"Papierformat"}};

// clang-format off
constexpr std::array<Platz, 50> standard{
    &PunkteA, &PunkteVA, &FelderA, &FelderVA,
    &PunkteE, &PunkteVE, &FelderE, &FelderVE,
    &PunkteG, &PunkteVG, &FelderG, &FelderVG,
    &PunkteJ, &PunkteVJ, &FelderJ, &FelderVJ,
    &PunkteR, &PunkteVR, &FelderR, &FelderVR,
    r, r,
    &OptionMaxFelder, &OptionMaxSpezial, &OptionMaxWissen,
    &Zwischenabstand, &FarbeHintergrund, r,
    &OptionDatei, r,
    &OptionTitel, &OptionWissen, &OptionJoker, &OptionEreignis, r, r,
    schriftRahmen, &OptionRahmen,
    schriftPapier, &Papierformat,
    r, r, r, r, r, r, r, r, r, r};

// The paper format a second time: read later, this copy is the one that counts.
constexpr std::array<Platz, 20> standard2{
    schriftPapier, &Papierformat,
    r, r, r, r, r, r, r, r, r, r, r, r, r, r, r, r, r, r};
// clang-format on

constexpr std::array<Platz, 4> dateiliste{&Datei1, &Datei2, &Datei3, &Datei4};

constexpr std::array<Abschnitt, 4> abschnitte{{{"[STANDARD]", LeseStandard},
                                               {"[STANDARD2]", LeseStandard2},
                                               {"[DATEILISTE]", LeseDateiliste},
                                               {"[HILFE]", LeseHilfe}}};

} // namespace

void SchreibeStandard(WertSchreiber& schreiber) {
    schreiber.Text("[STANDARD]");
    PlaetzeSchreiben(schreiber, standard);
}

void LeseStandard(WertLeser& leser) {
    PlaetzeLesen(leser, standard);
}

void SchreibeStandard2(WertSchreiber& schreiber) {
    schreiber.Text("[STANDARD2]");
    PlaetzeSchreiben(schreiber, standard2);
}

void LeseStandard2(WertLeser& leser) {
    PlaetzeLesen(leser, standard2);
}

void SchreibeDateiliste(WertSchreiber& schreiber) {
    schreiber.Text("[DATEILISTE]");
    PlaetzeSchreiben(schreiber, dateiliste);
}

void LeseDateiliste(WertLeser& leser) {
    PlaetzeLesen(leser, dateiliste);
}

std::string EinstellungenBytes() {
    WertSchreiber schreiber;
    SchreibeStandard(schreiber);
    SchreibeStandard2(schreiber);
    SchreibeDateiliste(schreiber);
    SchreibeHilfe(schreiber);
    return schreiber.bytes();
}

void EinstellungenAusBytes(std::string_view bytes) {
    WertLeser leser(bytes);
    AbschnitteLesen(leser, abschnitte);
}
