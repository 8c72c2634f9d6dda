#include "core/datei.h"
#include "core/pfadname.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "persistence/speichern.h"
#include "persistence/texte.h"
#include "settings/einstellungen.h"

namespace {

using namespace persistenztexte;

enum class Sicherung : std::uint8_t { Angelegt, Gescheitert, NichtsDa };

std::string Sicherungspfad() {
    const std::string endung = Dateiendung(NurDateiname(DateiName));
    return DateiName.substr(0, DateiName.size() - endung.size()) + ".BAK";
}

Sicherung Anlegen() {
    if (!DateiDa(DateiName)) {
        return Sicherung::NichtsDa;
    }
    const std::string ziel = Sicherungspfad();
    if (Grossschreiben(ziel) == Grossschreiben(DateiName)) {
        return Sicherung::Gescheitert; // an opened backup can't be its own backup
    }
    try {
        DateiKopieren(DateiName, ziel);
        return Sicherung::Angelegt;
    } catch (const Laufzeitfehler&) {
        return Sicherung::Gescheitert; // told by the caller; the save goes on
    }
}

void KeineMelden(std::string_view zusatz) {
    const std::string text = Einsetzen(keineSicherung.text, {NurDateiname(DateiName)}) + std::string(zusatz);
    Meldung(0, keineSicherung.bild, text, keineSicherung.nummer, keineSicherung.taste);
}

// The path less its last four characters, whatever they are: it is meant.
std::string OhneVierZeichen(std::string pfad) {
    for (int zeichen = 0; zeichen < 4 && !pfad.empty();) {
        zeichen += (static_cast<unsigned char>(pfad.back()) & 0xC0U) == 0x80U ? 0 : 1;
        pfad.pop_back();
    }
    return pfad;
}

} // namespace

void SicherungAnlegenForm() {
    if (OptionDatei != 1) {
        return;
    }
    const Sicherung ergebnis = Anlegen();
    if (ergebnis == Sicherung::Angelegt) {
        Meldung(sicherungAngelegt, {NurDateiname(Sicherungspfad())});
    } else {
        KeineMelden(ergebnis == Sicherung::NichtsDa ? dateiWarNeu : "");
    }
}

void SicherungAnlegenKatalog() {
    if (OptionDatei != 1) {
        return;
    }
    if (Anlegen() == Sicherung::Angelegt) {
        Meldung(gespeichert, {NurDateiname(DateiName)});
        Meldung(sicherungKatalog, {OhneVierZeichen(DateiName)});
    } else {
        KeineMelden("");
    }
}
