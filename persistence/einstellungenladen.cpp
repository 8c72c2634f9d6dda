#include "persistence/einstellungenladen.h"

#include "core/datei.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "persistence/dateiblick.h"
#include "persistence/einstellungsdatei.h"

#include <utility>

namespace {

// Its texts stand in menus, which a longer file would choke; it is no settings file of ours.
constexpr std::size_t groessteEinstellungen = std::size_t{1} << 20U;

constexpr std::string_view ohneEndung = "\\CONFIG\\Feldkranz";

struct Bekannt {
    std::string pfad;
    Dateikenntnis kenntnis;
};
Bekannt bekannt;

// Of another program folder's file nothing is known.
Dateikenntnis& Kenntnis() {
    if (std::string pfad = Einstellungspfad(); pfad != bekannt.pfad) {
        bekannt = {std::move(pfad), {}};
    }
    return bekannt.kenntnis;
}

// The first name that is free or holds that content already.
std::string Aufhebepfad(const Dateistand& inhalt) {
    constexpr int hoechstens = 10; // a broken disk would show none but these for ever
    int unlesbare = 0;
    return FreierPfad(Stand.AppPfad + std::string(ohneEndung) + ".BAK", [&](const std::string& pfad) {
        const Dateistand da = StandAuf(pfad);
        if (da.art == Dateistand::Art::Unlesbar && ++unlesbare > hoechstens) {
            throw Laufzeitfehler(Fehler::PfadZugriff);
        }
        return da.art == Dateistand::Art::Nichts || da == inhalt;
    });
}

} // namespace

std::string Einstellungspfad() {
    return Stand.AppPfad + std::string(ohneEndung) + ".INI";
}

const Dateikenntnis& Einstellungskenntnis() {
    return Kenntnis();
}

void EinstellungenLesen() {
    const std::string bytes = DateiLesen(Einstellungspfad(), groessteEinstellungen);
    Kenntnis() = Dateikenntnis(StandVon(bytes));
    EinstellungenAusBytes(bytes, Spiel);
}

void EinstellungenSchreiben() {
    BekanntSchreiben(Einstellungspfad(), EinstellungenBytes(Spiel), Kenntnis());
}

void FremdeEinstellungenAufheben() {
    if (Kenntnis().Urteil(StandAuf(Einstellungspfad())) == Fremdes::Keines) {
        return;
    }
    const std::string bytes = DateiLesen(Einstellungspfad());
    if (const std::string ziel = Aufhebepfad(StandVon(bytes)); !DateiDa(ziel)) {
        DateiSchreiben(ziel, bytes);
    }
}
