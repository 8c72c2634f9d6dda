#include "search/fragenbestand.h"

#include "core/laufzeitfehler.h"
#include "search/faltung.h"

#include <algorithm>
#include <limits>
#include <utility>

std::shared_ptr<const Bestandsdatei> BestandsdateiAus(std::string_view thema, std::string_view unterthema,
                                                      Fragenliste fragen) {
    auto datei = std::make_shared<Bestandsdatei>();
    datei->thema = thema;
    datei->unterthema = unterthema;
    datei->fragen = std::move(fragen);
    const std::size_t anzahl = datei->fragen.anzahl();
    std::string text;
    text.reserve(datei->fragen.bytes() + 2 * anzahl);
    datei->enden.reserve(anzahl);
    datei->abdruecke.reserve(anzahl);
    for (std::size_t i = 0; i < anzahl; ++i) {
        const std::size_t anfang = text.size();
        GefaltetAnhaengen(text, datei->fragen.wert(i, Spalte::Frage), &datei->ausgelassen);
        const std::size_t frage = text.size();
        datei->abdruecke.push_back(Fragenabdruck(std::string_view(text).substr(anfang)));
        text += Bestandsdatei::trenner;
        GefaltetAnhaengen(text, datei->fragen.wert(i, Spalte::Antwort), &datei->ausgelassen);
        const std::size_t antwort = text.size();
        text += Bestandsdatei::ende;
        if (antwort > std::numeric_limits<std::uint32_t>::max()) {
            throw Laufzeitfehler(Fehler::SpeicherVoll);
        }
        datei->enden.push_back({static_cast<std::uint32_t>(frage), static_cast<std::uint32_t>(antwort)});
    }
    text.shrink_to_fit();
    datei->text = SuchtextAus(std::move(text));
    return datei;
}

Fragenbestand::Fragenbestand(std::vector<Datei> dateien) : dateien_(std::move(dateien)) {
    std::size_t summe = 0;
    for (const Datei& datei : dateien_) {
        summe += datei->fragen.anzahl();
        anfaenge_.push_back(summe);
    }
}

Fragenbestand::Ort Fragenbestand::ort(std::size_t nr) const {
    const auto fund = std::upper_bound(anfaenge_.begin(), anfaenge_.end(), nr);
    const auto datei = static_cast<std::size_t>(fund - anfaenge_.begin());
    return {datei, nr - anfang(datei)};
}

Katalogfrage Fragenbestand::frage(std::size_t nr) const {
    const Ort stelle = ort(nr);
    const Bestandsdatei& datei = *dateien_[stelle.datei];
    const auto wert = [&](Spalte spalte) { return datei.fragen.wert(stelle.frage, spalte); };
    return {datei.thema, datei.unterthema, wert(Spalte::Frage), wert(Spalte::Antwort), wert(Spalte::Punkte)};
}
