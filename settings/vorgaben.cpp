#include "settings/vorgaben.h"

#include "core/laufzeitfehler.h"

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

Vorgaben VorgabenAus(const Spielwerte& spiel) {
    Vorgaben vorgaben{spiel.Punkte, spiel.Felder, {}, {}};
    StandardHolen(vorgaben, spiel);
    return vorgaben;
}

void StandardHolen(Vorgaben& vorgaben, const Spielwerte& spiel) {
    vorgaben.PunkteV = spiel.PunkteV;
    vorgaben.FelderV = spiel.FelderV;
    vorgaben.FelderV[Spezialart::Ereignis] = Zahl(spiel.FelderVE);
}

void VorgabenUebernehmen(const Vorgaben& vorgaben, Spielwerte& spiel) {
    spiel.Punkte = vorgaben.Punkte;
    spiel.Felder = vorgaben.Felder;
}

void StandardUebernehmen(const Vorgaben& vorgaben, Spielwerte& spiel) {
    spiel.PunkteV = vorgaben.PunkteV;
    spiel.FelderV = vorgaben.FelderV;
    spiel.FelderVE = std::to_string(vorgaben.FelderV[Spezialart::Ereignis]);
    spiel.FelderV[Spezialart::Ereignis] = 0; // not used
}

void RegelnZuruecksetzen(const Spielwerte& vorher, Spielwerte& spiel) {
    spiel.FragenProWissen = vorher.FragenProWissen;
    spiel.AnzahlWissen = vorher.AnzahlWissen;
    spiel.OptionMaxFelder = vorher.OptionMaxFelder;
    spiel.OptionMaxWissen = vorher.OptionMaxWissen;
    spiel.OptionMaxSpezial = vorher.OptionMaxSpezial;
}

void GesamtRechnen(Spielwerte& spiel) {
    spiel.FelderGesamt = Zaehler(static_cast<long long>(spiel.FragenProWissen) * spiel.AnzahlWissen);
}

bool Drehen(std::int16_t& wert, Richtung richtung, std::int16_t hoechstens) {
    const bool hoch = richtung == Richtung::Hoch;
    if (hoch ? wert >= hoechstens : wert <= 0) {
        return false;
    }
    wert = static_cast<std::int16_t>(hoch ? wert + 1 : wert - 1);
    return true;
}
