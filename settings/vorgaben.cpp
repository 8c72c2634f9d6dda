#include "settings/vorgaben.h"

#include "core/laufzeitfehler.h"
#include "quizform/spezialfelder.h"
#include "settings/einstellungen.h"

#include <charconv>
#include <optional>
#include <string>

namespace {

// The one standard value that may hold nothing, or whatever a file held there: without a number it counts 0.
std::int16_t Zahl(const std::optional<std::string>& wert) {
    std::int16_t zahl = 0;
    if (wert) {
        std::from_chars(wert->data(), wert->data() + wert->size(), zahl);
    }
    return zahl;
}

} // namespace

void VorgabenHolen() {
    VorgabePunkte = {PunkteA, PunkteE, PunkteG, PunkteJ, PunkteR};
    VorgabeFelder = {FelderA, FelderE, FelderG, FelderJ, FelderR};
    StandardHolen();
}

void StandardHolen() {
    StdPunkte = {PunkteVA, PunkteVE, PunkteVG, PunkteVJ, PunkteVR};
    StdFelder = {FelderVA, Zahl(FelderVE), FelderVG, FelderVJ, FelderVR};
}

void VorgabenUebernehmen() {
    const auto [punkteA, punkteE, punkteG, punkteJ, punkteR] = VorgabePunkte;
    PunkteA = punkteA;
    PunkteE = punkteE;
    PunkteG = punkteG;
    PunkteJ = punkteJ;
    PunkteR = punkteR;
    const auto [felderA, felderE, felderG, felderJ, felderR] = VorgabeFelder;
    FelderA = felderA;
    FelderE = felderE;
    FelderG = felderG;
    FelderJ = felderJ;
    FelderR = felderR;
}

void StandardUebernehmen() {
    const auto [punkteA, punkteE, punkteG, punkteJ, punkteR] = StdPunkte;
    PunkteVA = punkteA;
    PunkteVE = punkteE;
    PunkteVG = punkteG;
    PunkteVJ = punkteJ;
    PunkteVR = punkteR;
    const auto [felderA, felderE, felderG, felderJ, felderR] = StdFelder;
    FelderVA = felderA;
    FelderVE = std::to_string(felderE);
    FelderVG = felderG;
    FelderVJ = felderJ;
    FelderVR = felderR;
}

Schnappschuss SchnappschussNehmen() {
    return {FragenProWissen, AnzahlWissen, OptionMaxFelder, OptionMaxWissen, OptionMaxSpezial};
}

void SchnappschussZurueck(const Schnappschuss& schnappschuss) {
    FragenProWissen = schnappschuss.fragenProWissen;
    AnzahlWissen = schnappschuss.anzahlWissen;
    OptionMaxFelder = schnappschuss.optionMaxFelder;
    OptionMaxWissen = schnappschuss.optionMaxWissen;
    OptionMaxSpezial = schnappschuss.optionMaxSpezial;
}

void GesamtRechnen() {
    FelderGesamt = Zaehler(static_cast<long long>(FragenProWissen) * AnzahlWissen);
}

bool Drehen(std::int16_t& wert, Richtung richtung, std::int16_t hoechstens) {
    const bool hoch = richtung == Richtung::Hoch;
    if (hoch ? wert >= hoechstens : wert <= 0) {
        return false;
    }
    wert = static_cast<std::int16_t>(hoch ? wert + 1 : wert - 1);
    return true;
}
