#include "filling/fragenvorrat.h"

#include <algorithm>
#include <charconv>

namespace {

constexpr std::string_view ereignisthema = "- Ereignisse -";

// The number at the head of the catalogue's text; 0 where there is none.
int Punktzahl(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    int zahl = 0;
    std::from_chars(text.data(), text.data() + text.size(), zahl);
    return std::max(zahl, 0);
}

bool Gehoert(const Bestandsdatei& datei, const Themenwahl& wahl) {
    if (wahl.thema.empty()) {
        return IstFragenthema(datei.thema);
    }
    return datei.thema == wahl.thema && (wahl.unterthema.empty() || datei.unterthema == wahl.unterthema);
}

} // namespace

bool IstFragenthema(std::string_view thema) {
    return thema != aufgabenthema && thema != ereignisthema;
}

Fragenvorrat::Fragenvorrat(std::shared_ptr<const Fragenbestand> bestand,
                           const std::function<bool(std::string_view)>& benutzt)
    : bestand_(std::move(bestand)) {
    eintraege_.reserve(bestand_->anzahl());
    for (std::size_t nr = 0; nr < bestand_->anzahl(); ++nr) {
        const Katalogfrage frage = bestand_->frage(nr);
        eintraege_.push_back({WortanfaengeVon(frage.frage), Punktzahl(frage.punkte), benutzt(frage.frage)});
    }
}

Frageliste Fragenvorrat::aus(const Themenwahl& wahl) const {
    Frageliste liste;
    const auto dateien = bestand_->dateien();
    for (std::size_t d = 0; d < dateien.size(); ++d) {
        if (!Gehoert(*dateien[d], wahl)) {
            continue;
        }
        const std::size_t anfang = bestand_->anfang(d);
        for (std::size_t i = 0; i < dateien[d]->fragen.anzahl(); ++i) {
            if (!dateien[d]->fragen.wert(i, Spalte::Frage).empty()) {
                liste.push_back(static_cast<Fragennummer>(anfang + i));
            }
        }
    }
    return liste;
}

std::vector<bool> Fragenvorrat::wiederholungen(std::span<const std::string> fragen) const {
    std::vector<bool> ergebnis(anzahl(), false);
    for (const std::string& text : fragen) {
        if (text.empty()) {
            continue;
        }
        const Wortanfaenge anfaenge = WortanfaengeVon(text);
        for (std::size_t nr = 0; nr < anzahl(); ++nr) {
            ergebnis[nr] = ergebnis[nr] || Fastgleich(eintraege_[nr].anfaenge, anfaenge);
        }
    }
    return ergebnis;
}
