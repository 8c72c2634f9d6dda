#include "persistence/sicherung.h"

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/pfadname.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "persistence/texte.h"
#include "rules/spielwerte.h"

namespace {

using namespace persistenztexte;

enum class Sicherung : std::uint8_t { Angelegt, Gescheitert, NichtsDa };

std::string Sicherungspfad(const std::string& pfad) {
    const std::string endung = Dateiendung(NurDateiname(pfad));
    return pfad.substr(0, pfad.size() - endung.size()) + ".BAK";
}

Sicherung Anlegen(const std::string& pfad) {
    const Wartezeiger warten;
    if (!DateiDa(pfad)) {
        return Sicherung::NichtsDa;
    }
    const std::string ziel = Sicherungspfad(pfad);
    if (Grossschreiben(ziel) == Grossschreiben(pfad)) {
        return Sicherung::Gescheitert; // an opened backup can't be its own backup
    }
    try {
        DateiKopieren(pfad, ziel);
        return Sicherung::Angelegt;
    } catch (const Laufzeitfehler&) {
        return Sicherung::Gescheitert; // told by the caller; the save goes on
    }
}

void KeineMelden(const std::string& pfad, std::string_view zusatz) {
    const std::string text = std::string(keineSicherung.text) + std::string(zusatz);
    MeldungsText meldung = keineSicherung;
    meldung.text = text;
    Meldung(meldung, {NurDateiname(pfad)});
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

void SicherungAnlegenForm(const std::string& pfad) {
    if (!Spiel.OptionDatei) {
        return;
    }
    const Sicherung ergebnis = Anlegen(pfad);
    if (ergebnis == Sicherung::Angelegt) {
        Meldung(sicherungAngelegt, {NurDateiname(Sicherungspfad(pfad))});
    } else {
        KeineMelden(pfad, ergebnis == Sicherung::NichtsDa ? dateiWarNeu : "");
    }
}

void SicherungVorLeerung(const std::string& pfad) {
    if (Spiel.OptionDatei) {
        return; // there is one anyway
    }
    const Sicherung ergebnis = Anlegen(pfad);
    if (ergebnis == Sicherung::Angelegt) {
        HilfeText(Einsetzen(geleertGesichert, {NurDateiname(Sicherungspfad(pfad))}));
    } else if (ergebnis == Sicherung::Gescheitert) {
        HilfeText(geleertVerloren);
    }
}

void SicherungAnlegenKatalog(const std::string& pfad) {
    if (!Spiel.OptionDatei) {
        return;
    }
    if (Anlegen(pfad) == Sicherung::Angelegt) {
        Meldung(gespeichert, {NurDateiname(pfad)});
        Meldung(sicherungKatalog, {OhneVierZeichen(pfad)});
    } else {
        KeineMelden(pfad, "");
    }
}
