#include "forms/formularpfad.h"

#include "core/datei.h"
#include "core/pfad.h"
#include "core/programmstand.h"
#include "filetools/dateidialog.h"
#include "forms/formulare.h"

#include <QFileInfo>

#include <map>

namespace {

struct Gemerkt {
    std::string pfad;
    QString nativ;
};
Gemerkt gemerkt;
Dateikenntnis kenntnis;
std::string vorschlag;

std::map<Formart, std::string> gewaehlteOrdner;

// A form that stands where the dialog was left with a file came there by it.
void OrdnerwahlMerken(Formart art, const QString& datei) {
    const std::string& ordner = DateidialogOrdner();
    if (!ordner.empty() && QFileInfo(datei).path() == NativerPfad(ordner)) {
        gewaehlteOrdner[art] = ordner;
    }
}

} // namespace

void FormularpfadMerken(Formart art, const std::string& pfad) {
    Formulardatei(art) = pfad;
    gemerkt = {pfad, NativerPfad(pfad)};
    vorschlag.clear();
    OrdnerwahlMerken(art, gemerkt.nativ);
}

Dateikenntnis& Formularkenntnis() {
    return kenntnis;
}

void FormularpfadVergessen(Formart art) {
    Formulardatei(art).clear();
    kenntnis = {};
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

QString NativesFormular(Formart art) {
    const std::string& pfad = Formulardatei(art);
    if (pfad.empty()) {
        return QString();
    }
    return pfad == gemerkt.pfad ? gemerkt.nativ : NativerPfad(pfad);
}

std::string Startordner(Formart art) {
    const auto gewaehlt = gewaehlteOrdner.find(art);
    return gewaehlt != gewaehlteOrdner.end() && OrdnerDa(gewaehlt->second)
               ? gewaehlt->second
               : Stand.AppPfad + std::string(Formularordner(art));
}
