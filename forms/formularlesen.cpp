#include "forms/formularlesen.h"

#include "core/datei.h"
#include "core/hauptfenster.h"
#include "core/programmstand.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "editor/editordaten.h"
#include "filetools/formularliste.h"
#include "forms/formulare.h"
#include "forms/oeffnen.h"
#include "persistence/dateiblick.h"
#include "persistence/formulardatei.h"
#include "persistence/texte.h"
#include "rules/wertebereiche.h"

#include <optional>
#include <utility>

namespace {

using namespace persistenztexte;

// A damaged file may hold any number of bad values: each costs a box, so the later ones go without.
constexpr int hoechstensKaesten = 10;

Dateistand gelesenerStand;

void Fehlerkasten(const Laufzeitfehler& fehler) {
    Systemkasten(Kastenart::Schlicht, fehlerTitel,
                 Einsetzen(fehlerStelle, {std::to_string(fehler.nummer()), std::to_string(fehler.zeile())}));
}

void Abbruch(const Laufzeitfehler& fehler) {
    Fehlerkasten(fehler);
    Systemkasten(Kastenart::Schlicht, fehlerTitel, dateiZuKurz);
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

// The bytes of the file. A form beyond the size is error 7; of another file its beginning is enough to tell
// that it is no form.
std::string FormularDatei(const std::string& pfad) {
    std::string bytes = DateiLesen(pfad);
    if (bytes.size() <= groesstesFormular) {
        return bytes;
    }
    constexpr std::size_t anfang = 64;
    if (IstFormular(std::string_view(bytes).substr(0, anfang))) {
        throw Laufzeitfehler(Fehler::SpeicherVoll);
    }
    return bytes.substr(0, anfang);
}

// The bytes of the file, or nothing after the user was told why not.
std::optional<std::string> Bytes(const std::string& pfad) {
    Danach danach = Danach::NochEinmal;
    while (danach == Danach::NochEinmal) {
        try {
            const Wartezeiger warten;
            std::string bytes = FormularDatei(pfad);
            gelesenerStand = StandVon(bytes);
            return bytes;
        } catch (const Laufzeitfehler& fehler) {
            danach = OeffnenGescheitert(fehler);
        }
    }
    if (danach == Danach::AndereDatei) {
        FormularOeffnen(); // loads the other file by itself
    }
    return std::nullopt;
}

// Only for the kinds that there are.
void AblehnungMelden(Formart kennung) {
    if (kennung == Formart::Quiz) {
        Meldung(testOffen);
    } else if (kennung == Formart::Test) {
        Meldung(quizOffen);
    }
}

FormularErgebnis Auswerten(const std::string& bytes, Formularwerte& werte) {
    int kaesten = 0;
    return FormularAusBytes(bytes, Stand.FormTyp, werte, [&kaesten](const Laufzeitfehler& fehler) {
        if (++kaesten <= hoechstensKaesten) {
            Fehlerkasten(fehler);
        }
    });
}

// An empty form of either kind, so that what the file doesn't give is empty, and the values in force.
Formularwerte Anfangswerte() {
    Formularwerte werte{Stand.FormTyp, {}, {}, Spiel, Editor.Bemerkung};
    werte.quiz.FeldPunkte = FKForm.FeldPunkte; // those of the board, in no file
    return werte;
}

// What was read is in force, also where the reading was cut short. A file with a tag of no kind shows
// nothing, and so it changes nothing.
void Uebernehmen(Formularwerte&& werte, bool leer) {
    Stand.FormTyp = werte.art;
    if (werte.art != Formart::Quiz && werte.art != Formart::Test && !leer) {
        return;
    }
    BrettEinhalten(werte.spiel);
    FKForm = std::move(werte.quiz);
    HBForm = std::move(werte.test);
    Spiel = std::move(werte.spiel);
    Editor.Bemerkung = std::move(werte.Bemerkung);
}

} // namespace

Lesung FormularEinlesen(const std::string& pfad, const std::function<bool()>& vorDemErsatz) {
    const std::optional<std::string> bytes = Bytes(pfad);
    if (!bytes) {
        return Lesung::Nichts;
    }
    if (vorDemErsatz && FormularAnnehmbar(*bytes, Stand.FormTyp) && !vorDemErsatz()) {
        return Lesung::Nichts;
    }
    Formularwerte werte = Anfangswerte();
    const FormularErgebnis ergebnis = Auswerten(*bytes, werte);
    if (ergebnis.ende == Leseende::KeinFormular) {
        return Lesung::KeinFormular;
    }
    if (ergebnis.ende == Leseende::Abgelehnt) {
        AblehnungMelden(ergebnis.kennung);
        return Lesung::Abgelehnt;
    }
    if (ergebnis.fehler && !ergebnis.begonnen()) {
        Abbruch(*ergebnis.fehler);
        return Lesung::Nichts; // cut short inside its head: no form begins there
    }
    Uebernehmen(std::move(werte), bytes->empty());
    if (ergebnis.begonnen() && ergebnis.kennung != Formart::Fremd) {
        FlaggeZeigen(ergebnis.kennung == Formart::Test);
        FormularlisteTastenSetzen(ergebnis.kennung);
    }
    if (ergebnis.fehler) {
        Abbruch(*ergebnis.fehler);
        return Lesung::Teilweise;
    }
    return bytes->empty() ? Lesung::Leer : Lesung::Ganz;
}

const Dateistand& GelesenerStand() {
    return gelesenerStand;
}
