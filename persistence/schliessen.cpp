#include "core/hauptfenster.h"
#include "core/zustand.h"
#include "dialogs/meldung.h"
#include "persistence/speichern.h"
#include "persistence/texte.h"
#include "quizform/fkformular.h"
#include "quizform/formdaten.h"
#include "testform/hbformular.h"

namespace {

using namespace persistenztexte;

// Brings the stored copy up to date and saves it.
bool MergenUndSpeichern() {
    FK_Merken();
    HB_Merken();
    return Speichern();
}

void BefehleZuruecknehmen(std::string_view tag) {
    if (tag == "HBFragen") {
        BefehleHBFreigeben(false);
    } else {
        BefehleFKFreigeben(false);
    }
    for (int n = 1; n <= anzahlFelder; ++n) {
        MiniaturFaerben(n, std::nullopt);
    }
    FormStatusSetzen(0);
    FlaggeZeigen(true);
}

} // namespace

int AuswertungSpeichernFragen() {
    do {
        NachrichtAntwort = antwortAbbrechen;
        Nachricht(aenderungen);
        if (NachrichtAntwort == antwortAbbrechen) {
            return 1;
        }
    } while (NachrichtAntwort != antwortJa && NachrichtAntwort != antwortNein);
    if (NachrichtAntwort == antwortNein) {
        Meldung(nichtGespeichert);
        return 0;
    }
    if (!MergenUndSpeichern()) {
        return 1; // a save that did not come about counts as Abbrechen
    }
    Meldung(wurdeGespeichert);
    return 0;
}

int SchliessenPruefen(std::string_view tag) {
    if (FormGeaendert == 1) {
        NachrichtAntwort = antwortAbbrechen;
        Nachricht(schliessen);
        if (NachrichtAntwort == antwortAbbrechen) {
            return 1;
        }
        if (NachrichtAntwort == antwortJa && !MergenUndSpeichern()) {
            return 1;
        }
    }
    BefehleZuruecknehmen(tag);
    return 2;
}
