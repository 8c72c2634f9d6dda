#include "forms/formularpfad.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "forms/formulare.h"

namespace {

struct Gemerkt {
    std::string pfad;
    QString nativ;
};
Gemerkt gemerkt;
std::string vorschlag;

} // namespace

void FormularpfadMerken(Formart art, const std::string& pfad) {
    Formulardatei(art) = pfad;
    gemerkt = {pfad, NativerPfad(pfad)};
    vorschlag.clear();
}

void FormularpfadVergessen(Formart art) {
    Formulardatei(art).clear();
    vorschlag.clear();
}

void NamenVorschlagen(const std::string& pfad) {
    vorschlag = pfad;
}

std::string Namensvorschlag(Formart art) {
    const std::string eigener = Formularpfad(art);
    return eigener.empty() ? vorschlag : eigener;
}

std::string Formularpfad(Formart art) {
    std::string pfad = Formulardatei(art);
    if (!pfad.empty() && pfad == gemerkt.pfad) {
        AuswahlMerken(pfad, gemerkt.nativ);
        if (NativerPfad(pfad) != gemerkt.nativ && DateiDa(pfad)) {
            return {}; // the file has gone and another one answers to its name: a save asks for one
        }
    }
    return pfad;
}
