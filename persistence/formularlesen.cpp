#include "persistence/formularlesen.h"
#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "filetools/formularliste.h"
#include "persistence/formulardatei.h"
#include "persistence/oeffnen.h"
#include "persistence/texte.h"
#include "persistence/wartezeiger.h"

#include <optional>

namespace {

using namespace persistenztexte;

// A damaged file may hold any number of bad values: each costs a box, so the later ones go without.
constexpr int hoechstensKaesten = 10;

void Fehlerkasten(const Laufzeitfehler& fehler) {
    Systemkasten(Kastenart::Schlicht, fehlerTitel,
                 Einsetzen(fehlerStelle, {std::to_string(fehler.nummer()), std::to_string(fehler.zeile())}));
}

// What the user wants after the file could not be opened.
enum class Danach : std::uint8_t { NochEinmal, AndereDatei, Aufhoeren };

Danach OeffnenGescheitert(const Laufzeitfehler& fehler) {
    Fehlerkasten(fehler);
    switch (fehler.art()) {
    case Fehler::GeraetEA:
    case Fehler::GeraetFehlt:
    case Fehler::LaufwerkNichtBereit:
    case Fehler::MediumFehler:
        return Systemkasten(Kastenart::Ausruf, fehlerTitel, laufwerk, true) ? Danach::NochEinmal
                                                                            : Danach::Aufhoeren;
    case Fehler::DateinameFalsch:
    case Fehler::DateiNichtGefunden:
    case Fehler::ZugriffVerweigert:
    case Fehler::PfadZugriff:
    case Fehler::PfadNichtGefunden:
        Systemkasten(Kastenart::Frage, fehlerTitel, nameFalsch);
        return Danach::AndereDatei;
    default:
        // Trying again would fail for ever: a file that is too large doesn't shrink.
        return Danach::Aufhoeren;
    }
}

// The bytes of DateiName. A form beyond the size is error 7; of another file its beginning is enough to tell
// that it is no form.
std::string FormularDatei() {
    std::string bytes = DateiLesen(DateiName);
    if (bytes.size() <= groesstesFormular) {
        return bytes;
    }
    constexpr std::size_t anfang = 64;
    if (IstFormular(std::string_view(bytes).substr(0, anfang))) {
        throw Laufzeitfehler(Fehler::SpeicherVoll);
    }
    return bytes.substr(0, anfang);
}

// The bytes of DateiName, or nothing after the user was told why not.
std::optional<std::string> Bytes() {
    Danach danach = Danach::NochEinmal;
    while (danach == Danach::NochEinmal) {
        try {
            const Wartezeiger warten;
            return FormularDatei();
        } catch (const Laufzeitfehler& fehler) {
            danach = OeffnenGescheitert(fehler);
        }
    }
    if (danach == Danach::AndereDatei) {
        FormularOeffnen(); // loads the other file by itself
    }
    return std::nullopt;
}

void AblehnungMelden(const std::string& kennung) {
    if (kennung == "FK") {
        Meldung(testOffen);
    } else if (kennung == "Test") {
        Meldung(quizOffen);
    }
}

FormularErgebnis Auswerten(const std::string& bytes) {
    int kaesten = 0;
    return FormularAusBytes(bytes, [&kaesten](const Laufzeitfehler& fehler) {
        if (++kaesten <= hoechstensKaesten) {
            Fehlerkasten(fehler);
        }
    });
}

} // namespace

Lesung FormularEinlesen(const std::function<bool()>& vorDemErsatz) {
    const std::optional<std::string> bytes = Bytes();
    if (!bytes) {
        return Lesung::Nichts;
    }
    if (vorDemErsatz && FormularAnnehmbar(*bytes) && !vorDemErsatz()) {
        return Lesung::Nichts;
    }
    const FormularErgebnis ergebnis = Auswerten(*bytes);
    if (ergebnis.begonnen() && (ergebnis.kennung == "FK" || ergebnis.kennung == "Test")) {
        FlaggeZeigen(ergebnis.kennung == "Test");
        FormularlisteTastenSetzen(ergebnis.kennung);
    }
    if (ergebnis.fehler) {
        Fehlerkasten(*ergebnis.fehler);
        Systemkasten(Kastenart::Schlicht, fehlerTitel, dateiZuKurz);
        return ergebnis.begonnen() ? Lesung::Teilweise : Lesung::Nichts;
    }
    if (ergebnis.code == 2) {
        AblehnungMelden(ergebnis.kennung);
        return Lesung::Abgelehnt;
    }
    return ergebnis.code == 1 ? Lesung::KeinFormular : Lesung::Ganz;
}

int FormularLesen() {
    switch (FormularEinlesen()) {
    case Lesung::Ganz:
        return 0;
    case Lesung::KeinFormular:
        return 1;
    case Lesung::Abgelehnt:
        return 2;
    default:
        return -1;
    }
}
