#include "persistence/fremdfrage.h"

#include "core/pfadname.h"
#include "core/wartezeiger.h"
#include "dialogs/meldung.h"
#include "persistence/dateiblick.h"
#include "persistence/texte.h"
#include "rules/spielwerte.h"

namespace {

using namespace persistenztexte;

Dateistand Nachsehen(const std::string& pfad) {
    const Wartezeiger warten;
    return StandAuf(pfad);
}

// A Ja holds for what stood there when it was asked for. Closing the question by its frame is Abbrechen.
Antwort Fragen(const std::string& pfad, const Fremdworte& worte, Dateikenntnis& kenntnis) {
    for (;;) {
        const Dateistand gefunden = Nachsehen(pfad);
        const Fremdes fremdes = kenntnis.Urteil(gefunden);
        if (fremdes == Fremdes::Keines) {
            return Antwort::Ja;
        }
        const NachrichtText& frage = fremdes == Fremdes::Unlesbar ? fremdUnlesbar : fremdGeaendert;
        const Antwort antwort = Nachricht(frage, {worte.datei, NurDateiname(pfad), worte.nein});
        if (antwort == Antwort::Abbrechen) {
            Meldung(fremdesBleibt, {NurDateiname(pfad)});
        }
        if (antwort != Antwort::Ja) {
            return antwort;
        }
        kenntnis.Ergaenzen(gefunden);
    }
}

} // namespace

Dateikenntnis Angesehen(const std::string& pfad) {
    return Dateikenntnis(Nachsehen(pfad));
}

Antwort FremdesFragen(const std::string& pfad, const Fremdworte& worte, Dateikenntnis kenntnis,
                      void (*sichern)(const std::string& pfad)) {
    const Antwort antwort = Fragen(pfad, worte, kenntnis);
    if (antwort != Antwort::Ja || sichern == nullptr || !Spiel.OptionDatei) {
        return antwort;
    }
    sichern(pfad);
    return Fragen(pfad, worte, kenntnis);
}
