#include "printing/feldwert.h"

#include "rules/spezialfelder.h"

const Artzeile* Feldart(const FKDruckfeld& feld) {
    const auto art = feld.frageSichtbar ? ArtVon(feld.spezial) : std::nullopt;
    return art ? &ArtzeileVon(*art) : nullptr;
}

bool HatWort(const Artzeile* art) {
    return art != nullptr && !art->druckWort.empty();
}

std::string Feldwert(const Artzeile* art, const Artwerte& punkte, int zeile) {
    if (art == nullptr) {
        return std::to_string(zeile);
    }
    if (punkte[art->druckBedingung] > 0) {
        return std::to_string(punkte[art->art]);
    }
    return art->druckErsatz == Druckersatz::Fragezeichen ? "?" : std::to_string(zeile);
}
