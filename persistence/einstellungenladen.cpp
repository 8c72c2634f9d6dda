#include "persistence/einstellungenladen.h"

#include "core/datei.h"
#include "core/programmstand.h"
#include "persistence/einstellungsdatei.h"

namespace {

// Its texts stand in menus, which a longer file would choke; it is no settings file of ours.
constexpr std::size_t groessteEinstellungen = std::size_t{1} << 20U;

std::string Einstellungspfad() {
    return Stand.AppPfad + "\\CONFIG\\Feldkranz.INI";
}

} // namespace

void EinstellungenLesen() {
    EinstellungenAusBytes(DateiLesen(Einstellungspfad(), groessteEinstellungen), Spiel);
}

void EinstellungenSchreiben() {
    DateiSchreiben(Einstellungspfad(), EinstellungenBytes(Spiel));
}
