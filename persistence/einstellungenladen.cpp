#include "persistence/einstellungenladen.h"

#include "core/datei.h"
#include "core/zustand.h"
#include "persistence/einstellungsdatei.h"

namespace {

std::string Einstellungspfad() {
    return AppPfad + "\\CONFIG\\Feldkranz.INI";
}

} // namespace

void EinstellungenLesen() {
    EinstellungenAusBytes(DateiLesen(Einstellungspfad()));
}

void EinstellungenSchreiben() {
    DateiSchreiben(Einstellungspfad(), EinstellungenBytes());
}
