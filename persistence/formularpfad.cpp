#include "persistence/formularpfad.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/zustand.h"
#include "quizform/formdaten.h"
#include "testform/formdaten.h"

namespace {

struct Gemerkt {
    std::string pfad;
    QString nativ;
};
Gemerkt gemerkt;

std::string& PfadVon(std::string_view tag) {
    return tag == "HBFragen" ? HBDateiName : FKDateiName;
}

} // namespace

void FormularpfadMerken(std::string_view tag) {
    PfadVon(tag) = DateiName;
    gemerkt = {DateiName, NativerPfad(DateiName)};
}

void FormularpfadVergessen(std::string_view tag) {
    PfadVon(tag).clear();
}

void FormularpfadEinsetzen(std::string_view tag) {
    DateiName = PfadVon(tag);
    if (!DateiName.empty() && DateiName == gemerkt.pfad) {
        AuswahlMerken(DateiName, gemerkt.nativ);
        if (NativerPfad(DateiName) != gemerkt.nativ && DateiDa(DateiName)) {
            DateiName.clear(); // the file has gone and another one answers to its name: a save asks for one
        }
    }
}
