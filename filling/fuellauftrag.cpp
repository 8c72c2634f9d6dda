#include "filling/fuellauftrag.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <utility>

namespace {

bool Passt(const Fuellfeld& feld, Fragennummer nr) {
    return feld.lage == Feldlage::Leer &&
           std::binary_search(feld.kandidaten.begin(), feld.kandidaten.end(), nr);
}

// Some question of the proposal, but for that cell's own, says the same.
bool Stoert(const Fuellauftrag& auftrag, const Vorschlag& vorschlag, std::size_t feld, Fragennummer nr) {
    for (std::size_t n = 1; n < vorschlag.size(); ++n) {
        if (n != feld && vorschlag[n] && auftrag.vorrat->wiederholt(*vorschlag[n], nr)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::size_t Fuellauftrag::leere() const {
    return static_cast<std::size_t>(std::count_if(
        felder.begin(), felder.end(), [](const Fuellfeld& f) { return f.lage == Feldlage::Leer; }));
}

std::size_t Anzahl(const Vorschlag& vorschlag) {
    return static_cast<std::size_t>(
        std::count_if(vorschlag.begin(), vorschlag.end(), [](const auto& nr) { return nr.has_value(); }));
}

Vorschlag Bereinigt(const Fuellauftrag& auftrag, Vorschlag vorschlag) {
    vorschlag.resize(auftrag.felder.size());
    for (std::size_t n = 1; n < vorschlag.size(); ++n) {
        if (vorschlag[n] && !Passt(auftrag.felder[n], *vorschlag[n])) {
            vorschlag[n].reset();
        }
    }
    return vorschlag;
}

Vorschlag Uebertragen(const Fragenvorrat& alt, const Fragenvorrat& neu, Vorschlag vorschlag) {
    std::map<std::pair<std::string_view, std::string_view>, Fragennummer> nummern;
    for (Fragennummer nr = 0; nr < neu.anzahl(); ++nr) {
        nummern.emplace(std::pair(neu.frage(nr).frage, neu.frage(nr).antwort), nr);
    }
    for (auto& nr : vorschlag) {
        if (nr) {
            const auto fund = nummern.find(std::pair(alt.frage(*nr).frage, alt.frage(*nr).antwort));
            nr = fund == nummern.end() ? std::nullopt : std::optional(fund->second);
        }
    }
    return vorschlag;
}

bool NeuZiehen(const Fuellauftrag& auftrag, Vorschlag& vorschlag, std::size_t feld, std::uint64_t saat) {
    const Fragenvorrat& vorrat = *auftrag.vorrat;
    Frageliste liste = auftrag.felder[feld].kandidaten;
    Wuerfel wuerfel(saat);
    wuerfel.Mischen(liste);
    const auto bisher = vorschlag[feld];
    const auto andere = std::find_if(liste.begin(), liste.end(), [&](Fragennummer nr) {
        const bool punkteRecht =
            !auftrag.punkteBleiben || !bisher || vorrat.punkte(*bisher) == vorrat.punkte(nr);
        return punkteRecht && !(bisher && vorrat.wiederholt(*bisher, nr)) &&
               !Stoert(auftrag, vorschlag, feld, nr);
    });
    if (auftrag.felder[feld].lage != Feldlage::Leer || andere == liste.end()) {
        return false;
    }
    vorschlag[feld] = *andere;
    return true;
}

std::size_t Passende(const Fuellauftrag& auftrag, std::size_t erstes, std::size_t letztes) {
    std::vector<bool> passt(auftrag.vorrat->anzahl(), false);
    for (std::size_t n = erstes; n <= letztes; ++n) {
        for (const Fragennummer nr : auftrag.felder[n].kandidaten) {
            passt[nr] = true;
        }
    }
    return static_cast<std::size_t>(std::count(passt.begin(), passt.end(), true));
}
