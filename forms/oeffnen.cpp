#include "forms/oeffnen.h"

#include "core/formularfenster.h"
#include "core/hauptfenster.h"
#include "core/pfad.h"
#include "core/pfadname.h"
#include "core/programmstand.h"
#include "dialogs/meldung.h"
#include "filetools/dateidialog.h"
#include "forms/formulare.h"
#include "forms/formularjournal.h"
#include "forms/formularlesen.h"
#include "forms/formularpfad.h"
#include "forms/rettung.h"
#include "forms/speichern.h"
#include "forms/verlauf.h"
#include "persistence/dateiliste.h"
#include "persistence/journal.h"
#include "persistence/journalname.h"
#include "persistence/rettungsname.h"
#include "persistence/texte.h"

#include <functional>

namespace {

using namespace persistenztexte;

// What was rescued comes back as a form without a file: a save must not go over the rescued one. Neither must
// it go unasked over a file that wasn't read to its end: what couldn't be read is still in there.
void PfadUebernehmen(Formart art, const std::string& pfad, bool ganz) {
    if (IstRettungsname(NurDateiname(pfad)) || IstJournalname(NurDateiname(pfad))) {
        FormularpfadVergessen(art);
    } else if (!ganz) {
        FormularpfadVergessen(art);
        NamenVorschlagen(pfad);
    } else {
        FormularpfadMerken(art, pfad);
        Formularkenntnis() = Dateikenntnis(GelesenerStand());
    }
}

// The form of a journal stands in no file yet.
void Begonnen(const std::string& pfad) {
    FormStatusSetzen(false);
    if (!IstJournalname(NurDateiname(pfad))) {
        JournalMelden(pfad);
        return;
    }
    GespeichertVergessen();
    FormStatusSetzen(true);
    if (JournalVerwaist(NativerPfad(pfad))) {
        FormularjournalUebernehmen(pfad);
    }
}

// ganz: the file was read to its end.
void Zeigen(Formart art, const std::string& pfad, bool ganz) {
    if (art == Formart::Quiz) {
        if (!IstJournalname(NurDateiname(pfad))) { // that one goes
            DateilisteErgaenzen(Spiel.Datei, pfad);
            DateilisteAnzeigen();
        }
        GelesenesZeigen(art, NurDateiname(pfad) + " ");
    } else {
        GelesenesZeigen(art, " Test : " + NurDateiname(pfad));
    }
    PfadUebernehmen(art, pfad, ganz);
    Begonnen(pfad);
}

// A tag of no kind opens no form, and a form that is open stays as it is.
void NichtsZeigen() {
    Stand.FormTyp = OffeneArt();
    if (Stand.FormTyp == Formart::Keine) {
        FormStatusSetzen(false);
    }
}

// True when the file was taken.
bool Laden(const std::string& pfad, const std::function<bool()>& vorDemErsatz) {
    if (pfad.empty()) {
        Meldung(keineDatei);
        return false;
    }
    const Lesung lesung = FormularEinlesen(pfad, vorDemErsatz);
    if (lesung == Lesung::KeinFormular) {
        Meldung(keinFormular);
    }
    if (lesung != Lesung::Ganz && lesung != Lesung::Teilweise && lesung != Lesung::Leer) {
        return false;
    }
    if (Stand.FormTyp == Formart::Quiz || Stand.FormTyp == Formart::Test) {
        Zeigen(Stand.FormTyp, pfad, lesung == Lesung::Ganz);
    } else {
        NichtsZeigen();
    }
    return true;
}

} // namespace

void FormularOeffnen() {
    if (Stand.FormGeaendert && !AuswertungSpeichernFragen()) {
        return;
    }
    const auto gewaehlt =
        DateidialogZeigen({std::string(oeffnen),
                           false,
                           {"Feldkranz-Formular (*.FKR)", "Feldkranz-Formular (*.BAK)", "Alle Dateien (*.*)"},
                           {"*.fkr", "*.*"},
                           "*.FKR",
                           "",
                           "",
                           true,
                           Formulardatei(OffeneArt())});
    FormularLaden(gewaehlt.value_or(""));
}

void FormularLaden(const std::string& pfad) {
    Stand.FormTyp = OffeneArt(); // without a form the list of forms may have set one
    Laden(pfad, {});
}

void GelistetesOeffnen(const std::string& pfad) {
    if (!Stand.FormGeaendert || AuswertungSpeichernFragen()) {
        FormularLaden(pfad);
    }
}

bool FormularErsetzen(const std::string& pfad) {
    if (const Formart art = OffeneArt(); art != Formart::Keine) {
        Stand.FormTyp = art; // the list's buttons may have set another one
    }
    std::string gerettet;
    const bool genommen = Laden(pfad, [&] { return UngesichertesRetten(pfad, gerettet); });
    if (!gerettet.empty()) {
        HilfeText(Einsetzen(rettungsort, {gerettet}));
    }
    return genommen;
}
